#include "documents.h"

#include <hrm_api/hrm_api_json.h>

#include <filesystem>
#include <sstream>

namespace frame {

std::wstring textOf(const mp::ISerializable& document)
{
    std::wostringstream out;
    document.writeObject(out);
    return out.str();
}

void readFrom(mp::ISerializable& document, const std::wstring& text)
{
    std::wistringstream in(text);
    document.readObject(in);
}

std::size_t sharedMemorySize(const std::wstring& name)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(std::filesystem::path("/dev/shm") / hrm::toUtf8(name), error);
    return error ? 0 : static_cast<std::size_t>(size);
}

} // namespace frame

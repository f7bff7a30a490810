#include <mp/mp_serializable.h>

#include <sstream>

namespace mp {

std::wstring toText(const ISerializable& document)
{
    std::wostringstream out;
    document.writeObject(out);
    return out.str();
}

void fromText(const std::wstring& text, ISerializable& document)
{
    std::wistringstream in(text);
    document.readObject(in);
}

} // namespace mp

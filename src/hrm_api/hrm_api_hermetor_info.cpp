#include <hrm_api/hrm_api_hermetor_info.h>

#include "hrm_api/hrm_api_command_words.h"
#include "hrm_api/hrm_api_json_members.h"

#include <algorithm>
#include <regex>
#include <stdexcept>

namespace hrm {
namespace {

// An array of the non-null children, each written by itself.
template <class T>
void writeChildren(JsonObjectWriter& out, const wchar_t* key, const std::vector<std::shared_ptr<T>>& children)
{
    JsonValue array(rapidjson::kArrayType);
    for (const auto& child : children) {
        if (!child)
            continue;
        JsonValue element;
        child->writeObject(element, out.allocator());
        array.PushBack(element, out.allocator());
    }
    out.add(key, std::move(array));
}

template <class T>
bool sameChildren(const std::vector<std::shared_ptr<T>>& a, const std::vector<std::shared_ptr<T>>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return x && y ? *x == *y : x == y;
    });
}

// Element readers refuse anything but an object, so that a malformed info document is rejected.
void requireObject(const JsonValue& value, const char* message)
{
    if (!value.IsObject())
        throw std::invalid_argument(message);
}

} // namespace

void ThirdpartyCore::readObject(const JsonValue& value)
{
    requireObject(value, "ThirdpartyCore::readFrom > !jsonObject.IsObject()");
    JsonObjectReader(value).string(L"name", m_name).string(L"version", m_version);
}

void ThirdpartyCore::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    JsonObjectWriter(value, allocator).string(L"name", m_name).string(L"version", m_version);
}

Format& Format::addFilterExtensions(const std::vector<std::wstring>& extensions)
{
    m_filterExtensions.insert(m_filterExtensions.end(), extensions.begin(), extensions.end());
    return *this;
}

std::vector<std::wstring> Format::getFilters() const
{
    std::vector<std::wstring> filters;
    filters.reserve(m_filterExtensions.size());
    for (const std::wstring& extension : m_filterExtensions)
        filters.push_back(m_description + L" (*." + extension + L")");
    return filters;
}

bool Format::is(const std::wstring& name) const
{
    return std::any_of(m_regexes.begin(), m_regexes.end(), [&name](const std::wstring& pattern) {
        return std::regex_match(name, std::wregex(pattern, std::regex::ECMAScript | std::regex::icase));
    });
}

void Format::readObject(const JsonValue& value)
{
    requireObject(value, "Format::readFrom > !jsonObject.IsObject()");
    JsonObjectReader(value)
        .string(L"description", m_description)
        .strings(L"extensions", m_extensions)
        .strings(L"filters", m_filterExtensions);
}

void Format::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    JsonObjectWriter(value, allocator)
        .string(L"description", m_description)
        .strings(L"extensions", m_extensions)
        .strings(L"filters", m_filterExtensions);
}

bool Format::operator==(const Format& other) const
{
    return m_description == other.m_description && m_extensions == other.m_extensions
        && m_filterExtensions == other.m_filterExtensions && m_regexes == other.m_regexes;
}

std::shared_ptr<ThirdpartyCore> HermetorInfo::newThirdpartyCore()
{
    return m_thirdpartyCores.emplace_back(std::make_shared<ThirdpartyCore>());
}

std::shared_ptr<Format> HermetorInfo::newImportFormat()
{
    return m_importFormats.emplace_back(std::make_shared<Format>());
}

void HermetorInfo::addImportFormats(const Formats& formats)
{
    m_importFormats.insert(m_importFormats.end(), formats.begin(), formats.end());
}

std::shared_ptr<Format> HermetorInfo::newExportFormat()
{
    return m_exportFormats.emplace_back(std::make_shared<Format>());
}

void HermetorInfo::addExportFormats(const Formats& formats)
{
    m_exportFormats.insert(m_exportFormats.end(), formats.begin(), formats.end());
}

void HermetorInfo::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    JsonDocument document;
    JsonObjectWriter root(document, document.GetAllocator());
    root.string(L"name", m_name)
        .string(L"version", m_version)
        .string(L"hermetor_interface", interfaceWord(m_requestedInterface));
    if (!m_thirdpartyCores.empty())
        writeChildren(root, L"thirdparty_cores", m_thirdpartyCores);
    root.string(L"parasolid_mode", m_parasolidMode == EParasolidMode::Kernel ? L"kernel" : L"direct");
    if (!m_importFormats.empty())
        writeChildren(root, L"import_formats", m_importFormats);
    if (!m_exportFormats.empty())
        writeChildren(root, L"export_formats", m_exportFormats);
    root.int32(L"modeler_version", m_modelerMajorVersion);
    JsonTextIO::write(out, document, true);
}

void HermetorInfo::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument document;
    readObjectDocument(in, document);
    JsonObjectReader members(document);
    members.string(L"name", m_name).string(L"version", m_version);
    if (const JsonValue* word = members.find(L"hermetor_interface"); word && word->IsString())
        m_requestedInterface = interfaceFromWord(wideString(*word));
    members.objects(L"thirdparty_cores", m_thirdpartyCores)
        .objects(L"import_formats", m_importFormats)
        .objects(L"export_formats", m_exportFormats);
    if (const JsonValue* mode = members.find(L"parasolid_mode"); mode && mode->IsString())
        m_parasolidMode = wideString(*mode) == L"kernel" ? EParasolidMode::Kernel : EParasolidMode::Direct;
    members.int32(L"modeler_version", m_modelerMajorVersion);
}

bool HermetorInfo::operator==(const HermetorInfo& other) const
{
    return m_name == other.m_name && m_version == other.m_version
        && m_requestedInterface == other.m_requestedInterface && m_parasolidMode == other.m_parasolidMode
        && m_modelerMajorVersion == other.m_modelerMajorVersion
        && sameChildren(m_thirdpartyCores, other.m_thirdpartyCores)
        && sameChildren(m_importFormats, other.m_importFormats)
        && sameChildren(m_exportFormats, other.m_exportFormats);
}

} // namespace hrm

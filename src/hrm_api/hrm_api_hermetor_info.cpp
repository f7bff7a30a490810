#include <hrm_api/hrm_api_hermetor_info.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

#include <algorithm>
#include <regex>
#include <stdexcept>

namespace hrm {

// "kernel" names the kernel mode; every other word the direct one.
HRM_ENUM_STRINGS_UNKNOWN_AS(EParasolidMode, EParasolidMode::Direct,
    {EParasolidMode::Direct, L"direct"},
    {EParasolidMode::Kernel, L"kernel"})

namespace {

template <class T>
bool sameChildren(const std::vector<std::shared_ptr<T>>& a, const std::vector<std::shared_ptr<T>>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& x, const auto& y) {
        return x && y ? *x == *y : x == y;
    });
}

// Cores and formats refuse anything but an object, so that a malformed info document is rejected.
template <class T>
void readStrictly(T& object, const JsonValue& value, const char* message)
{
    MemberReader in = strictReader(value, message);
    MemberAccess::members(object, in);
}

} // namespace

template <class Members>
void ThirdpartyCore::members(Members& m)
{
    m.string(L"name", m_name).string(L"version", m_version);
}

void ThirdpartyCore::readObject(const JsonValue& value)
{
    readStrictly(*this, value, "ThirdpartyCore::readFrom > !jsonObject.IsObject()");
}

void ThirdpartyCore::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
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

// Whole arrays of strings or nothing: a list with a non-string element leaves the field.
template <class Members>
void Format::members(Members& m)
{
    m.string(L"description", m_description)
        .allStrings(L"extensions", m_extensions)
        .allStrings(L"filters", m_filterExtensions);
}

void Format::readObject(const JsonValue& value)
{
    readStrictly(*this, value, "Format::readFrom > !jsonObject.IsObject()");
}

void Format::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
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

// Lists are written only when they hold something; reading appends to those held.
template <class Members>
void HermetorInfo::members(Members& m)
{
    m.string(L"name", m_name)
        .string(L"version", m_version)
        .enumeration(L"hermetor_interface", m_requestedInterface)
        .writtenIf(!m_thirdpartyCores.empty())
        .children(L"thirdparty_cores", m_thirdpartyCores);
    // Written before the formats and read after them, so that a malformed format ends the
    // reading before the mode.
    if constexpr (!Members::reading)
        m.enumeration(L"parasolid_mode", m_parasolidMode);
    m.writtenIf(!m_importFormats.empty())
        .children(L"import_formats", m_importFormats)
        .writtenIf(!m_exportFormats.empty())
        .children(L"export_formats", m_exportFormats);
    if constexpr (Members::reading)
        m.enumeration(L"parasolid_mode", m_parasolidMode);
    m.int32(L"modeler_version", m_modelerMajorVersion);
}

void HermetorInfo::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    JsonDocument document(rapidjson::kObjectType);
    writeMembers(*this, document, document.GetAllocator());
    JsonTextIO::write(out, document, true);
}

void HermetorInfo::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument document;
    readObjectDocument(in, document);
    readMembers(*this, document, nullptr);
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

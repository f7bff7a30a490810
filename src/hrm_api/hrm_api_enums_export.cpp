#include <hrm_api/hrm_api_enums_export.h>

#include "hrm_api/hrm_api_enum_table.h"

#include <string>
#include <utility>
#include <vector>

namespace hrm {

HRM_ENUM_STRINGS(ELayerNameProcessingModeType,
    {ELayerNameProcessingModeType::Unknown, L"unknown"},
    {ELayerNameProcessingModeType::AsmRep, L"asm_rep"},
    {ELayerNameProcessingModeType::SavedVisuRep, L"saved_visu_rep"})

HRM_ENUM_STRINGS(EDefaultColorMode,
    {EDefaultColorMode::Unknown, L"unknown"},
    {EDefaultColorMode::False, L"false"},
    {EDefaultColorMode::CatiaV5, L"catiav5"})

HRM_ENUM_STRINGS(EGraphicalPMIContainerMode,
    {EGraphicalPMIContainerMode::Unknown, L"unknown"},
    {EGraphicalPMIContainerMode::True, L"true"},
    {EGraphicalPMIContainerMode::False, L"false"})

HRM_ENUM_STRINGS(EEdgeCurveMode,
    {EEdgeCurveMode::Unknown, L"unknown"},
    {EEdgeCurveMode::Curves2dAnd3d, L"2d+3d"},
    {EEdgeCurveMode::Curves2d, L"2d"})

HRM_ENUM_STRINGS(EExportCgrCompatibilityMode,
    {EExportCgrCompatibilityMode::Unknown, L"unknown"},
    {EExportCgrCompatibilityMode::CatiaV5, L"catia_v5"},
    {EExportCgrCompatibilityMode::Catia3DExperience, L"catia_3dexperience"})

HRM_ENUM_STRINGS(EExportSaveMode,
    {EExportSaveMode::Unknown, L"unknown"},
    {EExportSaveMode::Text, L"text"},
    {EExportSaveMode::BinaryLE, L"binary_le"})

HRM_ENUM_STRINGS(EExportVersionStep,
    {EExportVersionStep::Unknown, L"unknown"},
    {EExportVersionStep::AP203, L"AP203"},
    {EExportVersionStep::AP214, L"AP214"},
    {EExportVersionStep::AP242, L"AP242"})

HRM_ENUM_STRINGS(EExportVersionCatiaV4,
    {EExportVersionCatiaV4::Unknown, L"unknown"},
    {EExportVersionCatiaV4::V4_1_9, L"4.1.9"},
    {EExportVersionCatiaV4::V4_2_0, L"4.2.0"},
    {EExportVersionCatiaV4::V4_2_1, L"4.2.1"},
    {EExportVersionCatiaV4::V4_2_2, L"4.2.2"},
    {EExportVersionCatiaV4::V4_2_3, L"4.2.3"},
    {EExportVersionCatiaV4::V4_2_4, L"4.2.4"})

// The version tables follow a pattern: 0 "unknown", 1 "current", then one word per version
// from value 2 on, oldest first.
namespace {

template <class E>
using VersionPairs = std::vector<std::pair<E, std::wstring>>;

template <class E>
VersionPairs<E> versionPairs(const std::vector<std::wstring>& versions)
{
    VersionPairs<E> pairs{{E::Unknown, L"unknown"}, {E::Current, L"current"}};
    int32_t value = 2;
    for (const auto& version : versions)
        pairs.emplace_back(static_cast<E>(value++), version);
    return pairs;
}

// prefix + number + suffix for every number from first to last.
std::vector<std::wstring> numbered(const wchar_t* prefix, int first, int last, const wchar_t* suffix = L"")
{
    std::vector<std::wstring> words;
    for (int number = first; number <= last; ++number)
        words.push_back(prefix + std::to_wstring(number) + suffix);
    return words;
}

std::vector<std::wstring> joined(std::vector<std::wstring> first, const std::vector<std::wstring>& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

template <>
struct EnumNames<EExportVersionAcis>
{
    static const auto& pairs()
    {
        static const auto table = versionPairs<EExportVersionAcis>(
            joined(numbered(L"R", 18, 25), numbered(L"", 2016, 2021, L"_1_0")));
        return table;
    }
    static std::optional<EExportVersionAcis> unknownWord() { return std::nullopt; }
};
HRM_ENUM_INSTANTIATE(EExportVersionAcis)

template <>
struct EnumNames<EExportVersionParasolid>
{
    static const auto& pairs()
    {
        static const auto table = versionPairs<EExportVersionParasolid>(numbered(L"r", 12, 33));
        return table;
    }
    static std::optional<EExportVersionParasolid> unknownWord() { return std::nullopt; }
};
HRM_ENUM_INSTANTIATE(EExportVersionParasolid)

template <>
struct EnumNames<EExportVersionCatiaV5>
{
    static const auto& pairs()
    {
        static const auto table = versionPairs<EExportVersionCatiaV5>(
            joined(numbered(L"V5_R", 16, 21), numbered(L"V5_6_R", 2012, 2021)));
        return table;
    }
    static std::optional<EExportVersionCatiaV5> unknownWord() { return std::nullopt; }
};
HRM_ENUM_INSTANTIATE(EExportVersionCatiaV5)

template <>
struct EnumNames<EExportVersionXCGM>
{
    static const auto& pairs()
    {
        static const auto table = versionPairs<EExportVersionXCGM>(
            {L"CGM_R2013x", L"CGM_R2014", L"CGM_R2014x", L"CGM_R2015x_B1", L"CGM_R2015x_B5",
             L"CGM_R2015x_B5_SP1", L"CGM_R2016_1_0", L"CGM_R2016_1_1", L"CGM_R2017_1_0", L"CGM_R2017_1_1",
             L"CGM_R2018_1_0", L"CGM_R2018_1_1", L"CGM_R2019_1_0", L"CGM_R2020_1_0", L"CGM_R2021_1_0"});
        return table;
    }
    static std::optional<EExportVersionXCGM> unknownWord() { return std::nullopt; }
};
HRM_ENUM_INSTANTIATE(EExportVersionXCGM)

} // namespace hrm

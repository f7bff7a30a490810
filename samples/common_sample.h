#pragma once

// Entity references and property groups with every member away from its default, for tests,
// fuzz seeds and the samples of the families that use them:
//
//   auto entity = hrm::samples::full::entity();   // a face of an instance, with its path
//
// Header-only and deterministic.

#include <hrm_api/hrm_api_exchange_common_entity.h>

#include <memory>

namespace hrm::samples {

// A property group of a part as CAD systems export it: part number, material, mass, a flag.
inline std::shared_ptr<ExcMiscPropertiesGroup> partProperties(const std::wstring& partNumber, double massKg)
{
    using Type = ExcMiscProperty::EType;
    auto group = std::make_shared<ExcMiscPropertiesGroup>();
    group->setName(L"Properties");
    group->addProperty(ExcMiscProperty(L"PartNumber", Type::String, partNumber));
    group->addProperty(ExcMiscProperty(L"Material", Type::String, L"Steel S235JR"));
    group->addProperty(ExcMiscProperty(L"Mass", Type::Double, std::to_wstring(massKg)));
    group->addProperty(ExcMiscProperty(L"Purchased", Type::Boolean, massKg < 0.1 ? L"true" : L"false"));
    return group;
}

namespace full {

inline std::shared_ptr<ExcFullSubentPath> subentPath()
{
    auto path = std::make_shared<ExcFullSubentPath>(4711);
    path->refs() = {L"ref-root", L"ref-\u00e9t\u00e9"};
    path->setSubentType(ESubentType::Face);
    path->setVisuId(L"face-12");
    path->setInstancePath(true);
    return path;
}

inline std::shared_ptr<ExcEntity> entity()
{
    auto entity = std::make_shared<ExcEntity>();
    entity->setId(L"E-17");
    entity->setType(ExcEntity::EType::Original);
    entity->setFsp(subentPath());
    entity->setDescription(L"bore face");
    return entity;
}

inline std::shared_ptr<ExcMiscProperty> miscProperty()
{
    return std::make_shared<ExcMiscProperty>(L"Created", ExcMiscProperty::EType::DateTime, L"2021-03-04T05:06:07Z");
}

inline std::shared_ptr<ExcMiscPropertiesGroup> propertiesGroup()
{
    auto group = partProperties(L"P-0001", 1.25);
    group->setName(L"Attributes \u00c4");
    group->setBim(true);
    return group;
}

inline std::shared_ptr<ExcMiscData> miscData()
{
    auto data = std::make_shared<ExcMiscData>();
    data->addGroup(propertiesGroup());
    data->addGroup(partProperties(L"P-0002", 0.05));
    return data;
}

} // namespace full

} // namespace hrm::samples

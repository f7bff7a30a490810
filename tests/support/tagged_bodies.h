#pragma once

// Modeler bodies tagged with identity attributes, for the geometry tests and the two-process
// peer (built with a modeler only).

#include <hrm_api/hrm_api_acis_attrib_id.h>

#include <vector>

namespace hrm::test {

// Loses the entities of a list when it goes (restored entities are the caller's to lose).
class OwnedEntities
{
public:
    OwnedEntities() = default;
    ~OwnedEntities()
    {
        for (int i = 0; i < list.count(); ++i)
            list[i]->lose();
    }
    OwnedEntities(const OwnedEntities&) = delete;
    OwnedEntities& operator=(const OwnedEntities&) = delete;

    ENTITY_LIST list;
};

// Adds one body per id to `entities`, each tagged with an ATTRIB_HERMETOR_ID of that id.
inline void addTaggedBodies(ENTITY_LIST& entities, const std::vector<long>& ids)
{
    for (const long id : ids) {
        BODY* body = ACIS_NEW BODY;
        ACIS_NEW ATTRIB_HERMETOR_ID(body, id);
        entities.add(body);
    }
}

// The ids of the ATTRIB_HERMETOR_ID attributes of the listed entities, in order.
inline std::vector<long> taggedIds(const ENTITY_LIST& entities)
{
    std::vector<long> ids;
    for (int i = 0; i < entities.count(); ++i) {
        for (const ATTRIB* attribute = entities[i]->attrib(); attribute; attribute = attribute->next()) {
            if (is_ATTRIB_HERMETOR_ID(attribute))
                ids.push_back(static_cast<const ATTRIB_HERMETOR_ID*>(attribute)->id());
        }
    }
    return ids;
}

} // namespace hrm::test

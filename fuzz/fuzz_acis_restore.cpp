// The modeler's restore (api_restore_entity_list_file) on arbitrary bytes staged in a shared
// ACIS buffer, as ExcBlockGeometry::getGeometry runs it. Whatever restores saves again to bytes
// that restore to the same entities (the same identity tags on the same bodies); whatever fails
// leaves nothing behind (LeakSanitizer).

#include "fuzz_support.h"

#include <hrm_api/hrm_api_acis_attrib_id.h>
#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>

#include <vector>

using namespace hrm;

namespace {

// Loses the entities of a list when it goes.
struct Restored
{
    ~Restored()
    {
        for (int i = 0; i < list.count(); ++i)
            list[i]->lose();
    }
    ENTITY_LIST list;
};

bool restore(ExcSharedAcisBuffer& file, ENTITY_LIST& list)
{
    file.goto_mark(0);
    API_BEGIN
        result = api_restore_entity_list_file(&file, list);
    API_END
    return result.ok();
}

// The type names of each restored entity's attributes and the ids of its identity tags.
std::vector<std::vector<long>> shapeOf(const ENTITY_LIST& list)
{
    std::vector<std::vector<long>> shape;
    for (int i = 0; i < list.count(); ++i) {
        shape.emplace_back();
        for (const ATTRIB* attribute = list[i]->attrib(); attribute; attribute = attribute->next())
            shape.back().push_back(is_ATTRIB_HERMETOR_ID(attribute) ? static_cast<const ATTRIB_HERMETOR_ID*>(attribute)->id()
                                   : is_ATTRIB_HERMETOR(attribute)  ? -1
                                                                    : -2);
    }
    return shape;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    FileInfo info;
    info.set_product_id("fuzz");
    info.set_units(1.0);
    api_set_file_info(FileIdent | FileUnits, info);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    ExcSharedAcisBuffer input(L"unused", false);
    input.write(data, size, 0);
    Restored first;
    if (!restore(input, first.list)) {
        fuzz::check(first.list.count() == 0, "a failed restore appends nothing");
        return 0;
    }
    ExcSharedAcisBuffer saved(L"unused", false);
    fuzz::check(api_save_entity_list_file(&saved, first.list).ok(), "restored entities save again");
    Restored second;
    fuzz::check(restore(saved, second.list), "saved entities restore");
    fuzz::check(shapeOf(first.list) == shapeOf(second.list), "a save restores to the same entities");
    return 0;
}

#include <hrm_api/hrm_api_acis_attrib_id.h>

#if HRM_HAS_MODELER

#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>

#include "support/tagged_bodies.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace hrm {
namespace {

// The saved data of `entities`, restored into `restored`.
void saveAndRestore(const ENTITY_LIST& entities, ENTITY_LIST& restored)
{
    FileInfo info;
    info.set_product_id("test");
    info.set_units(1.0);
    api_set_file_info(FileIdent | FileUnits, info);
    ExcSharedAcisBuffer file(L"unused", false);
    ASSERT_TRUE(api_save_entity_list_file(&file, entities).ok());
    file.goto_mark(0);
    ASSERT_TRUE(api_restore_entity_list_file(&file, restored).ok());
}

std::vector<std::string> typeNames(const ENTITY* owner)
{
    std::vector<std::string> names;
    for (const ATTRIB* attribute = owner->attrib(); attribute; attribute = attribute->next())
        names.emplace_back(attribute->type_name());
    return names;
}

TEST(AcisAttributes, TypesLevelsAndIdentity)
{
    test::OwnedEntities owned;
    BODY* body = ACIS_NEW BODY;
    owned.list.add(body);
    const ATTRIB_HERMETOR* plain = ACIS_NEW ATTRIB_HERMETOR(body);
    const ATTRIB_HERMETOR_ID* tagged = ACIS_NEW ATTRIB_HERMETOR_ID(body, 42);
    const ATTRIB* other = ACIS_NEW ATTRIB(body);

    EXPECT_STREQ(plain->type_name(), "Ardenix_Hermetor_Attribute");
    EXPECT_STREQ(tagged->type_name(), "Ardenix_Hermetor_ID_Attribute");
    EXPECT_EQ(ATTRIB_HERMETOR_LEVEL, 2);
    EXPECT_EQ(ATTRIB_HERMETOR_ID_LEVEL, 3);
    const int idType = ATTRIB_HERMETOR_ID::staticType();
    const int plainType = ATTRIB_HERMETOR::staticType();
    const int attribType = ATTRIB_subclasses()->type();
    EXPECT_NE(idType, plainType);
    EXPECT_EQ((std::vector<int>{tagged->identity(0), tagged->identity(3), tagged->identity(2), tagged->identity(1),
                                tagged->identity(4), tagged->identity(-1), tagged->identity(-2)}),
              (std::vector<int>{idType, idType, plainType, attribType, -1, plainType, attribType}));
    EXPECT_EQ((std::vector<int>{plain->identity(0), plain->identity(2), plain->identity(1), plain->identity(3)}),
              (std::vector<int>{plainType, plainType, attribType, -1}));

    EXPECT_TRUE(is_ATTRIB_HERMETOR(plain) && is_ATTRIB_HERMETOR(tagged) && is_ATTRIB_HERMETOR_ID(tagged));
    EXPECT_FALSE(is_ATTRIB_HERMETOR_ID(plain) || is_ATTRIB_HERMETOR(other) || is_ATTRIB_HERMETOR(body) ||
                 is_ATTRIB_HERMETOR(nullptr) || is_ATTRIB_HERMETOR_ID(nullptr));
    EXPECT_EQ(tagged->size(), int(sizeof(ATTRIB_HERMETOR_ID)));
    EXPECT_EQ(tagged->entity(), body);
}

TEST(AcisAttributes, TheIdConstructorAsksToFollowItsOwner)
{
    test::OwnedEntities owned;
    BODY* body = ACIS_NEW BODY;
    owned.list.add(body);
    const ATTRIB_HERMETOR_ID* tagged = ACIS_NEW ATTRIB_HERMETOR_ID(body, 7);
    EXPECT_EQ((std::vector<int>{tagged->copy_owner_action(), tagged->split_owner_action(), tagged->merge_owner_action(),
                                tagged->trans_owner_action(), tagged->reverse_owner_action(),
                                tagged->rep_owner_geom_action(), tagged->warp_owner_action(),
                                tagged->lop_change_owner_action()}),
              (std::vector<int>{2, 1, 1, 2, 1, 1, 1, 1}));

    // The owner-only constructor keeps the modeler's defaults, as a plain attribute has them.
    const ATTRIB_HERMETOR_ID* untagged = ACIS_NEW ATTRIB_HERMETOR_ID(body);
    const ATTRIB* plain = ACIS_NEW ATTRIB(body);
    EXPECT_EQ(untagged->id(), 0);
    EXPECT_EQ((std::vector<int>{untagged->copy_owner_action(), untagged->split_owner_action(),
                                untagged->merge_owner_action(), untagged->trans_owner_action(),
                                untagged->warp_owner_action()}),
              (std::vector<int>{plain->copy_owner_action(), plain->split_owner_action(), plain->merge_owner_action(),
                                plain->trans_owner_action(), plain->warp_owner_action()}));

    // A copy of the body takes the tag (copied with its id) and leaves the untagged one.
    ENTITY* copy = nullptr;
    ASSERT_TRUE(api_copy_entity(body, copy).ok());
    owned.list.add(copy);
    ENTITY_LIST copies;
    copies.add(copy);
    EXPECT_EQ(test::taggedIds(copies), std::vector<long>{7});
    EXPECT_EQ(typeNames(copy), std::vector<std::string>{"Ardenix_Hermetor_ID_Attribute"});
}

TEST(AcisAttributes, SavedAndRestoredWithTheirOwners)
{
    test::OwnedEntities sent;
    BODY* body = ACIS_NEW BODY;
    sent.list.add(body);
    ACIS_NEW ATTRIB_HERMETOR(body);
    ACIS_NEW ATTRIB_HERMETOR_ID(body, -5);
    ACIS_NEW ATTRIB_HERMETOR_ID(body, 2147483647);
    test::OwnedEntities received;
    saveAndRestore(sent.list, received.list);
    ASSERT_EQ(received.list.count(), 1);
    EXPECT_EQ(typeNames(received.list[0]), (std::vector<std::string>{"Ardenix_Hermetor_Attribute",
                                                                      "Ardenix_Hermetor_ID_Attribute",
                                                                      "Ardenix_Hermetor_ID_Attribute"}));
    EXPECT_EQ(test::taggedIds(received.list), (std::vector<long>{-5, 2147483647}));
    EXPECT_EQ(received.list[0]->attrib()->entity(), received.list[0]);
}

struct Counted : METHOD_ARGS
{
    int calls = 0;
    const char* id() const override { return "Counted"; }
};

logical count(void*, const METHOD_ARGS& arguments)
{
    ++const_cast<Counted&>(static_cast<const Counted&>(arguments)).calls;
    return 1;
}

TEST(AcisAttributes, MethodsAndDebugOutput)
{
    test::OwnedEntities owned;
    BODY* body = ACIS_NEW BODY;
    owned.list.add(body);
    ATTRIB_HERMETOR_ID* tagged = ACIS_NEW ATTRIB_HERMETOR_ID(body, 42);
    const METHOD_ID counting("count", "Counted");
    Counted arguments;
    EXPECT_FALSE(tagged->call_method(counting, arguments));
    EXPECT_TRUE(ATTRIB_HERMETOR::add_method(counting, count));
    EXPECT_TRUE(tagged->call_method(counting, arguments));
    EXPECT_EQ(arguments.calls, 1);

    std::FILE* file = std::tmpfile();
    ASSERT_TRUE(file);
    tagged->debug_ent(file);
    std::rewind(file);
    char text[256] = {};
    const size_t size = std::fread(text, 1, sizeof text - 1, file);
    std::fclose(file);
    EXPECT_NE(std::string(text, size).find("id: 42"), std::string::npos) << text;
}

} // namespace
} // namespace hrm

#endif

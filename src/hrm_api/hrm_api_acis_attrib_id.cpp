#include <hrm_api/hrm_api_acis_attrib_id.h>

#if HRM_HAS_MODELER

namespace {

const char hermetorName[] = "Ardenix_Hermetor_Attribute";
const char hermetorIdName[] = "Ardenix_Hermetor_ID_Attribute";

// The modeler's identity convention for a class of level `classLevel` and type `type`: level 0
// and the class's own level name the class, a negative level counts up from it, a higher level
// is beyond it, and lower levels are the base's (`base`) business.
template <class Base>
int identityAt(int level, int classLevel, int type, Base base)
{
    if (level == 0 || level == classLevel)
        return type;
    if (level < 0)
        return base(level + 1);
    if (level > classLevel)
        return -1;
    return base(level);
}

// The restore function of class T: an empty attribute that reads its data from the file.
template <class T>
ENTITY* restoreNew()
{
    T* attribute = ACIS_NEW T;
    attribute->restore_common();
    return attribute;
}

// The restore definitions: the plain class under ATTRIB, the ID class under the plain one.
restore_def* hermetorDefinition()
{
    static restore_def definition(ATTRIB_subclasses(), hermetorName, restoreNew<ATTRIB_HERMETOR>);
    return &definition;
}

restore_def* hermetorIdDefinition()
{
    static restore_def definition(hermetorDefinition(), hermetorIdName, restoreNew<ATTRIB_HERMETOR_ID>);
    return &definition;
}

// Both classes are registered when the library is loaded.
[[maybe_unused]] const restore_def* const registered = hermetorIdDefinition();

METHOD_TABLE& hermetorMethods()
{
    static METHOD_TABLE table;
    return table;
}

} // namespace

// ---- ATTRIB_HERMETOR ----------------------------------------------------------------------

ATTRIB_HERMETOR::ATTRIB_HERMETOR(ENTITY* owner) : ATTRIB(owner)
{
}

int ATTRIB_HERMETOR::staticType()
{
    return hermetorDefinition()->type();
}

const char* ATTRIB_HERMETOR::type_name() const
{
    return hermetorName;
}

int ATTRIB_HERMETOR::identity(int level) const
{
    return identityAt(level, ATTRIB_HERMETOR_LEVEL, staticType(), [this](int at) { return ATTRIB::identity(at); });
}

int ATTRIB_HERMETOR::size() const
{
    return sizeof(ATTRIB_HERMETOR);
}

logical ATTRIB_HERMETOR::is_deepcopyable() const
{
    return ATTRIB::is_deepcopyable();
}

void ATTRIB_HERMETOR::debug_ent(FILE* file) const
{
    ATTRIB::debug_ent(file);
}

void ATTRIB_HERMETOR::lose()
{
    ATTRIB::lose();
}

logical ATTRIB_HERMETOR::add_method(const METHOD_ID& id, MethodFunction method)
{
    return hermetorMethods().add(id, method);
}

logical ATTRIB_HERMETOR::call_method(const METHOD_ID& id, const METHOD_ARGS& arguments)
{
    const MethodFunction method = hermetorMethods().find(id);
    return method ? method(this, arguments) : ATTRIB::call_method(id, arguments);
}

void ATTRIB_HERMETOR::save() const
{
    save_begin();
    write_id(hermetorName, ATTRIB_HERMETOR_LEVEL);
    ATTRIB::save_common();
    save_end();
}

void ATTRIB_HERMETOR::restore_common()
{
    ATTRIB::restore_common();
}

ENTITY* ATTRIB_HERMETOR::make_copy() const
{
    ATTRIB_HERMETOR* copy = ACIS_NEW ATTRIB_HERMETOR;
    copy->copy_common(this);
    return copy;
}

void ATTRIB_HERMETOR::copy_common(const ATTRIB_HERMETOR* from)
{
    ATTRIB::copy_common(from);
}

logical is_ATTRIB_HERMETOR(const ENTITY* entity)
{
    return entity && entity->identity(ATTRIB_HERMETOR_LEVEL) == ATTRIB_HERMETOR::staticType();
}

// ---- ATTRIB_HERMETOR_ID -------------------------------------------------------------------

ATTRIB_HERMETOR_ID::ATTRIB_HERMETOR_ID(ENTITY* owner) : ATTRIB_HERMETOR(owner)
{
}

ATTRIB_HERMETOR_ID::ATTRIB_HERMETOR_ID(ENTITY* owner, long id) : ATTRIB_HERMETOR(owner), m_id(id)
{
    // The modeler's action values: copy with the owner (2), keep on a split (1), keep the kept
    // owner's on a merge (1), apply the owner's transformation (2), keep when the geometry
    // changes (1).
    set_copy_owner_action(static_cast<copy_action>(2));
    set_split_owner_action(static_cast<split_action>(1));
    set_merge_owner_action(static_cast<merge_action>(1));
    set_trans_owner_action(static_cast<trans_action>(2));
    set_reverse_owner_action(static_cast<geometry_changed_action>(1));
    set_rep_owner_geom_action(static_cast<geometry_changed_action>(1));
    set_warp_owner_action(static_cast<geometry_changed_action>(1));
    set_lop_change_owner_action(static_cast<geometry_changed_action>(1));
}

int ATTRIB_HERMETOR_ID::staticType()
{
    return hermetorIdDefinition()->type();
}

const char* ATTRIB_HERMETOR_ID::type_name() const
{
    return hermetorIdName;
}

int ATTRIB_HERMETOR_ID::identity(int level) const
{
    return identityAt(level, ATTRIB_HERMETOR_ID_LEVEL, staticType(),
                      [this](int at) { return ATTRIB_HERMETOR::identity(at); });
}

int ATTRIB_HERMETOR_ID::size() const
{
    return sizeof(ATTRIB_HERMETOR_ID);
}

logical ATTRIB_HERMETOR_ID::is_deepcopyable() const
{
    return ATTRIB_HERMETOR::is_deepcopyable();
}

void ATTRIB_HERMETOR_ID::debug_ent(FILE* file) const
{
    ATTRIB_HERMETOR::debug_ent(file);
    std::fprintf(file, "id: %ld\n", m_id);
}

void ATTRIB_HERMETOR_ID::lose()
{
    ATTRIB_HERMETOR::lose();
}

void ATTRIB_HERMETOR_ID::save() const
{
    save_begin();
    write_id(hermetorIdName, ATTRIB_HERMETOR_ID_LEVEL);
    write_id(hermetorName, ATTRIB_HERMETOR_LEVEL);
    ATTRIB::save_common();
    write_long(m_id);
    save_end();
}

void ATTRIB_HERMETOR_ID::restore_common()
{
    ATTRIB_HERMETOR::restore_common();
    m_id = read_long();
}

ENTITY* ATTRIB_HERMETOR_ID::make_copy() const
{
    ATTRIB_HERMETOR_ID* copy = ACIS_NEW ATTRIB_HERMETOR_ID;
    copy->copy_common(this);
    return copy;
}

void ATTRIB_HERMETOR_ID::copy_common(const ATTRIB_HERMETOR_ID* from)
{
    ATTRIB_HERMETOR::copy_common(from);
    m_id = from->m_id;
}

logical is_ATTRIB_HERMETOR_ID(const ENTITY* entity)
{
    return entity && entity->identity(ATTRIB_HERMETOR_ID_LEVEL) == ATTRIB_HERMETOR_ID::staticType();
}

#endif

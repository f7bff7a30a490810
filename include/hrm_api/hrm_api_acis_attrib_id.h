#pragma once

/// @file
/// Two modeler attributes that tag an entity (a body, a face, ...) with a numeric identity that
/// survives saving and restoring through shared memory: ATTRIB_HERMETOR, an organisation class
/// with no data, and ATTRIB_HERMETOR_ID, which carries the id. Both are registered with the
/// modeler's restore mechanism, so that a restored entity list carries them again. They are
/// modeler entities: owned by the entity they are attached to, and lost with it.

#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_modeler.h>

#if HRM_HAS_MODELER

#include <cstdio>

/// The level of ATTRIB_HERMETOR in the modeler's class hierarchy.
const int ATTRIB_HERMETOR_LEVEL = ATTRIB_LEVEL + 1;
/// The level of ATTRIB_HERMETOR_ID in the modeler's class hierarchy.
const int ATTRIB_HERMETOR_ID_LEVEL = ATTRIB_HERMETOR_LEVEL + 1;

/// The library's organisation attribute: saved as "Ardenix_Hermetor_Attribute", with no data of
/// its own.
class HRM_API ATTRIB_HERMETOR : public ATTRIB
{
public:
    /// Attaches to `owner` (when not null) with the modeler's default owner-change actions.
    explicit ATTRIB_HERMETOR(ENTITY* owner = nullptr);

    /// The type number the class was registered under.
    static int staticType();
    /// The type name saved in files.
    const char* type_name() const override;
    /// The type number at `level` of the class hierarchy (the modeler's convention).
    int identity(int level = 0) const override;
    /// The size of the attribute in bytes.
    int size() const override;
    /// Whether a deep copy may copy it (as ATTRIB says).
    logical is_deepcopyable() const override;
    /// Writes what the attribute holds, for debugging.
    void debug_ent(FILE* file) const override;
    /// Detaches the attribute from its owner and deletes it.
    void lose() override;

    /// Adds a method to the class at run time.
    static logical add_method(const METHOD_ID& id, MethodFunction method);
    /// Calls a method added to the class; a method it was not given goes to ATTRIB.
    logical call_method(const METHOD_ID& id, const METHOD_ARGS& arguments) override;

    /// Writes the attribute's record (type id, ATTRIB's data, its own).
    void save() const override;
    /// A new attribute of the class with the same data, not yet attached.
    ENTITY* make_copy() const override;
    /// Reads the data save() wrote (after the type id).
    void restore_common();

protected:
    ~ATTRIB_HERMETOR() override = default;
    /// Copies ATTRIB's data (the owner-change actions).
    void copy_common(const ATTRIB_HERMETOR* from);
};

/// Whether `entity` is an ATTRIB_HERMETOR (or derived from it).
HRM_API logical is_ATTRIB_HERMETOR(const ENTITY* entity);

/// The identity tag: saved as "Ardenix_Hermetor_ID_Attribute", with the id as a 32-bit long.
class HRM_API ATTRIB_HERMETOR_ID : public ATTRIB_HERMETOR
{
public:
    /// Attaches to `owner` (when not null) with id 0 and the modeler's default owner-change
    /// actions.
    explicit ATTRIB_HERMETOR_ID(ENTITY* owner = nullptr);
    /// Attaches to `owner` with `id`, and asks to follow the owner through its changes: copied
    /// with it, kept on a split, on a merge the kept one's, transformed with it, and kept when
    /// its geometry is reversed, replaced, warped or changed locally.
    ATTRIB_HERMETOR_ID(ENTITY* owner, long id);

    /// The identity.
    long id() const { return m_id; }

    /// The type number the class was registered under.
    static int staticType();
    /// The type name saved in files.
    const char* type_name() const override;
    /// The type number at `level` of the class hierarchy (the modeler's convention).
    int identity(int level = 0) const override;
    /// The size of the attribute in bytes.
    int size() const override;
    /// Whether a deep copy may copy it (as ATTRIB says).
    logical is_deepcopyable() const override;
    /// Writes what the attribute holds, for debugging.
    void debug_ent(FILE* file) const override;
    /// Detaches the attribute from its owner and deletes it.
    void lose() override;

    /// Writes the attribute's record (type id, ATTRIB's data, its own).
    void save() const override;
    /// A new attribute of the class with the same data, not yet attached.
    ENTITY* make_copy() const override;
    /// Reads the data save() wrote (after the type id): ATTRIB's, then the id.
    void restore_common();

protected:
    ~ATTRIB_HERMETOR_ID() override = default;
    /// Copies the base's data and the id.
    void copy_common(const ATTRIB_HERMETOR_ID* from);

private:
    long m_id = 0;
};

/// Whether `entity` is an ATTRIB_HERMETOR_ID.
HRM_API logical is_ATTRIB_HERMETOR_ID(const ENTITY* entity);

#endif

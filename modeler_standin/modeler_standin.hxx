#pragma once

// A stand-in for the solid modeler: the part of its interface that hrm_api calls, with the
// modeler's names and simple but real behaviour, so that the library's geometry code runs in
// the tests.
//
// - Entities (a plain BODY, and attributes attached to an owner) live until lose()d.
// - api_save_entity_list_file writes the listed entities and their attributes through a
//   FileInterface: a header with the product id and units of api_set_file_info, then one record
//   per entity (its type id, as each class level writes it with write_id, and its data), then an
//   end marker. A BinaryFile turns every value into bytes through its four stream primitives.
// - api_restore_entity_list_file reads such data back: each record is made by the restore
//   function registered for its type id (restore_def) and reads its own data. Data that is not
//   such a list (garbage, cut short, unknown types, references out of range) gives an error
//   outcome and leaves nothing behind; nothing is allocated before the bytes that need it have
//   been read.
// - An API block (API_BEGIN ... API_END) turns a modeler error into an error outcome and, when
//   the block fails, loses the entities made inside it (the modeler's bulletin board).
// - api_copy_entity copies an entity with the attributes whose copy owner action asks for it.

#include <cstddef>
#include <cstdio>
#include <exception>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#if defined(STANDIN_STATIC)
#define STANDIN_API
#elif defined(_WIN32)
#if defined(STANDIN_BUILDING)
#define STANDIN_API __declspec(dllexport)
#else
#define STANDIN_API __declspec(dllimport)
#endif
#else
#define STANDIN_API __attribute__((visibility("default")))
#endif

typedef int logical;
typedef long long FilePosition;
typedef int err_mess_type;

class ENTITY;
class ATTRIB;
class ENTITY_LIST;

// ---- Errors and outcomes ------------------------------------------------------------------

// The modeler's error numbers (find_err_mess gives their texts).
enum : err_mess_type
{
    STANDIN_END_OF_DATA = 1,   // "unexpected end of saved data"
    STANDIN_NOT_SAVED_LIST,    // "data is not a saved entity list"
    STANDIN_UNKNOWN_TYPE,      // "unknown entity type in saved data"
    STANDIN_BAD_REFERENCE,     // "invalid entity reference in saved data"
    STANDIN_CORRUPT,           // "corrupt saved data"
    STANDIN_NO_FILE_INFO,      // "product id and units must be set before saving"
    STANDIN_OUT_OF_RANGE,      // "value out of range for saved data"
    STANDIN_NO_FILE,           // "no file interface"
    STANDIN_ATTRIB_ALONE,      // "attribute saved without its owner"
    STANDIN_NOT_COPYABLE,      // "entity cannot be copied on its own"
    STANDIN_UNEXPECTED,        // "unexpected failure"
};

// The text of an error number ("unknown error" for numbers the modeler does not know).
STANDIN_API const char* find_err_mess(err_mess_type error);

// What a modeler error throws inside an API block.
class STANDIN_API acis_exception : public std::exception
{
public:
    explicit acis_exception(err_mess_type error) : m_error(error) {}
    err_mess_type error_number() const { return m_error; }
    const char* what() const noexcept override;

private:
    err_mess_type m_error;
};

// Stops the current operation with a modeler error.
[[noreturn]] STANDIN_API void sys_error(err_mess_type error);

// The details of a failed operation.
class STANDIN_API error_info_base
{
public:
    explicit error_info_base(err_mess_type error) : m_error(error) {}
    virtual ~error_info_base() = default;
    err_mess_type error_number() const { return m_error; }
    virtual const char* error_message() const { return find_err_mess(m_error); }

private:
    err_mess_type m_error;
};

// The result of an API function: ok, or an error number with its details.
class STANDIN_API outcome
{
public:
    outcome(err_mess_type error = 0);
    logical ok() const { return m_error == 0; }
    err_mess_type error_number() const { return m_error; }
    // The details of a failure; null when the outcome is ok.
    error_info_base* get_error_info() const { return m_info.get(); }

private:
    err_mess_type m_error;
    std::shared_ptr<error_info_base> m_info;
};

// Stops the current API block when `result` failed.
STANDIN_API void check_outcome(const outcome& result);

// The bulletin board of an API block: entities made between api_bb_begin and a failed
// api_bb_end are lost again. Boards nest; a succeeded inner board hands its entities to the
// outer one.
STANDIN_API void api_bb_begin();
STANDIN_API void api_bb_end(const outcome& result);

// An API block: declares `outcome result`, runs the statements between the two macros, and
// turns a modeler error (or any other exception) into a failed `result`.
#define API_BEGIN                                                                                  \
    outcome result(0);                                                                             \
    api_bb_begin();                                                                                \
    try {
#define API_END                                                                                    \
    }                                                                                              \
    catch (const acis_exception& error)                                                            \
    {                                                                                              \
        result = outcome(error.error_number());                                                    \
    }                                                                                              \
    catch (...)                                                                                    \
    {                                                                                              \
        result = outcome(STANDIN_UNEXPECTED);                                                      \
    }                                                                                              \
    api_bb_end(result);

// ---- Memory, methods and the restore registry ----------------------------------------------

// The base of every modeler object: its memory comes from the modeler, whichever module frees it.
class STANDIN_API ACIS_OBJECT
{
public:
    static void* operator new(size_t size);
    static void operator delete(void* object);
};

#define ACIS_NEW new
#define ACIS_DELETE delete

// Names a method that an entity class can be given at run time: a name and an argument type.
class STANDIN_API METHOD_ID
{
public:
    METHOD_ID(const char* name, const char* argument_type) : m_key(std::string(name) + '(' + argument_type + ')') {}
    const std::string& key() const { return m_key; }

private:
    std::string m_key;
};

// The arguments of a method call.
class STANDIN_API METHOD_ARGS
{
public:
    virtual ~METHOD_ARGS() = default;
    // The argument type, as in the method's METHOD_ID.
    virtual const char* id() const = 0;
};

typedef logical (*MethodFunction)(void* entity, const METHOD_ARGS& arguments);

// The methods added to one entity class.
class STANDIN_API METHOD_TABLE
{
public:
    logical add(const METHOD_ID& id, MethodFunction method);
    // The method added under `id`, or null.
    MethodFunction find(const METHOD_ID& id) const;

private:
    std::map<std::string, MethodFunction> m_methods;
};

typedef ENTITY* (*restore_function)();

// Registers how one entity class is restored: its type name under its parent's, a restore
// function that makes an empty entity and reads its data (restore_common), and the class's
// type number.
class STANDIN_API restore_def
{
public:
    restore_def(restore_def* parent, const char* name, restore_function restore);
    restore_def(const restore_def&) = delete;
    restore_def& operator=(const restore_def&) = delete;

    int type() const { return m_type; }
    // The type id saved with each entity: the names from this class down to the root, joined
    // with '-' ("Derived-attrib"); the root's own name is not written.
    const std::string& type_id() const { return m_typeId; }

private:
    std::string m_typeId;
    int m_type;
};

// The restore definitions of the modeler's own classes.
STANDIN_API restore_def* ENTITY_subclasses();
STANDIN_API restore_def* ATTRIB_subclasses();
STANDIN_API restore_def* BODY_subclasses();

const int ENTITY_LEVEL = 0;
const int ATTRIB_LEVEL = 1;
const int BODY_LEVEL = 1;

// ---- Entities ---------------------------------------------------------------------------------

// Maps originals to their copies while entities are copied.
typedef std::unordered_map<const ENTITY*, ENTITY*> pointer_map;

// A modeler entity. It lives until lose(), which also loses its attributes.
class STANDIN_API ENTITY : public ACIS_OBJECT
{
public:
    ENTITY();
    ENTITY(const ENTITY&) = delete;
    ENTITY& operator=(const ENTITY&) = delete;

    // The first attribute; the others follow through ATTRIB::next().
    ATTRIB* attrib() const { return m_attrib; }

    virtual const char* type_name() const;
    // The type number of the class at `level` of this entity's hierarchy: 0 (or the class's own
    // level) the most derived class, a lower level a base class, -1 beyond the most derived;
    // a negative level counts up from the most derived class.
    virtual int identity(int level = 0) const;
    virtual int size() const;
    virtual logical is_deepcopyable() const;
    virtual void debug_ent(FILE* file) const;
    virtual void lose();

    // Methods added at run time; call_method answers FALSE for a method no class added.
    static logical add_method(const METHOD_ID& id, MethodFunction method);
    virtual logical call_method(const METHOD_ID& id, const METHOD_ARGS& arguments);

    // Saving: save() writes one record between save_begin() and save_end(): each class level
    // writes its type name (write_id), ENTITY::save_common() writes the type id, and then each
    // level its data, base first.
    virtual void save() const;

    // Copying: copy_scan() lists what is copied with the entity, make_copy() makes the copy of
    // one entity, fixup_copy() connects the copy to the copies of what it refers to.
    virtual void copy_scan(ENTITY_LIST& list) const;
    virtual ENTITY* make_copy() const;
    virtual void fixup_copy(ENTITY* copy, const pointer_map& copies) const;

    // Restoring: a registered restore function makes an empty entity and calls restore_common(),
    // which reads the data of each level, base first.
    void restore_common();

protected:
    virtual ~ENTITY();
    void save_begin() const;
    void save_common() const;
    void save_end() const;
    void copy_common(const ENTITY* from);

private:
    friend class ATTRIB;
    ATTRIB* m_attrib = nullptr;
};

// The actions an attribute asks for when its owner is copied, split, merged, transformed or
// changed.
enum copy_action { CopyLose, CopyKeep, CopyCopy, CopyCustom };
enum split_action { SplitLose, SplitKeep, SplitCopy, SplitCustom };
enum merge_action { MergeLose, MergeKeepKept, MergeKeepLost, MergeKeepAll, MergeCustom };
enum trans_action { TransLose, TransIgnore, TransApply, TransCustom };
enum geometry_changed_action { GeometryChangedLose, GeometryChangedKeep, GeometryChangedCustom };

// An attribute: an entity attached to an owner entity, which loses it with itself. It is
// saved with its owner and restored onto it.
class STANDIN_API ATTRIB : public ENTITY
{
public:
    // Attaches to `owner` (when not null), after its other attributes.
    explicit ATTRIB(ENTITY* owner = nullptr);

    ENTITY* entity() const { return m_owner; }
    ATTRIB* next() const { return m_next; }
    ATTRIB* previous() const { return m_previous; }

    copy_action copy_owner_action() const { return m_copy; }
    void set_copy_owner_action(copy_action action) { m_copy = action; }
    split_action split_owner_action() const { return m_split; }
    void set_split_owner_action(split_action action) { m_split = action; }
    merge_action merge_owner_action() const { return m_merge; }
    void set_merge_owner_action(merge_action action) { m_merge = action; }
    trans_action trans_owner_action() const { return m_trans; }
    void set_trans_owner_action(trans_action action) { m_trans = action; }
    geometry_changed_action reverse_owner_action() const { return m_reverse; }
    void set_reverse_owner_action(geometry_changed_action action) { m_reverse = action; }
    geometry_changed_action rep_owner_geom_action() const { return m_repGeometry; }
    void set_rep_owner_geom_action(geometry_changed_action action) { m_repGeometry = action; }
    geometry_changed_action warp_owner_action() const { return m_warp; }
    void set_warp_owner_action(geometry_changed_action action) { m_warp = action; }
    geometry_changed_action lop_change_owner_action() const { return m_lopChange; }
    void set_lop_change_owner_action(geometry_changed_action action) { m_lopChange = action; }

    const char* type_name() const override;
    int identity(int level = 0) const override;
    int size() const override;
    void debug_ent(FILE* file) const override;
    // Detaches the attribute from its owner and deletes it.
    void lose() override;
    void save() const override;
    ENTITY* make_copy() const override;
    void fixup_copy(ENTITY* copy, const pointer_map& copies) const override;

    // Attaches the attribute to `owner` after its other attributes (detaching it first).
    void attach(ENTITY* owner);
    // Reads what save_common() wrote; the owner is connected once the whole list has been read.
    void restore_common();

protected:
    ~ATTRIB() override;
    // Writes the attribute level and the owner.
    void save_common() const;
    // Copies the owner-change actions; the copy's owner is set by fixup_copy.
    void copy_common(const ATTRIB* from);

private:
    void detach();

    ENTITY* m_owner = nullptr;
    ATTRIB* m_next = nullptr;
    ATTRIB* m_previous = nullptr;
    copy_action m_copy = CopyLose;
    split_action m_split = SplitLose;
    merge_action m_merge = MergeLose;
    trans_action m_trans = TransIgnore;
    geometry_changed_action m_reverse = GeometryChangedLose;
    geometry_changed_action m_repGeometry = GeometryChangedLose;
    geometry_changed_action m_warp = GeometryChangedLose;
    geometry_changed_action m_lopChange = GeometryChangedLose;
};

// A body, with no geometry of its own here: what models are made of, and what carries
// attributes through a save.
class STANDIN_API BODY : public ENTITY
{
public:
    BODY() = default;

    const char* type_name() const override;
    int identity(int level = 0) const override;
    int size() const override;
    void save() const override;
    ENTITY* make_copy() const override;

protected:
    ~BODY() override = default;
};

// ---- Lists ------------------------------------------------------------------------------------

// An ordered set of entities that it does not own: adding one already there does nothing.
class STANDIN_API ENTITY_LIST : public ACIS_OBJECT
{
public:
    // Adds `entity` at the end unless it is null or listed; returns its index (-1 for null).
    int add(ENTITY* entity);
    // The index of `entity`, or -1.
    int lookup(const ENTITY* entity) const;
    int count() const { return static_cast<int>(m_entities.size()); }
    int iteration_count() const { return count(); }
    // The entity at `index`, or null outside the list.
    ENTITY* operator[](int index) const;
    // Iteration: init(), then next() until it answers null.
    void init() const { m_cursor = 0; }
    ENTITY* next() const;
    void clear();

private:
    std::vector<ENTITY*> m_entities;
    std::unordered_map<const ENTITY*, int> m_index;
    mutable int m_cursor = 0;
};

// ---- Files ------------------------------------------------------------------------------------

// Where saved entities go and restored ones come from: typed values, and marks to come back to.
class STANDIN_API FileInterface : public ACIS_OBJECT
{
public:
    virtual ~FileInterface() = default;

    // Longs travel as 32 bits; a value outside that range is a modeler error.
    virtual void write_long(long value) = 0;
    virtual void write_real(double value) = 0;
    virtual void write_string(const std::string& value) = 0;
    virtual void write_raw(const void* data, size_t size) = 0;
    // Reading past the end is a modeler error (STANDIN_END_OF_DATA).
    virtual long read_long() = 0;
    virtual double read_real() = 0;
    // A string longer than `max_length` is a modeler error (STANDIN_CORRUPT).
    virtual std::string read_string(size_t max_length) = 0;
    // Reads up to `size` bytes and answers how many it got.
    virtual size_t read_raw(void* data, size_t size) = 0;

    // The current position, and a move back to one.
    virtual FilePosition set_mark() = 0;
    virtual FilePosition goto_mark(FilePosition position) = 0;
};

// A file interface that holds a summary before the entities.
class STANDIN_API SummaryFileInterface : public FileInterface
{
};

// The binary form: every value as little-endian bytes through four stream primitives that a
// subclass supplies (read, write, set_mark, goto_mark).
class STANDIN_API BinaryFile : public SummaryFileInterface
{
public:
    void write_long(long value) override;
    void write_real(double value) override;
    void write_string(const std::string& value) override;
    void write_raw(const void* data, size_t size) override;
    long read_long() override;
    double read_real() override;
    std::string read_string(size_t max_length) override;
    size_t read_raw(void* data, size_t size) override;

protected:
    // Reads up to `length` bytes and answers how many it read. `swap` asks for the bytes of one
    // value in reverse order (never, here: values are put together byte by byte).
    virtual size_t read(void* buffer, size_t length, logical swap) = 0;
    virtual void write(const void* data, size_t length, logical swap) = 0;

private:
    void read_exactly(void* data, size_t size);
};

// The header information saved with entities.
class STANDIN_API FileInfo : public ACIS_OBJECT
{
public:
    void set_product_id(const char* id) { m_productId = id ? id : ""; }
    void set_units(double units) { m_units = units; }
    const char* product_id() const { return m_productId.c_str(); }
    double units() const { return m_units; }
    void reset() { *this = FileInfo(); }

private:
    std::string m_productId;
    double m_units = -1.0;
};

// Bits of the mask of api_set_file_info.
enum : unsigned long
{
    FileIdent = 1, // the product id
    FileUnits = 2, // the units
};

class AcisOptions;

// Makes the masked parts of `info` the header of later saves.
STANDIN_API outcome api_set_file_info(unsigned long mask, const FileInfo& info);
// The current header information.
STANDIN_API outcome api_get_file_info(FileInfo& info);
// The header information of the last list restored by this thread.
STANDIN_API const FileInfo& restored_file_info();

// Writes the entities of `list`, with their attributes, to `file`. Needs a product id and
// units (api_set_file_info); an attribute cannot be listed without its owner.
STANDIN_API outcome api_save_entity_list_file(FileInterface* file, const ENTITY_LIST& list, AcisOptions* options = nullptr);
// Reads saved entities from `file` (from its current position) and appends them to `list`.
// On failure nothing is appended and nothing made is left.
STANDIN_API outcome api_restore_entity_list_file(FileInterface* file, ENTITY_LIST& list, AcisOptions* options = nullptr);
// Copies an entity that is no attribute, with the attributes whose copy owner action is
// CopyCopy or CopyKeep.
STANDIN_API outcome api_copy_entity(ENTITY* entity, ENTITY*& copy, AcisOptions* options = nullptr);

// Saving and restoring inside save() and restore_common(): values of the record being written
// or read.
STANDIN_API void write_id(const char* name, int level);
STANDIN_API void write_long(long value);
STANDIN_API long read_long();

#include "modeler_standin.hxx"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <limits>
#include <mutex>
#include <new>
#include <unordered_set>

namespace {

// ---- Saved data -------------------------------------------------------------------------------

// What saved data begins and ends with. The first byte is neither a zlib nor a gzip header.
const char savedMagic[] = "SAB-standin-1";
const size_t savedMagicSize = sizeof savedMagic - 1;
const std::string endMarker = "End-of-data";

// Upper bounds of the strings in saved data, so that a length read from the data allocates
// nothing large.
const size_t maxProductIdLength = 4096;
const size_t maxTypeIdLength = 256;

// The record being written by save(): the file, the index of every saved entity, and the type
// names written so far for the current record.
struct SaveContext
{
    FileInterface* file;
    std::unordered_map<const ENTITY*, long> index;
    std::vector<std::string> typeNames;
    bool typeIdWritten = false;
};

// The list being read: the file and the owner index each restored attribute named.
struct RestoreContext
{
    FileInterface* file;
    std::vector<std::pair<ATTRIB*, long>> owners;
};

thread_local SaveContext* t_save = nullptr;
thread_local RestoreContext* t_restore = nullptr;

// Sets a thread's current context for one scope.
template <class Context>
class ContextScope
{
public:
    ContextScope(Context*& current, Context& context) : m_current(current) { m_current = &context; }
    ~ContextScope() { m_current = nullptr; }
    ContextScope(const ContextScope&) = delete;
    ContextScope& operator=(const ContextScope&) = delete;

private:
    Context*& m_current;
};

SaveContext& saving()
{
    if (!t_save)
        sys_error(STANDIN_NO_FILE);
    return *t_save;
}

RestoreContext& restoring()
{
    if (!t_restore)
        sys_error(STANDIN_NO_FILE);
    return *t_restore;
}

// ---- Registries -------------------------------------------------------------------------------

std::mutex& registryMutex()
{
    static std::mutex mutex;
    return mutex;
}

// Restore functions by type id.
std::map<std::string, restore_function>& restoreFunctions()
{
    static std::map<std::string, restore_function> functions;
    return functions;
}

restore_function restoreFunction(const std::string& typeId)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    const auto it = restoreFunctions().find(typeId);
    return it == restoreFunctions().end() ? nullptr : it->second;
}

FileInfo& currentFileInfo()
{
    static FileInfo info;
    return info;
}

thread_local FileInfo t_restoredInfo;

// The bulletin boards of the open API blocks of this thread: the entities made in each.
thread_local std::vector<std::unordered_set<ENTITY*>> t_boards;

METHOD_TABLE& entityMethods()
{
    static METHOD_TABLE table;
    return table;
}

// The type number of a class at `level` of its hierarchy, as identity() answers it, for a class
// of level `classLevel` and type `type` whose base answers `base`.
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

bool isAttribute(const ENTITY* entity)
{
    return dynamic_cast<const ATTRIB*>(entity) != nullptr;
}

} // namespace

// ---- Errors and outcomes ------------------------------------------------------------------

const char* find_err_mess(err_mess_type error)
{
    switch (error) {
    case STANDIN_END_OF_DATA: return "unexpected end of saved data";
    case STANDIN_NOT_SAVED_LIST: return "data is not a saved entity list";
    case STANDIN_UNKNOWN_TYPE: return "unknown entity type in saved data";
    case STANDIN_BAD_REFERENCE: return "invalid entity reference in saved data";
    case STANDIN_CORRUPT: return "corrupt saved data";
    case STANDIN_NO_FILE_INFO: return "product id and units must be set before saving";
    case STANDIN_OUT_OF_RANGE: return "value out of range for saved data";
    case STANDIN_NO_FILE: return "no file interface";
    case STANDIN_ATTRIB_ALONE: return "attribute saved without its owner";
    case STANDIN_NOT_COPYABLE: return "entity cannot be copied on its own";
    case STANDIN_UNEXPECTED: return "unexpected failure";
    default: return "unknown error";
    }
}

const char* acis_exception::what() const noexcept
{
    return find_err_mess(m_error);
}

void sys_error(err_mess_type error)
{
    throw acis_exception(error);
}

outcome::outcome(err_mess_type error) : m_error(error)
{
    if (error != 0)
        m_info = std::make_shared<error_info_base>(error);
}

void check_outcome(const outcome& result)
{
    if (!result.ok())
        sys_error(result.error_number());
}

void api_bb_begin()
{
    t_boards.emplace_back();
}

void api_bb_end(const outcome& result)
{
    if (t_boards.empty())
        return;
    if (!result.ok()) {
        // Losing an entity loses its attributes, which leave the board as they go.
        while (!t_boards.back().empty()) {
            ENTITY* entity = *t_boards.back().begin();
            t_boards.back().erase(entity);
            entity->lose();
        }
    }
    std::unordered_set<ENTITY*> made = std::move(t_boards.back());
    t_boards.pop_back();
    if (!t_boards.empty())
        t_boards.back().insert(made.begin(), made.end());
}

// ---- Memory, methods and the restore registry ----------------------------------------------

void* ACIS_OBJECT::operator new(size_t size)
{
    return ::operator new(size);
}

void ACIS_OBJECT::operator delete(void* object)
{
    ::operator delete(object);
}

logical METHOD_TABLE::add(const METHOD_ID& id, MethodFunction method)
{
    if (!method)
        return 0;
    m_methods[id.key()] = method;
    return 1;
}

MethodFunction METHOD_TABLE::find(const METHOD_ID& id) const
{
    const auto it = m_methods.find(id.key());
    return it == m_methods.end() ? nullptr : it->second;
}

restore_def::restore_def(restore_def* parent, const char* name, restore_function restore)
{
    static std::atomic<int> lastType{0};
    m_type = ++lastType;
    if (!parent)
        return; // the root: nothing is saved under its name
    m_typeId = parent->m_typeId.empty() ? name : std::string(name) + '-' + parent->m_typeId;
    const std::lock_guard<std::mutex> lock(registryMutex());
    restoreFunctions()[m_typeId] = restore;
}

namespace {

// The restore function of class T: an empty entity that reads its data from the file.
template <class T>
ENTITY* restoreNew()
{
    T* entity = ACIS_NEW T;
    entity->restore_common();
    return entity;
}

// Every class registered when the library is loaded.
[[maybe_unused]] const restore_def* const registered[] = {ATTRIB_subclasses(), BODY_subclasses()};

} // namespace

restore_def* ENTITY_subclasses()
{
    static restore_def root(nullptr, "entity", nullptr);
    return &root;
}

restore_def* ATTRIB_subclasses()
{
    static restore_def def(ENTITY_subclasses(), "attrib", restoreNew<ATTRIB>);
    return &def;
}

restore_def* BODY_subclasses()
{
    static restore_def def(ENTITY_subclasses(), "body", restoreNew<BODY>);
    return &def;
}

// ---- ENTITY -------------------------------------------------------------------------------------

ENTITY::ENTITY()
{
    if (!t_boards.empty())
        t_boards.back().insert(this);
}

ENTITY::~ENTITY()
{
    while (m_attrib)
        m_attrib->lose();
    for (auto& board : t_boards)
        board.erase(this);
}

const char* ENTITY::type_name() const
{
    return "entity";
}

int ENTITY::identity(int level) const
{
    return level == ENTITY_LEVEL ? ENTITY_subclasses()->type() : -1;
}

int ENTITY::size() const
{
    return sizeof(ENTITY);
}

logical ENTITY::is_deepcopyable() const
{
    return 1;
}

void ENTITY::debug_ent(FILE* file) const
{
    std::fprintf(file, "%s\n", type_name());
}

void ENTITY::lose()
{
    delete this;
}

logical ENTITY::add_method(const METHOD_ID& id, MethodFunction method)
{
    return entityMethods().add(id, method);
}

logical ENTITY::call_method(const METHOD_ID& id, const METHOD_ARGS& arguments)
{
    const MethodFunction method = entityMethods().find(id);
    return method ? method(this, arguments) : 0;
}

void ENTITY::save() const
{
    save_begin();
    save_common();
    save_end();
}

void ENTITY::save_begin() const
{
    SaveContext& context = saving();
    context.typeNames.clear();
    context.typeIdWritten = false;
}

void ENTITY::save_common() const
{
    SaveContext& context = saving();
    std::string typeId;
    for (const std::string& name : context.typeNames)
        typeId += (typeId.empty() ? "" : "-") + name;
    context.file->write_string(typeId);
    context.typeIdWritten = true;
}

void ENTITY::save_end() const
{
    if (!saving().typeIdWritten)
        sys_error(STANDIN_CORRUPT);
}

void ENTITY::restore_common()
{
}

void ENTITY::copy_scan(ENTITY_LIST& list) const
{
    for (ATTRIB* attribute = m_attrib; attribute; attribute = attribute->next()) {
        if (attribute->copy_owner_action() == CopyCopy || attribute->copy_owner_action() == CopyKeep)
            list.add(attribute);
    }
}

ENTITY* ENTITY::make_copy() const
{
    ENTITY* copy = ACIS_NEW ENTITY;
    copy->copy_common(this);
    return copy;
}

void ENTITY::fixup_copy(ENTITY*, const pointer_map&) const
{
}

void ENTITY::copy_common(const ENTITY*)
{
}

// ---- ATTRIB -------------------------------------------------------------------------------------

ATTRIB::ATTRIB(ENTITY* owner)
{
    attach(owner);
}

ATTRIB::~ATTRIB()
{
    detach();
}

void ATTRIB::attach(ENTITY* owner)
{
    detach();
    if (!owner)
        return;
    m_owner = owner;
    if (!owner->m_attrib) {
        owner->m_attrib = this;
        return;
    }
    ATTRIB* last = owner->m_attrib;
    while (last->m_next)
        last = last->m_next;
    last->m_next = this;
    m_previous = last;
}

void ATTRIB::detach()
{
    if (!m_owner)
        return;
    if (m_previous)
        m_previous->m_next = m_next;
    else
        m_owner->m_attrib = m_next;
    if (m_next)
        m_next->m_previous = m_previous;
    m_owner = nullptr;
    m_next = nullptr;
    m_previous = nullptr;
}

const char* ATTRIB::type_name() const
{
    return "attrib";
}

int ATTRIB::identity(int level) const
{
    return identityAt(level, ATTRIB_LEVEL, ATTRIB_subclasses()->type(), [this](int at) { return ENTITY::identity(at); });
}

int ATTRIB::size() const
{
    return sizeof(ATTRIB);
}

void ATTRIB::debug_ent(FILE* file) const
{
    ENTITY::debug_ent(file);
    std::fprintf(file, "owner: %s\n", m_owner ? m_owner->type_name() : "none");
}

void ATTRIB::lose()
{
    detach();
    ENTITY::lose();
}

void ATTRIB::save() const
{
    save_begin();
    save_common();
    save_end();
}

void ATTRIB::save_common() const
{
    SaveContext& context = saving();
    write_id("attrib", ATTRIB_LEVEL);
    ENTITY::save_common();
    const auto owner = context.index.find(m_owner);
    if (owner == context.index.end())
        sys_error(STANDIN_ATTRIB_ALONE);
    context.file->write_long(owner->second);
}

void ATTRIB::restore_common()
{
    ENTITY::restore_common();
    RestoreContext& context = restoring();
    context.owners.emplace_back(this, context.file->read_long());
}

ENTITY* ATTRIB::make_copy() const
{
    ATTRIB* copy = ACIS_NEW ATTRIB;
    copy->copy_common(this);
    return copy;
}

void ATTRIB::copy_common(const ATTRIB* from)
{
    ENTITY::copy_common(from);
    m_copy = from->m_copy;
    m_split = from->m_split;
    m_merge = from->m_merge;
    m_trans = from->m_trans;
    m_reverse = from->m_reverse;
    m_repGeometry = from->m_repGeometry;
    m_warp = from->m_warp;
    m_lopChange = from->m_lopChange;
}

void ATTRIB::fixup_copy(ENTITY* copy, const pointer_map& copies) const
{
    const auto owner = copies.find(m_owner);
    if (owner == copies.end())
        copy->lose();
    else
        static_cast<ATTRIB*>(copy)->attach(owner->second);
}

// ---- BODY ---------------------------------------------------------------------------------------

const char* BODY::type_name() const
{
    return "body";
}

int BODY::identity(int level) const
{
    return identityAt(level, BODY_LEVEL, BODY_subclasses()->type(), [this](int at) { return ENTITY::identity(at); });
}

int BODY::size() const
{
    return sizeof(BODY);
}

void BODY::save() const
{
    save_begin();
    write_id("body", BODY_LEVEL);
    save_common();
    save_end();
}

ENTITY* BODY::make_copy() const
{
    BODY* copy = ACIS_NEW BODY;
    copy->copy_common(this);
    return copy;
}

// ---- ENTITY_LIST --------------------------------------------------------------------------------

int ENTITY_LIST::add(ENTITY* entity)
{
    if (!entity)
        return -1;
    const auto [it, added] = m_index.emplace(entity, count());
    if (added)
        m_entities.push_back(entity);
    return it->second;
}

int ENTITY_LIST::lookup(const ENTITY* entity) const
{
    const auto it = m_index.find(entity);
    return it == m_index.end() ? -1 : it->second;
}

ENTITY* ENTITY_LIST::operator[](int index) const
{
    return index >= 0 && index < count() ? m_entities[static_cast<size_t>(index)] : nullptr;
}

ENTITY* ENTITY_LIST::next() const
{
    return (*this)[m_cursor < count() ? m_cursor++ : count()];
}

void ENTITY_LIST::clear()
{
    m_entities.clear();
    m_index.clear();
    m_cursor = 0;
}

// ---- BinaryFile -------------------------------------------------------------------------------

void BinaryFile::write_long(long value)
{
    if (value < std::numeric_limits<int32_t>::min() || value > std::numeric_limits<int32_t>::max())
        sys_error(STANDIN_OUT_OF_RANGE);
    const auto bits = static_cast<uint32_t>(value);
    const unsigned char bytes[4] = {static_cast<unsigned char>(bits), static_cast<unsigned char>(bits >> 8),
                                    static_cast<unsigned char>(bits >> 16), static_cast<unsigned char>(bits >> 24)};
    write(bytes, sizeof bytes, 0);
}

void BinaryFile::write_real(double value)
{
    uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    unsigned char bytes[8];
    for (unsigned char& byte : bytes) {
        byte = static_cast<unsigned char>(bits);
        bits >>= 8;
    }
    write(bytes, sizeof bytes, 0);
}

void BinaryFile::write_string(const std::string& value)
{
    if (value.size() > static_cast<size_t>(std::numeric_limits<int32_t>::max()))
        sys_error(STANDIN_OUT_OF_RANGE);
    write_long(static_cast<long>(value.size()));
    write(value.data(), value.size(), 0);
}

void BinaryFile::write_raw(const void* data, size_t size)
{
    write(data, size, 0);
}

void BinaryFile::read_exactly(void* data, size_t size)
{
    if (read(data, size, 0) != size)
        sys_error(STANDIN_END_OF_DATA);
}

long BinaryFile::read_long()
{
    unsigned char bytes[4];
    read_exactly(bytes, sizeof bytes);
    const uint32_t bits = bytes[0] | (uint32_t(bytes[1]) << 8) | (uint32_t(bytes[2]) << 16) | (uint32_t(bytes[3]) << 24);
    return static_cast<int32_t>(bits);
}

double BinaryFile::read_real()
{
    unsigned char bytes[8];
    read_exactly(bytes, sizeof bytes);
    uint64_t bits = 0;
    for (int i = 7; i >= 0; --i)
        bits = (bits << 8) | bytes[i];
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

std::string BinaryFile::read_string(size_t max_length)
{
    const long length = read_long();
    if (length < 0 || static_cast<unsigned long>(length) > max_length)
        sys_error(STANDIN_CORRUPT);
    std::string value(static_cast<size_t>(length), '\0');
    read_exactly(&value[0], value.size());
    return value;
}

size_t BinaryFile::read_raw(void* data, size_t size)
{
    return read(data, size, 0);
}

// ---- Saving and restoring -----------------------------------------------------------------------

outcome api_set_file_info(unsigned long mask, const FileInfo& info)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    if (mask & FileIdent)
        currentFileInfo().set_product_id(info.product_id());
    if (mask & FileUnits)
        currentFileInfo().set_units(info.units());
    return outcome();
}

outcome api_get_file_info(FileInfo& info)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    info = currentFileInfo();
    return outcome();
}

const FileInfo& restored_file_info()
{
    return t_restoredInfo;
}

void write_id(const char* name, int)
{
    saving().typeNames.emplace_back(name);
}

void write_long(long value)
{
    saving().file->write_long(value);
}

long read_long()
{
    return restoring().file->read_long();
}

namespace {

// The header, one record per entity (the listed entities, then the attributes of each), the end
// marker. The record count is filled in once the records are written.
void saveList(FileInterface* file, const ENTITY_LIST& list)
{
    if (!file)
        sys_error(STANDIN_NO_FILE);
    FileInfo info;
    api_get_file_info(info);
    if (!*info.product_id() || info.units() <= 0.0)
        sys_error(STANDIN_NO_FILE_INFO);

    SaveContext context{file, {}, {}, false};
    std::vector<const ENTITY*> records;
    for (int i = 0; i < list.count(); ++i) {
        if (isAttribute(list[i]))
            sys_error(STANDIN_ATTRIB_ALONE);
        records.push_back(list[i]);
    }
    const size_t listed = records.size();
    for (size_t i = 0; i < listed; ++i) {
        for (ATTRIB* attribute = records[i]->attrib(); attribute; attribute = attribute->next())
            records.push_back(attribute);
    }
    for (size_t i = 0; i < records.size(); ++i)
        context.index[records[i]] = static_cast<long>(i);

    file->write_raw(savedMagic, savedMagicSize);
    file->write_string(info.product_id());
    file->write_real(info.units());
    const FilePosition countMark = file->set_mark();
    file->write_long(0);
    file->write_long(static_cast<long>(listed));
    long saved = 0;
    {
        const ContextScope<SaveContext> scope(t_save, context);
        for (const ENTITY* entity : records) {
            entity->save();
            ++saved;
        }
    }
    file->write_string(endMarker);
    const FilePosition end = file->set_mark();
    file->goto_mark(countMark);
    file->write_long(saved);
    file->goto_mark(end);
}

void readMagic(FileInterface& file)
{
    char bytes[savedMagicSize];
    const size_t count = file.read_raw(bytes, savedMagicSize);
    if (std::memcmp(bytes, savedMagic, count) != 0)
        sys_error(STANDIN_NOT_SAVED_LIST);
    if (count != savedMagicSize)
        sys_error(STANDIN_END_OF_DATA);
}

// Reads what saveList wrote. Entities are made as their records are read (each from bytes that
// are there); the listed entities come first, then attributes, each owned by a listed entity.
void restoreList(FileInterface* file, ENTITY_LIST& list)
{
    if (!file)
        sys_error(STANDIN_NO_FILE);
    RestoreContext context{file, {}};
    readMagic(*file);
    FileInfo info;
    info.set_product_id(file->read_string(maxProductIdLength).c_str());
    info.set_units(file->read_real());
    const long count = file->read_long();
    const long listed = file->read_long();
    if (count < 0 || listed < 0 || listed > count)
        sys_error(STANDIN_CORRUPT);

    std::vector<ENTITY*> records;
    {
        const ContextScope<RestoreContext> scope(t_restore, context);
        for (long i = 0; i < count; ++i) {
            const restore_function restore = restoreFunction(file->read_string(maxTypeIdLength));
            if (!restore)
                sys_error(STANDIN_UNKNOWN_TYPE);
            ENTITY* entity = restore();
            if (!entity)
                sys_error(STANDIN_CORRUPT);
            records.push_back(entity);
            if (isAttribute(entity) != (i >= listed))
                sys_error(STANDIN_CORRUPT);
        }
    }
    if (file->read_string(maxTypeIdLength) != endMarker || context.owners.size() != static_cast<size_t>(count - listed))
        sys_error(STANDIN_CORRUPT);
    for (const auto& [attribute, owner] : context.owners) {
        if (owner < 0 || owner >= listed)
            sys_error(STANDIN_BAD_REFERENCE);
        attribute->attach(records[static_cast<size_t>(owner)]);
    }
    for (long i = 0; i < listed; ++i)
        list.add(records[static_cast<size_t>(i)]);
    t_restoredInfo = info;
}

} // namespace

outcome api_save_entity_list_file(FileInterface* file, const ENTITY_LIST& list, AcisOptions*)
{
    API_BEGIN
        saveList(file, list);
    API_END
    return result;
}

outcome api_restore_entity_list_file(FileInterface* file, ENTITY_LIST& list, AcisOptions*)
{
    API_BEGIN
        restoreList(file, list);
    API_END
    return result;
}

outcome api_copy_entity(ENTITY* entity, ENTITY*& copy, AcisOptions*)
{
    API_BEGIN
        if (!entity || isAttribute(entity))
            sys_error(STANDIN_NOT_COPYABLE);
        ENTITY_LIST scanned;
        scanned.add(entity);
        entity->copy_scan(scanned);
        pointer_map copies;
        for (int i = 0; i < scanned.count(); ++i)
            copies[scanned[i]] = scanned[i]->make_copy();
        for (int i = 0; i < scanned.count(); ++i)
            scanned[i]->fixup_copy(copies[scanned[i]], copies);
        copy = copies[entity];
    API_END
    return result;
}

#pragma once

/// @file
/// Exchange objects: the units of data handed between the host and the translator, the
/// registry that re-creates them from their type names, and the envelope one object travels in.

#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_json.h>
#include <mp/mp_serializable.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace hrm {

/// An object that travels in an envelope (ExchangeObjectWrapper). Small objects travel inside
/// the envelope as JSON; binary() objects travel as binary JSON in a named shared-memory
/// buffer whose name, the object's source, is all the envelope carries.
class HRM_API IExchangeObject : public IJsonObject
{
public:
    ~IExchangeObject() override = default;

    /// The type name, the same string as the class's static objName().
    virtual const std::wstring& objectName() const = 0;
    /// A new object of the same class: default-constructed, or a copy where the class says so.
    virtual std::shared_ptr<IExchangeObject> clone() const = 0;
    /// Whether the object travels in shared memory rather than inside its envelope.
    virtual bool binary() const { return false; }
    /// Whether its shared-memory payload is gzip-compressed (as Compressor::compression() says).
    virtual bool compress() const { return false; }
    /// Whether load() has filled the object from its source. Objects read inline stay false.
    virtual bool isLoaded() const { return m_loaded; }
    /// Fills a binary object from the shared-memory buffer named by its source. Does nothing
    /// when the object is already loaded, has no source or is not binary. The payload may be
    /// compressed or raw. Failures (a missing buffer, corrupt data, a payload larger than
    /// Compressor::decompressedSizeLimit() raw or inflated, one that decodes beyond
    /// JsonBinaryIO::memoryBudget()) throw, and the object stays unloaded. When the object
    /// removes its source after loading, the buffer it opened is removed once read, whether the
    /// load then succeeds or throws, if it is this user's own (mp::SharedBuffer::removeOwned).
    virtual void load();

    /// Names the shared-memory buffer that holds the object's binary data.
    void setSource(const std::wstring& source) { m_source = source; }
    /// The shared-memory buffer that holds the object's binary data; empty when there is none.
    const std::wstring& source() const { return m_source; }
    /// Whether load() removes the buffer it reads. Off for an object whose source the caller
    /// sets; an object announced by a wrapper takes the wrapper's setRemoveAfterLoading.
    void setRemoveSourceAfterLoading(bool remove) { m_removeSource = remove; }
    /// Whether load() removes the buffer it reads (see setRemoveSourceAfterLoading).
    bool removesSourceAfterLoading() const { return m_removeSource; }

    /// A new random (version 4) UUID: 36 characters, lowercase hexadecimal in 8-4-4-4-12 groups.
    static std::wstring generateUUID();

protected:
    IExchangeObject() = default;
    IExchangeObject(const IExchangeObject&) = default;
    IExchangeObject(IExchangeObject&&) = default;
    /// Copying is for the derived classes.
    IExchangeObject& operator=(const IExchangeObject&) = default;
    IExchangeObject& operator=(IExchangeObject&&) = default;

    std::wstring m_source; ///< name of the shared-memory buffer holding the binary data
    bool m_loaded = false; ///< set once load() has read the source
    bool m_removeSource = false; ///< load() removes the buffer it has read
};

/// How an exchange object class makes the fresh object the registry hands out for its type
/// name: a default-constructed object, or a copy of the prototype.
enum class Cloning
{
    Fresh,
    Copy,
};

/// Gives a concrete exchange object class its type-name boilerplate. The class derives from
/// ExchangeObjectType<Itself, Base> and names its type once:
///
///    class HRM_API ExcMessage : public ExchangeObjectType<ExcMessage, ExcMessageBase>
///    {
///    public:
///        static constexpr wchar_t s_objectName[] = L"exc_message";
///        using ExchangeObjectType::ExchangeObjectType;
///    };
///
/// The library's own types are listed in its registry's source; a type of the application's
/// registers a prototype with HRM_REGISTER_EXCHANGE_OBJECT(T).
template <class Derived, class Base = IExchangeObject, Cloning cloning = Cloning::Fresh>
class ExchangeObjectType : public Base
{
public:
    using Base::Base;

    /// The type name of the class's objects.
    static const std::wstring& objName()
    {
        static const std::wstring name(Derived::s_objectName);
        return name;
    }
    /// objName().
    const std::wstring& objectName() const override { return objName(); }
    /// A fresh object, or a copy of this one when the class clones by copy.
    std::shared_ptr<IExchangeObject> clone() const override
    {
        if constexpr (cloning == Cloning::Copy)
            return std::make_shared<Derived>(static_cast<const Derived&>(*this));
        else
            return std::make_shared<Derived>();
    }
};

/// The process-wide map from type name to a registered prototype, ordered by UTF-16 code
/// units. It holds the library's own types from its first use on (they are listed in one
/// place, so that a static build registers every one) and the application's types registered
/// during static initialisation; read-only afterwards, it has no lock. It does not own the
/// application's prototypes.
class HRM_API ExchangeObjectRegistry
{
public:
    /// The registry of the process, made on first use.
    static ExchangeObjectRegistry& instance();

    ExchangeObjectRegistry(const ExchangeObjectRegistry&) = delete;
    ExchangeObjectRegistry& operator=(const ExchangeObjectRegistry&) = delete;

    /// Registers `prototype` under its objectName(), replacing an earlier one of that name.
    /// Null is ignored.
    void add(IExchangeObject* prototype);
    /// Erases the entry of the prototype's objectName(), whichever prototype it holds. Null is
    /// ignored.
    void remove(IExchangeObject* prototype);
    /// A fresh object of the named type (the prototype's clone()), or null for an unknown name.
    std::shared_ptr<IExchangeObject> get(const std::wstring& name) const;
    /// The registered type names, in the registry's order.
    std::vector<std::wstring> names() const;

private:
    ExchangeObjectRegistry();
    ~ExchangeObjectRegistry();

    class Prototypes;
    std::unique_ptr<Prototypes> m_prototypes;
};

/// A prototype of T that registers itself for its lifetime. Define one static instance per
/// exchange object class (HRM_REGISTER_EXCHANGE_OBJECT).
template <class T>
class StaticExchangeObject : public T
{
public:
    StaticExchangeObject() { ExchangeObjectRegistry::instance().add(this); }
    ~StaticExchangeObject() override { ExchangeObjectRegistry::instance().remove(this); }
    StaticExchangeObject(const StaticExchangeObject&) = delete;
    StaticExchangeObject& operator=(const StaticExchangeObject&) = delete;
};

/// One exchange object in its envelope: {"exchange_object_name": type name, "binary": true
/// (binary objects only), "exchange_object_data": the object's JSON, or the name of the
/// shared-memory buffer holding a binary object}. Written compact.
///
/// Shared-memory buffers: the writer creates one for each binary object it writes, and the
/// reader removes it once it has loaded it. Only names of the form the writer makes (canonical
/// UUIDs: 36 characters, lowercase hexadecimal digits in 8-4-4-4-12 groups) are loaded or
/// removed; only a buffer that the reader has opened itself and that is this user's own is
/// removed (mp::SharedBuffer::removeOwned).
class HRM_API ExchangeObjectWrapper : public mp::ISerializable
{
public:
    ExchangeObjectWrapper() = default;

    /// Wraps `object` for writing.
    void set(const std::shared_ptr<IExchangeObject>& object) { m_pObject = object; }
    /// The object of the last set() or readObject() (null after reading an unknown type).
    std::shared_ptr<IExchangeObject> get() const { return m_pObject; }
    /// The object as a T: null when there is none or it is of another type,
    /// `if (auto structure = wrapper.get<ExcProductStructure>())`.
    template <class T>
    std::shared_ptr<T> get() const
    {
        static_assert(std::is_base_of_v<IExchangeObject, T>, "get<T>(): T is an exchange object class");
        return std::dynamic_pointer_cast<T>(m_pObject);
    }
    /// With delayed loading, reading a binary object only records its source; the caller
    /// calls load().
    void setDelayedLoading(bool delayed) { m_delayedLoading = delayed; }
    /// On by default: the reading side removes the shared-memory buffer of a binary object once
    /// it has loaded it (also when the load throws: a corrupt payload is of no more use), so that
    /// a long-running reader does not fill shared memory. With delayed loading the announced
    /// object removes it in its load() (IExchangeObject::setRemoveSourceAfterLoading). A buffer
    /// announced on a path that will not load it (a type this reader does not know, "binary"
    /// for a type that travels inline) is removed at once. A host that forwards envelopes to a
    /// second reader turns this off, and the buffers stay as the writer left them.
    void setRemoveAfterLoading(bool remove) { m_removeAfterLoading = remove; }

    /// Writes the envelope. A binary object is encoded (and compressed when compress()) into a
    /// new shared-memory buffer, created exclusively under a new UUID, that stays after the call
    /// for the reader; createdBuffer() names it. Throws std::invalid_argument when there is no
    /// object, and std::runtime_error("Cannot write object into json document") when the
    /// stream has failed before or while the envelope is written; the new buffer is then
    /// removed again.
    void writeObject(std::wostream& out) const override;
    /// The buffer that the last writeObject created and left for the reader; empty when it
    /// created none (an inline object) or threw. A writer whose envelope never reaches its
    /// reader removes it: mp::SharedBuffer<char>::remove(wrapper.createdBuffer()).
    const std::wstring& createdBuffer() const { return m_createdBuffer; }
    /// Reads an envelope and creates the object of the named type from the registry. An
    /// unknown or missing type name leaves no object and is not an error. A binary object whose
    /// data is not a buffer name of the writer's form is logged and left unloaded ("should have
    /// UUID"). Throws std::invalid_argument("Invalid json document") when the text is not a JSON
    /// object.
    void readObject(std::wistream& in) override;

    /// Whether `name` has the form of the buffer names writers make (a canonical UUID: 36
    /// characters of lowercase hexadecimal digits in 8-4-4-4-12 groups): the only names a reader
    /// loads or removes.
    static bool isBufferName(const std::wstring& name);

private:
    void discard(const std::wstring& buffer) const;

    std::shared_ptr<IExchangeObject> m_pObject;
    bool m_delayedLoading = false;
    bool m_removeAfterLoading = true;
    mutable std::wstring m_createdBuffer;
};

/// The envelope text of `object`, as ExchangeObjectWrapper::writeObject writes it: a binary
/// object is parked in a new shared-memory buffer for the reader, and `createdBuffer`, when
/// given, receives that buffer's name (empty for an inline object), so that a writer whose
/// envelope never reaches its reader can remove it (mp::SharedBuffer<char>::remove).
HRM_API std::wstring toEnvelope(const IExchangeObject& object, std::wstring* createdBuffer = nullptr);

/// Reads an envelope text as ExchangeObjectWrapper::readObject does, with the wrapper's defaults
/// (a binary object is loaded at once and its buffer removed), and returns the wrapper holding
/// the object: `fromEnvelope(text).get<ExcProductStructure>()`.
HRM_API ExchangeObjectWrapper fromEnvelope(const std::wstring& envelope);

// ---- Status objects: messages, log lines, progress, finished stages, results ---------------

/// A free text that travels as {"message": text}.
class HRM_API ExcMessageBase : public IExchangeObject
{
public:
    ExcMessageBase() = default;
    explicit ExcMessageBase(const std::wstring& message) : m_message(message) {}
    explicit ExcMessageBase(const wchar_t* message) : m_message(message ? message : L"") {}

    /// The text.
    const std::wstring& message() const { return m_message; }
    void setMessage(const std::wstring& message) { m_message = message; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether the texts are equal.
    bool operator==(const ExcMessageBase& other) const { return m_message == other.m_message; }
    bool operator!=(const ExcMessageBase& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_message;
};

/// A message for the user.
class HRM_API ExcMessage : public ExchangeObjectType<ExcMessage, ExcMessageBase>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_message";
    using ExchangeObjectType::ExchangeObjectType;
};

/// A line for the host's log.
class HRM_API ExcLog : public ExchangeObjectType<ExcLog, ExcMessageBase>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_log";
    using ExchangeObjectType::ExchangeObjectType;
};

/// How far the running stage has got: {"progress", "progress_max", "pulse", "stage"}. With
/// pulse, the amount is unknown and the receiver shows activity instead of a fraction.
class HRM_API ExcProgress : public ExchangeObjectType<ExcProgress>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_progress";

    /// How much of the stage is done, out of progressMax().
    int32_t progress() const { return m_progress; }
    void setProgress(int32_t progress) { m_progress = progress; }
    /// The amount that means the stage is done (100 by default).
    int32_t progressMax() const { return m_progressMax; }
    void setProgressMax(int32_t progressMax) { m_progressMax = progressMax; }
    /// Whether the amount is unknown, so that the receiver shows activity only.
    bool pulse() const { return m_pulse; }
    void setPulse(bool pulse) { m_pulse = pulse; }
    /// The name of the running stage, for the user.
    const std::wstring& stage() const { return m_stage; }
    void setStage(const std::wstring& stage) { m_stage = stage; }

    /// Compares progress, maximum and stage; two reports that differ only in pulse are equal.
    bool operator==(const ExcProgress& other) const;
    bool operator!=(const ExcProgress& other) const { return !(*this == other); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    HRM_MEMBER_LIST;

    int32_t m_progress = 0;
    int32_t m_progressMax = 100;
    bool m_pulse = false;
    std::wstring m_stage;
};

/// The news that one part of the output is complete. Travels as a bare JSON string.
class HRM_API ExcStageFinished : public ExchangeObjectType<ExcStageFinished>
{
public:
    /// The parts of the output. Travels as "unknown", "product_structure", "root_visualization", "visualization", "root_mechanical", "mechanical", "visu_and_mech".
    enum class EStage : int32_t
    {
        Unknown = 0,
        ProductStructure = 1,
        RootVisualization = 2,
        Visualization = 3,
        RootMechanical = 4,
        Mechanical = 5,
        VisuAndMech = 6,
    };

    static constexpr wchar_t s_objectName[] = L"exc_stage_finished";

    ExcStageFinished() = default;
    explicit ExcStageFinished(EStage stage) : m_stage(stage) {}

    /// The part that is complete.
    EStage stage() const { return m_stage; }
    void setStage(EStage stage) { m_stage = stage; }

    /// A value outside the enumeration writes "unknown"; an unknown string reads as
    /// Mechanical (the alphabetically first word), as the enumeration rules say.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether the stages are equal.
    bool operator==(const ExcStageFinished& other) const { return m_stage == other.m_stage; }
    bool operator!=(const ExcStageFinished& other) const { return !(*this == other); }

private:
    EStage m_stage = EStage::Unknown;
};

/// The outcome of a command, a document of its own:
/// {"code": word, "message": text (only when not empty), "is_finished": flag}, written pretty.
class HRM_API Result : public mp::ISerializable
{
public:
    /// How the command ended. Travels as "unknown", "ok", "warning", "error", "interrupted".
    enum class ECode : int32_t
    {
        Unknown = 0,
        Ok = 1,
        Warning = 2,
        Error = 3,
        Interrupted = 4,
    };

    /// How the command ended.
    ECode code() const { return m_code; }
    void setCode(ECode code) { m_code = code; }
    /// A text for the user; empty for none.
    const std::wstring& message() const { return m_message; }
    void setMessage(const std::wstring& message) { m_message = message; }
    /// Whether this is the last result of the command.
    bool isFinished() const { return m_finished; }
    void setFinished(bool finished) { m_finished = finished; }

    void writeObject(std::wostream& out) const override;
    /// Throws std::invalid_argument with "Invalid json document" for text that is not a JSON
    /// object and "Json document has no result code." without "code". A code that is not one
    /// of the known words reads as Unknown; a missing "message" or "is_finished" keeps its
    /// field, and "is_finished" is true only for the literal true.
    void readObject(std::wistream& in) override;

    /// Whether code, message and flag are equal.
    bool operator==(const Result& other) const
    {
        return m_code == other.m_code && m_message == other.m_message && m_finished == other.m_finished;
    }
    bool operator!=(const Result& other) const { return !(*this == other); }

private:
    ECode m_code = ECode::Ok;
    std::wstring m_message;
    bool m_finished = false;
};

// ---- Legacy component maps ------------------------------------------------------------------

/// A database handle of the host's drawing database, ordered numerically.
using OdDbHandle = uint64_t;

/// The instance name of each component: [{"component_handle": handle, "component_name": name}, ...]
/// in ascending handle order.
class HRM_API LegacyComponentInstanceNames : public ExchangeObjectType<LegacyComponentInstanceNames>
{
public:
    /// The name of each component by its handle.
    using Map = std::map<OdDbHandle, std::wstring>;

    static constexpr wchar_t s_objectName[] = L"legacy_component_instance_names";

    /// The names, by handle.
    const Map& map() const { return m_map; }
    void setMap(Map map) { m_map = std::move(map); }
    /// Sets the name of `handle`, replacing an earlier one. Always true.
    bool addInstanceName(const OdDbHandle& handle, const std::wstring& name);
    /// Adds the entries of `other` whose handles are not yet present.
    void merge(const LegacyComponentInstanceNames& other);

    /// Whether the maps are equal.
    bool operator==(const LegacyComponentInstanceNames& other) const { return m_map == other.m_map; }
    bool operator!=(const LegacyComponentInstanceNames& other) const { return !(*this == other); }

    /// Throws std::invalid_argument when `value` is not an array; skips malformed elements.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    Map m_map;
};

/// The physical material of each component:
/// [{"component_handle": handle, "component_material": {...}}, ...] in ascending handle order.
class HRM_API LegacyMaterialMap : public ExchangeObjectType<LegacyMaterialMap>
{
public:
    /// The physical material of one component.
    struct HRM_API Material
    {
        bool hasMaterial = false; ///< Whether the component has a material at all ("has_material").
        std::wstring name; ///< The material's name.
        double density = 0.0; ///< The density.
        double thermalConductivity = 0.0; ///< The thermal conductivity.
        double specificHeat = 0.0; ///< The specific heat.

        /// Whether all fields are equal.
        bool operator==(const Material& other) const;
        bool operator!=(const Material& other) const { return !(*this == other); }
    };
    /// The material of each component by its handle.
    using Map = std::map<OdDbHandle, Material>;

    static constexpr wchar_t s_objectName[] = L"legacy_component_material_map";

    /// The materials, by handle.
    const Map& map() const { return m_map; }
    void setMap(Map map) { m_map = std::move(map); }
    /// Sets the material of `handle`, replacing an earlier one. Always true.
    bool addMaterial(const OdDbHandle& handle, const Material& material);
    /// Adds the entries of `other` whose handles are not yet present.
    void merge(const LegacyMaterialMap& other);

    /// Whether the maps are equal.
    bool operator==(const LegacyMaterialMap& other) const { return m_map == other.m_map; }
    bool operator!=(const LegacyMaterialMap& other) const { return !(*this == other); }

    /// Throws std::invalid_argument when `value` is not an array; skips malformed elements.
    /// The three physical values are taken only when stored as doubles (7800.0, not 7800).
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    Map m_map;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcStageFinished::EStage)
HRM_DECLARE_ENUM_STRINGS(hrm::Result::ECode)

/// Defines the static prototype that registers exchange object class T (at namespace scope, in
/// one source file).
#define HRM_REGISTER_EXCHANGE_OBJECT(T) static ::hrm::StaticExchangeObject<T> s_prototype##T

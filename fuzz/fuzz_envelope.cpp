// ExchangeObjectWrapper::readObject on arbitrary text, binary objects loaded from shared
// memory. An input is the envelope's text (UTF-8), then, after the first NUL byte, the payload
// that the buffer fuzz::payloadBuffer holds for this input (no NUL: no buffer). The reader
// removes the buffers it loads (its default), and the library-wide size limit is 1 MiB. An
// envelope that reads gives an object whose own envelope reads back to an object with the same
// JSON, and the buffer written for that is gone once read. A block geometry naming the payload
// buffer loads it and restores what it holds.

#include "fuzz_exchange_object.h"
#include "fuzz_support.h"

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <mp/mp_shared_buffer.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <utility>

using namespace hrm;

namespace {

StaticExchangeObject<fuzz::BinaryObject> prototype;

void removePayload()
{
    mp::SharedBuffer<char>::remove(fuzz::payloadBuffer);
}

std::shared_ptr<IExchangeObject> read(const std::wstring& envelope)
{
    ExchangeObjectWrapper wrapper;
    std::wistringstream in(envelope);
    wrapper.readObject(in);
    return wrapper.get();
}

// The envelope of `object`, and the buffer written for it (empty for an inline object).
std::pair<std::wstring, std::wstring> envelopeOf(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    std::wostringstream out;
    wrapper.writeObject(out);
    return {out.str(), wrapper.createdBuffer()};
}

// Loads a block geometry and restores its entities (losing them again); failures are logged, or
// thrown by load() as documented.
void loadGeometry(ExcBlockGeometry& geometry)
{
    if (!fuzz::decodes([&] { geometry.load(); }))
        return;
    fuzz::check(geometry.isLoaded(), "a geometry that loads is loaded");
#if HRM_HAS_MODELER
    ENTITY_LIST entities;
    geometry.getGeometry(entities);
    for (int i = 0; i < entities.count(); ++i)
        entities[i]->lose();
#endif
}

bool sameJson(const IExchangeObject& a, const IExchangeObject& b)
{
    JsonDocument x;
    JsonDocument y;
    a.writeObject(x, x.GetAllocator());
    b.writeObject(y, y.GetAllocator());
    return fuzz::sameJson(x, y);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    Compressor::setDecompressedSizeLimit(size_t(1) << 20);
    std::atexit(removePayload);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto* bytes = reinterpret_cast<const char*>(data);
    const auto* end = bytes + size;
    const auto* separator = std::find(bytes, end, '\0');
    removePayload();
    if (separator != end)
        mp::SharedBuffer<char>(fuzz::payloadBuffer, false).write(separator + 1, static_cast<size_t>(end - separator - 1));

    std::shared_ptr<IExchangeObject> object;
    if (!fuzz::decodes([&] { object = read(fuzz::wideText(data, static_cast<size_t>(separator - bytes))); }) || !object)
        return 0;
    fuzz::check(!object->binary() || object->isLoaded() || object->source().empty(),
                "a binary object is loaded when it reads");
    const auto [envelope, buffer] = envelopeOf(object);
    const auto again = read(envelope);
    fuzz::check(again && sameJson(*object, *again), "a written envelope reads back to the same object");
    fuzz::check(buffer.empty() || !mp::SharedBuffer<char>::remove(buffer), "the reader removes the buffer it loads");
    if (const auto geometry = std::dynamic_pointer_cast<ExcBlockGeometry>(object))
        loadGeometry(*geometry);
    return 0;
}

// One side of handing a binary exchange object from one process to another:
//   hrm_exchange_peer write <file> [kind]  puts the object into a new shared-memory buffer, its
//                                          envelope into the file, and exits
//   hrm_exchange_peer read <file> [kind]   reads the envelope, loads the object, checks that it
//                                          is the one written, and removes the buffer
// The kind of object is "binary" (the tests' own, the default), "visualization" (a block
// visualization of a 20,000-triangle mesh) or "mechanical" (a block's mechanical data with
// every kind of child). Exits with 0 when the step succeeded.

#include <hrm_api/hrm_api_exchange_object.h>
#include <mp/mp_shared_buffer.h>

#include "hrm_api/hrm_api_json_members.h"
#include "support/test_exchange_object.h"
#include "mechanical_sample.h"
#include "visualization_sample.h"

#include <fstream>
#include <iostream>

namespace {

// The object of `kind` that the writer sends and the reader expects, or null.
std::shared_ptr<hrm::IExchangeObject> made(const std::string& kind)
{
    if (kind == "binary")
        return hrm::test::filledBinaryObject(true);
    if (kind == "visualization")
        return hrm::samples::blockVisualization(20000);
    if (kind == "mechanical")
        return hrm::samples::mechanical::block();
    return nullptr;
}

bool write(const char* path, const std::shared_ptr<hrm::IExchangeObject>& object)
{
    hrm::ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    std::wofstream out(path);
    wrapper.writeObject(out);
    return bool(out);
}

bool read(const char* path, const hrm::IExchangeObject& expected)
{
    std::wifstream in(path);
    hrm::ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(true);
    wrapper.readObject(in);
    const auto object = wrapper.get();
    if (!object || object->objectName() != expected.objectName())
        return false;
    const mp::SharedBuffer<char> removed(object->source(), true, mp::SharedBuffer<char>::Open::Existing);
    object->load();
    return object->isLoaded() && hrm::writeSameJson(*object, expected);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc == 3 || argc == 4 ? argv[1] : "";
    try {
        const auto object = made(argc == 4 ? argv[3] : "binary");
        if (object && (mode == "write" || mode == "read"))
            return (mode == "write" ? write(argv[2], object) : read(argv[2], *object)) ? 0 : 1;
        std::cerr << "usage: hrm_exchange_peer write|read <envelope file> [binary|visualization|mechanical]\n";
    } catch (const std::exception& error) {
        std::cerr << mode << ": " << error.what() << '\n';
    }
    return 2;
}

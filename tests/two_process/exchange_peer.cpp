// One side of handing a binary exchange object from one process to another:
//   hrm_exchange_peer write <file>  puts the object into a new shared-memory buffer, its envelope
//                                   into the file, and exits
//   hrm_exchange_peer read <file>   reads the envelope, loads and checks the object, and removes
//                                   the buffer
// Exits with 0 when the step succeeded.

#include <hrm_api/hrm_api_exchange_object.h>
#include <mp/mp_shared_buffer.h>

#include "support/test_exchange_object.h"

#include <fstream>
#include <iostream>

namespace {

using hrm::test::BinaryObject;

bool write(const char* path)
{
    hrm::ExchangeObjectWrapper wrapper;
    wrapper.set(hrm::test::filledBinaryObject(true));
    std::wofstream out(path);
    wrapper.writeObject(out);
    return bool(out);
}

bool read(const char* path)
{
    std::wifstream in(path);
    hrm::ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(true);
    wrapper.readObject(in);
    const auto object = std::dynamic_pointer_cast<BinaryObject>(wrapper.get());
    if (!object)
        return false;
    const mp::SharedBuffer<char> removed(object->source(), true, mp::SharedBuffer<char>::Open::Existing);
    object->load();
    return object->isLoaded() && *object == *hrm::test::filledBinaryObject(true);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc == 3 ? argv[1] : "";
    try {
        if (mode == "write" || mode == "read")
            return (mode == "write" ? write(argv[2]) : read(argv[2])) ? 0 : 1;
        std::cerr << "usage: hrm_exchange_peer write|read <envelope file>\n";
    } catch (const std::exception& error) {
        std::cerr << mode << ": " << error.what() << '\n';
    }
    return 2;
}

// One side of handing a block's geometry from one process to another:
//   hrm_geometry_peer write <file> <kind>  saves the geometry into a new shared-memory object,
//                                          writes the envelope into the file, and exits
//   hrm_geometry_peer read <file> <kind>   reads the envelope, loads and owns the geometry,
//                                          restores it, and checks that the object is gone once
//                                          the geometry object is
// The kind is "bodies" (two bodies tagged with ids 42 and 43, compressed), "empty" (no bytes)
// or "garbage" (bytes that are no saved geometry): these two restore nothing and log why.
// Exits with 0 when the step did what it should.

#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include "support/log_capture.h"
#include "support/tagged_bodies.h"

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

const std::string garbage = "not geometry at all";

bool write(const char* path, const std::string& kind)
{
    auto geometry = std::make_shared<hrm::ExcBlockGeometry>();
    geometry->setBlockId(5);
    bool saved = false;
    if (kind == "bodies") {
        hrm::test::OwnedEntities bodies;
        hrm::test::addTaggedBodies(bodies.list, {42, 43});
        saved = geometry->setGeometry(bodies.list, true);
    } else {
        saved = geometry->setBinaryData(kind == "garbage" ? garbage.data() : nullptr, kind == "garbage" ? garbage.size() : 0, true);
    }
    hrm::ExchangeObjectWrapper wrapper;
    wrapper.set(geometry);
    std::wofstream out(path);
    wrapper.writeObject(out);
    return saved && bool(out);
}

// What reading the geometry of `kind` should log.
std::vector<std::string> expectedErrors(const std::string& kind)
{
    if (kind == "bodies")
        return {};
    return {std::string("Failed to get geometry from shared memory buffer: ") +
            (kind == "empty" ? "unexpected end of saved data" : "data is not a saved entity list")};
}

bool exists(const std::wstring& name)
{
    try {
        mp::SharedBuffer<char>(name, false, mp::SharedBuffer<char>::Open::Existing);
        return true;
    } catch (const mp::SharedMemoryException&) {
        return false;
    }
}

bool read(const char* path, const std::string& kind)
{
    hrm::test::LogCapture log;
    std::wstring name;
    bool restored = false;
    hrm::test::OwnedEntities bodies;
    {
        std::wifstream in(path);
        hrm::ExchangeObjectWrapper wrapper;
        wrapper.readObject(in);
        const auto geometry = std::dynamic_pointer_cast<hrm::ExcBlockGeometry>(wrapper.get());
        if (!geometry || geometry->blockId() != 5)
            return false;
        name = geometry->source();
        geometry->load();
        geometry->own(true);
        restored = geometry->getGeometry(bodies.list);
        if (!exists(name))
            return false;
    }
    const std::vector<long> expectedIds = kind == "bodies" ? std::vector<long>{42, 43} : std::vector<long>{};
    return restored == (kind == "bodies") && hrm::test::taggedIds(bodies.list) == expectedIds &&
           log.messages(ax_herm::Error) == expectedErrors(kind) && !exists(name);
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc == 4 ? argv[1] : "";
    const std::string kind = argc == 4 ? argv[3] : "";
    try {
        if ((mode == "write" || mode == "read") && (kind == "bodies" || kind == "empty" || kind == "garbage"))
            return (mode == "write" ? write(argv[2], kind) : read(argv[2], kind)) ? 0 : 1;
        std::cerr << "usage: hrm_geometry_peer write|read <envelope file> bodies|empty|garbage\n";
    } catch (const std::exception& error) {
        std::cerr << mode << ": " << error.what() << '\n';
    }
    return 2;
}

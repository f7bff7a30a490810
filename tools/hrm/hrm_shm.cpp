// hrm shm: the shared-memory objects the library's writers leave for their readers. Only names
// of the writers' form (canonical UUIDs) are listed, dumped or removed, and only objects that
// are this user's own are removed.

#include "hrm_tool.h"

#include <hrm_api/hrm_api_exchange_object.h>
#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include <iostream>
#include <memory>

namespace hrm::tool {

namespace {

struct ShmOptions
{
    std::string name;
    std::string output = "-";
    bool raw = false;
    std::string olderThan;
};

std::wstring bufferName(const std::string& text)
{
    const std::wstring name = fromUtf8(text);
    if (!ExchangeObjectWrapper::isBufferName(name))
        throw Failure("\"" + text + "\" is not a name of the library's shared-memory objects (a lowercase UUID)");
    return name;
}

// Removes the object `name` if it is this user's own; says why not otherwise.
void removeOwn(const std::wstring& name)
{
    mp::SharedBuffer<char> buffer(name, false, mp::SharedBuffer<char>::Open::Existing);
    if (!buffer.removeOwned())
        throw Failure(toUtf8(name) + " is not this user's own object: left in place");
}

int list()
{
    for (const SharedObject& object : listSharedObjects())
        std::cout << toUtf8(object.name) << ' ' << object.size << " bytes " << formatAge(object.age) << '\n';
    return 0;
}

int dump(const ShmOptions& options)
{
    const std::string bytes = readSharedMemory(bufferName(options.name));
    if (options.raw) {
        writeBytes(options.output, bytes);
        return 0;
    }
    JsonDocument document;
    decodePayload(bytes, document);
    writeBytes(options.output, prettyJson(document));
    return 0;
}

int remove(const ShmOptions& options)
{
    removeOwn(bufferName(options.name));
    return 0;
}

int collect(const ShmOptions& options)
{
    const std::chrono::seconds limit = parseDuration(options.olderThan);
    int status = 0;
    for (const SharedObject& object : listSharedObjects()) {
        if (object.age <= limit)
            continue;
        try {
            removeOwn(object.name);
            std::cout << toUtf8(object.name) << '\n';
        } catch (const std::exception& error) {
            std::cerr << "hrm: " << error.what() << '\n';
            status = 1;
        }
    }
    return status;
}

} // namespace

void addShm(CLI::App& app, int& status)
{
    auto options = std::make_shared<ShmOptions>();
    CLI::App* shm = app.add_subcommand("shm", "The shared-memory objects that carry binary exchange objects");
    shm->require_subcommand(1);

    shm->add_subcommand("list", "List the objects (names of the writers' form): name, size, time since written")
        ->callback([&status] { status = list(); });

    CLI::App* dumpCommand = shm->add_subcommand("dump", "Print the JSON an object carries (it stays in place)");
    dumpCommand->add_option("NAME", options->name, "The object's name")->required();
    dumpCommand->add_option("-o,--output", options->output, "Where it goes (default: standard output)");
    dumpCommand->add_flag("--raw", options->raw, "Write the object's bytes as they are");
    dumpCommand->callback([options, &status] { status = dump(*options); });

    CLI::App* rmCommand = shm->add_subcommand("rm", "Remove an object, if it is this user's own");
    rmCommand->add_option("NAME", options->name, "The object's name")->required();
    rmCommand->callback([options, &status] { status = remove(*options); });

    CLI::App* gcCommand = shm->add_subcommand(
        "gc", "Remove this user's objects written longer ago than DURATION (left by a reader that crashed); "
              "prints the names removed");
    gcCommand->add_option("--older-than", options->olderThan, "A number with s, m, h or d (\"90s\", \"2h\")")
        ->type_name("DURATION")
        ->required();
    gcCommand->callback([options, &status] { status = collect(*options); });
}

} // namespace hrm::tool

// hrm inspect: what each envelope of a file (or of standard input) announces, and with --load the
// JSON of the object it carries.

#include "hrm_tool.h"

#include <hrm_api/hrm_api_exchange_object.h>
#include <logging/ax_herm_logger.h>

#include <iostream>
#include <memory>
#include <sstream>

namespace hrm::tool {

namespace {

struct InspectOptions
{
    std::string input = "-";
    bool load = false;
};

// The members of an envelope that the wrapper has accepted.
struct Envelope
{
    std::wstring type;
    bool binary = false;
    const JsonValue* data = nullptr;
};

Envelope members(const JsonDocument& document)
{
    Envelope envelope;
    const auto name = document.FindMember(L"exchange_object_name");
    if (name != document.MemberEnd() && name->value.IsString())
        envelope.type = name->value.GetString();
    const auto binary = document.FindMember(L"binary");
    envelope.binary = binary != document.MemberEnd() && binary->value.IsTrue();
    const auto data = document.FindMember(L"exchange_object_data");
    if (data != document.MemberEnd())
        envelope.data = &data->value;
    return envelope;
}

// Describes one envelope on standard output; returns false when something was wrong with it.
bool inspect(const std::wstring& text, const InspectOptions& options, const std::string& where)
{
    // The wrapper judges the envelope, with the library's own messages, and touches no buffer.
    ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(true);
    wrapper.setRemoveAfterLoading(false);
    std::wistringstream in(text);
    try {
        wrapper.readObject(in);
    } catch (const std::exception& error) {
        std::cerr << "hrm: " << where << error.what() << '\n';
        return false;
    }
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    const Envelope envelope = members(document);

    std::string line = toUtf8(envelope.type.empty() ? L"(no type)" : envelope.type);
    if (!wrapper.get())
        line += " (unknown type)";
    const bool named = envelope.binary && envelope.data && envelope.data->IsString();
    const std::wstring buffer = named ? std::wstring(envelope.data->GetString()) : std::wstring();
    SharedObject object;
    const bool exists = ExchangeObjectWrapper::isBufferName(buffer) && findSharedObject(buffer, object);
    if (!envelope.binary) {
        line += " inline";
    } else {
        line += " binary " + (buffer.empty() ? std::string("(no name)") : toUtf8(buffer));
        line += exists ? " " + std::to_string(object.size) + " bytes" : " missing";
    }
    std::cout << line << '\n';
    if (!options.load)
        return true;

    if (!envelope.binary) {
        if (envelope.data)
            std::cout << prettyJson(*envelope.data);
        return envelope.data != nullptr;
    }
    if (!exists) {
        std::cerr << "hrm: " << where << "cannot load the object: no shared-memory object " << toUtf8(buffer) << '\n';
        return false;
    }
    try {
        JsonDocument payload;
        decodePayload(readSharedMemory(buffer), payload);
        std::cout << prettyJson(payload);
    } catch (const std::exception& error) {
        std::cerr << "hrm: " << where << error.what() << '\n';
        return false;
    }
    return true;
}

int run(const InspectOptions& options)
{
    const std::vector<std::wstring> envelopes = splitEnvelopes(decodeText(readBytes(options.input)));
    std::size_t number = 0;
    auto where = [&] { return "envelope " + std::to_string(number) + ": "; };
    const LogToStderr log(ax_herm::Warning, where);
    bool ok = true;
    for (const std::wstring& text : envelopes) {
        ++number;
        ok = inspect(text, options, where()) && ok;
    }
    std::cout.flush();
    return ok && log.lines() == 0 ? 0 : 1;
}

} // namespace

void addInspect(CLI::App& app, int& status)
{
    auto options = std::make_shared<InspectOptions>();
    CLI::App* command = app.add_subcommand(
        "inspect",
        "Describe each envelope: type, inline or binary, shared-memory name and size (or \"missing\")");
    command->add_option("FILE", options->input, "Envelopes as a host receives them, one after another (- for standard input)");
    command->add_flag("--load", options->load, "Also print each object's JSON (inline, or loaded from shared memory without removing it)");
    command->callback([options, &status] { status = run(*options); });
}

} // namespace hrm::tool

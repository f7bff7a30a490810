// A program that uses RapidJSON itself and includes it before hrm_api, as an application with
// JSON of its own does. The hrm_api::hrm_api target gives it RapidJSON's settings before any
// header, so that its RapidJSON and the library's agree; DOM values cross in both directions.
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <hrm_api/hrm_api.h>

#include <iostream>
#include <string>

int main()
{
    // The application's own JSON, with RapidJSON's std::string support as the library has it.
    rapidjson::Document own;
    own.SetObject();
    own.AddMember("tool", rapidjson::Value(std::string("reader"), own.GetAllocator()), own.GetAllocator());
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    own.Accept(writer);
    if (std::string(buffer.GetString()) != "{\"tool\":\"reader\"}")
        return 1;

    // A value built here is read by the library, and one the library writes is read here.
    hrm::JsonDocument document;
    document.SetObject();
    document.AddMember(L"message", hrm::JsonValue(std::wstring(L"hello"), document.GetAllocator()),
                       document.GetAllocator());
    hrm::ExcMessage message;
    message.readObject(document);
    if (message.message() != L"hello")
        return 2;
    hrm::JsonValue written;
    hrm::ExcProgress progress;
    progress.setStage(L"reading");
    progress.writeObject(written, document.GetAllocator());
    if (!written.IsObject() || !written.HasMember(L"stage") || written[L"stage"] != L"reading")
        return 3;

    std::cout << "RapidJSON first: ok\n";
    return 0;
}

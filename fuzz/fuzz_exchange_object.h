#pragma once

// A binary exchange object for the envelope target and its seeds: members of every kind the
// member layer reads, a child object and a list of children.

#include <hrm_api/hrm_api_exchange_object.h>

#include "hrm_api/hrm_api_json_members.h"

#include <memory>
#include <string>
#include <vector>

namespace hrm::fuzz {

class BinaryObject : public ExchangeObjectType<BinaryObject>
{
public:
    static constexpr wchar_t s_objectName[] = L"fuzz_binary_object";

    bool binary() const override { return true; }
    bool compress() const override { return true; }

    void readObject(const JsonValue& value) override
    {
        JsonObjectReader(value, "BinaryObject")
            .string(L"text", text)
            .uint64(L"number", number)
            .int32(L"count", count)
            .real(L"real", real)
            .boolean(L"flag", flag)
            .strings(L"words", words)
            .object(L"progress", progress)
            .objects(L"messages", messages);
    }

    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        JsonObjectWriter(value, allocator)
            .string(L"text", text)
            .uint64(L"number", number)
            .int32(L"count", count)
            .real(L"real", real)
            .boolean(L"flag", flag)
            .strings(L"words", words)
            .object(L"progress", progress)
            .objects(L"messages", messages);
    }

    std::wstring text;
    uint64_t number = 0;
    int32_t count = 0;
    double real = 0.0;
    bool flag = false;
    std::vector<std::wstring> words;
    ExcProgress progress;
    std::vector<std::shared_ptr<ExcMessage>> messages;
};

// The name of the shared-memory buffer that holds the payload of an envelope input: a name of
// the form writers make, as readers load no other.
inline const std::wstring payloadBuffer = L"0f0f0f0f-f022-4e0f-8f0f-00000000f022";

} // namespace hrm::fuzz

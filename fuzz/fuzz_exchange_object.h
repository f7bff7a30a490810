#pragma once

// A binary exchange object for the envelope target and its seeds: members of every kind the
// member layer reads, a child object and a list of children.

#include <hrm_api/hrm_api_exchange_object.h>

#include "hrm_api/hrm_api_json_members.h"

#include <hrm_api/hrm_api_enums.h>

#include <array>
#include <cstdint>
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

    template <class Members>
    void members(Members& m)
    {
        m.string(L"text", text)
            .uint64(L"number", number)
            .int32(L"count", count)
            .storedDouble(L"real", real)
            .number(L"measure", measure)
            .boolean(L"flag", flag)
            .strings(L"words", words)
            .enumeration(L"unit", unit)
            .object(L"progress", progress)
            .child(L"note", note)
            .children(L"messages", messages)
            .exactly(L"pair", pair, "BinaryObject: invalid size of pair array")
            .leading(L"color", color)
            .packed(L"vertices", vertices)
            .packed(L"indices", indices);
    }
    void readObject(const JsonValue& value) override { readMembers(*this, value, "BinaryObject"); }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override { writeMembers(*this, value, allocator); }

    std::wstring text;
    uint64_t number = 0;
    int32_t count = 0;
    double real = 0.0;
    double measure = 0.0;
    bool flag = false;
    std::vector<std::wstring> words;
    ELengthUnitType unit = ELengthUnitType::Unknown;
    ExcProgress progress;
    std::shared_ptr<ExcMessage> note;
    std::vector<std::shared_ptr<ExcMessage>> messages;
    std::array<double, 2> pair{};
    std::array<double, 4> color{};
    std::vector<float> vertices;
    std::vector<int32_t> indices;
};

// The name of the shared-memory buffer that holds the payload of an envelope input.
inline const std::wstring payloadBuffer = L"hrm_fuzz_payload";

} // namespace hrm::fuzz

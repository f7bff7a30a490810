#pragma once

// A binary exchange object known only to the tests and the two-process peer.

#include <hrm_api/hrm_api_exchange_object.h>

#include "hrm_api/hrm_api_json_members.h"

namespace hrm::test {

class BinaryObject : public ExchangeObjectType<BinaryObject>
{
public:
    static constexpr wchar_t s_objectName[] = L"test_binary_object";

    bool binary() const override { return true; }
    bool compress() const override { return compressed; }
    template <class Members>
    void members(Members& m)
    {
        m.string(L"text", text).uint64(L"number", number).storedDouble(L"real", real);
    }
    void readObject(const JsonValue& value) override { readMembers(*this, value, nullptr); }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override { writeMembers(*this, value, allocator); }
    bool operator==(const BinaryObject& other) const
    {
        return text == other.text && number == other.number && real == other.real;
    }

    bool compressed = true;
    std::wstring text;
    uint64_t number = 0;
    double real = 0.0;
};

inline StaticExchangeObject<BinaryObject> binaryObjectPrototype;

// The object every binary test writes.
inline std::shared_ptr<BinaryObject> filledBinaryObject(bool compressed)
{
    auto object = std::make_shared<BinaryObject>();
    object->compressed = compressed;
    object->text = std::wstring(300, L'\x416') + L"\U0001F600";
    object->number = 18446744073709551615u;
    object->real = -2.5;
    return object;
}

} // namespace hrm::test

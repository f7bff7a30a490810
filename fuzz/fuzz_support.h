#pragma once

// What every fuzz target shares: the outcomes that count as expected, property checks, text
// from fuzz bytes, JSON comparison and a logger that formats every line and keeps none.

#include <hrm_api/hrm_api_json.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_exception.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

namespace hrm::fuzz {

// Runs `decode` and tells whether it succeeded. The exceptions the library documents for bad
// input are expected outcomes; anything else (std::logic_error from a RapidJSON assertion,
// std::bad_alloc, ...) escapes, and libFuzzer reports it as a finding.
template <class Decode>
bool decodes(Decode&& decode)
{
    try {
        decode();
        return true;
    } catch (const std::invalid_argument&) {
    } catch (const std::length_error&) {
    } catch (const std::runtime_error&) {
    } catch (const mp::Exception&) {
    }
    return false;
}

// A property that does not hold is a finding.
inline void check(bool holds, const char* property)
{
    if (!holds) {
        std::fprintf(stderr, "property violated: %s\n", property);
        std::abort();
    }
}

// The fuzz bytes as text: UTF-8 converted to wide characters by the library (invalid
// sequences become U+FFFD). Mutations then stay readable JSON, and the dictionary's words
// work; characters beyond the BMP and lone surrogates still arrive, through \u escapes.
inline std::wstring wideText(const uint8_t* data, size_t size)
{
    return toWide(std::string(reinterpret_cast<const char*>(data), size));
}

// Same types, same number kinds, same values (doubles bit for bit), members in the same order.
inline bool sameJson(const JsonValue& a, const JsonValue& b)
{
    if (a.GetType() != b.GetType())
        return false;
    switch (a.GetType()) {
    case rapidjson::kObjectType: {
        if (a.MemberCount() != b.MemberCount())
            return false;
        for (auto x = a.MemberBegin(), y = b.MemberBegin(); x != a.MemberEnd(); ++x, ++y) {
            if (!sameJson(x->name, y->name) || !sameJson(x->value, y->value))
                return false;
        }
        return true;
    }
    case rapidjson::kArrayType: {
        if (a.Size() != b.Size())
            return false;
        for (rapidjson::SizeType i = 0; i < a.Size(); ++i) {
            if (!sameJson(a[i], b[i]))
                return false;
        }
        return true;
    }
    case rapidjson::kStringType:
        return a.GetStringLength() == b.GetStringLength()
            && std::wmemcmp(a.GetString(), b.GetString(), a.GetStringLength()) == 0;
    case rapidjson::kNumberType: {
        if (a.IsInt() != b.IsInt() || a.IsUint() != b.IsUint() || a.IsInt64() != b.IsInt64()
            || a.IsUint64() != b.IsUint64() || a.IsDouble() != b.IsDouble())
            return false;
        if (!a.IsDouble())
            return a.IsUint64() ? a.GetUint64() == b.GetUint64() : a.GetInt64() == b.GetInt64();
        const double x = a.GetDouble();
        const double y = b.GetDouble();
        return std::memcmp(&x, &y, sizeof x) == 0;
    }
    default:
        return true;
    }
}

// Two texts that parse to the same JSON.
inline bool sameJsonText(const std::wstring& a, const std::wstring& b)
{
    JsonDocument x;
    JsonDocument y;
    JsonTextIO::fromString(a, x);
    JsonTextIO::fromString(b, y);
    return !x.HasParseError() && !y.HasParseError() && sameJson(x, y);
}

// Formats every log line at every level, so that the logging of hostile values runs too, and
// throws the lines away.
class DiscardingLogger : public ax_herm::ILogger
{
public:
    bool isOpen() const override { return true; }
    std::ostream& stream(int level) override { return m_line << ax_herm::levelTag(level); }
    void lock() override {}
    void unlock() override {}
    void flush() override {}
    void endLine() override { m_line.str(std::string()); }

private:
    std::ostringstream m_line;
};

inline void discardLogLines()
{
    ax_herm::LoggerHolder::setLogger(std::make_unique<DiscardingLogger>(), ax_herm::Trace);
}

} // namespace hrm::fuzz

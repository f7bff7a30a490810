#pragma once

#include <hrm_api/hrm_api_export.h>

#include <iosfwd>

namespace mp {

// A whole document that reads and writes itself as JSON text on wide streams.
class HRM_API ISerializable
{
public:
    virtual ~ISerializable() = default;
    virtual void writeObject(std::wostream& out) const = 0;
    virtual void readObject(std::wistream& in) = 0;

protected:
    ISerializable() = default;
    ISerializable(const ISerializable&) = default;
    ISerializable& operator=(const ISerializable&) = default;
};

} // namespace mp

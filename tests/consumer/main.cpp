// Uses the installed package the way another project would.
#include <hrm_api/hrm_api.h>

#include <iostream>
#include <sstream>

int main()
{
    hrm::JsonDocument document;
    std::wistringstream in(L"{\"unit\":\"meter\",\"values\":[1.0,2]}");
    hrm::JsonTextIO::read(in, document);
    if (document.HasParseError())
        return 1;
    const auto unit = hrm::enumFromString<hrm::ELengthUnitType>(document[L"unit"].GetString());
    if (hrm::enumToString(unit) != L"meter")
        return 2;
    std::wostringstream out;
    hrm::JsonTextIO::write(out, document, false);
    if (out.str() != L"{\"unit\":\"meter\",\"values\":[1.0,2]}")
        return 3;
    std::cout << "consumer ok\n";
    return 0;
}

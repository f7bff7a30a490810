// Uses the installed package the way another project would.
#include <hrm_api/hrm_api.h>

#include <iostream>
#include <sstream>
#include <string>

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
    if (std::string(hrm::libraryVersion()) != HRM_API_VERSION_STRING)
        return 4; // the installed headers and library disagree
    std::cout << "consumer ok, hrm_api " << hrm::libraryVersion() << "\n";
    return 0;
}

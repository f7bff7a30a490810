// RapidJSON compiled without std::string support, then the library's headers: refused.
#include <rapidjson/document.h>

#include <hrm_api/hrm_api.h>

int main()
{
    return 0;
}

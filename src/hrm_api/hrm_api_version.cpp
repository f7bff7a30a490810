#include <hrm_api/hrm_api_version.h>

namespace hrm {

const char* libraryVersion() noexcept
{
    return HRM_API_VERSION_STRING;
}

} // namespace hrm

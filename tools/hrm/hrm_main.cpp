// hrm: what crossed the wire between a host and a translator. Envelopes, binary JSON, shared
// memory and glTF export; `hrm --help` and `hrm COMMAND --help` say how.

#include "hrm_tool.h"

#include <hrm_api/hrm_api_version.h>

#include <iostream>

int main(int argc, char** argv)
{
    CLI::App app("hrm: inspect envelopes and shared memory, convert binary JSON, export glTF", "hrm");
    app.set_version_flag("--version", std::string("hrm ") + hrm::libraryVersion());
    app.require_subcommand(1);
    int status = 0;
    hrm::tool::addInspect(app, status);
    hrm::tool::addCodec(app, status);
    hrm::tool::addShm(app, status);
#if defined(HRM_TOOL_GLTF)
    hrm::tool::addGltf(app, status);
#endif
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error);
    } catch (const std::exception& error) {
        std::cerr << "hrm: " << error.what() << '\n';
        return 1;
    }
    return status;
}

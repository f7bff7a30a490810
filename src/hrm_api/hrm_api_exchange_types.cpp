#include "hrm_api/hrm_api_exchange_types.h"

#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <hrm_api/hrm_api_exchange_structure.h>
#include <hrm_api/hrm_api_exchange_visualization.h>

#include <tuple>

namespace hrm {
namespace {

// One prototype of each type, made once and kept for the life of the process.
template <class... Types>
void addPrototypes(ExchangeObjectRegistry& registry)
{
    static std::tuple<Types...> prototypes;
    std::apply([&registry](auto&... prototype) { (registry.add(&prototype), ...); }, prototypes);
}

} // namespace

// Every exchange object type of the library, in one list: the registry names them all from its
// first use on, also in a static build, where a prototype defined in a source file that nothing
// else refers to would be left out by the linker.
void addLibraryTypes(ExchangeObjectRegistry& registry)
{
    addPrototypes<ExcMessage, ExcLog, ExcProgress, ExcStageFinished, LegacyComponentInstanceNames, LegacyMaterialMap>(
        registry);
    addPrototypes<ExcProductStructure>(registry);
    addPrototypes<ExcBlockGeometry>(registry);
    addPrototypes<ExcBlockVisualization, ExcRootAssemblyVisualization>(registry);
}

} // namespace hrm

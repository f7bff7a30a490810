#pragma once

// The model read by OpenCASCADE (cad::) as the library's exchange objects.
//
// Identifiers, shared by every object of one import so that they can point at each other:
//   block id            the block's index in cad::Structure::blocks plus one
//   block reference     "persistent_id": the component's label entry ("0:1:1:1:2"); paths of
//                       references (ExcFullSubentPath::refs) list these from the top down
//   face, edge, vertex  "f<n>", "e<n>", "v<n>": the n-th face, edge or vertex of its block's
//                       shape; the id of the ExcVisuFace, the mechanical id of the ExcVisuEdge,
//                       and the id and visu id of the ExcEntity that points at it
//   a part's mesh       "mesh-<block id>", which the root assembly visualization names

#include "cad_model.h"

#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>
#include <hrm_api/hrm_api_exchange_structure.h>
#include <hrm_api/hrm_api_exchange_visualization.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace translator {

// The id of the block at `index` of cad::Structure::blocks.
inline uint64_t blockId(std::size_t index)
{
    return static_cast<uint64_t>(index) + 1;
}

// The id of a block's face, edge or vertex: "f12", "e3", "v7".
std::wstring elementId(cad::ShapeRef::Kind kind, int index);

// The wide text of UTF-8 (names from the file).
std::wstring wide(const std::string& text);

// The placement as an affine matrix (rows as the placement's) and a translation.
hrm::ExcTransformation transformationOf(const cad::Placement& placement);

// A colour of 0 to 255 channels from sRGB values of 0 to 1.
hrm::ExcColor colorOf(const cad::Rgba& color);

// The product structure: a block per shape definition (a part, or an assembly of references),
// the references with their placements, names and colours, the components at the top as root
// references; millimetres, Z up.
std::shared_ptr<hrm::ExcProductStructure> productStructure(const cad::Structure& structure, const std::string& file);

// The picture of one part: a root node over a leaf whose mesh holds a face per B-rep face
// (one polygon, tagged 4, per triangle) and an edge per B-rep edge. Takes the arrays over.
std::shared_ptr<hrm::ExcBlockVisualization> blockVisualization(const cad::Structure& structure, std::size_t block,
                                                               cad::BlockMesh mesh);

// The assembly as a scene graph: a group node per component with its placement, down to a
// leaf per part instance whose mesh names the part's picture ("mesh-<block id>") and carries
// no faces of its own.
std::shared_ptr<hrm::ExcRootAssemblyVisualization> rootVisualization(const cad::Structure& structure);

// The semantic PMI of an import by owner: one annotation set with one view per block, holding
// the annotations whose faces all lie in that block (and the datums without faces that its
// tolerances name); the root's holds the rest, linked through paths from the top.
struct PmiByOwner
{
    std::map<std::size_t, std::shared_ptr<hrm::ExcPMIData>> blocks; // by index of cad::Structure::blocks
    std::shared_ptr<hrm::ExcPMIData> root;                          // null when every annotation has its block
};

// Datums, dimensions (tolerances as signed offsets from the value) and geometric tolerances
// (with their datum reference frames), each linked to the faces it annotates.
PmiByOwner pmiData(const cad::Structure& structure, const cad::Pmi& pmi);

} // namespace translator

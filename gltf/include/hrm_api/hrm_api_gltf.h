#pragma once

/// @file
/// glTF 2.0 export of a translated model: the product structure and the visualizations of its
/// blocks (and/or the visualization of the root assembly) become one binary glTF file (.glb).
///
///   hrm::GltfInput input;
///   input.productStructure = structure;            // block references become nodes
///   input.blockVisualizations = {visualization};   // one per block, found by block id
///   hrm::writeGlb("model.glb", input);
///
/// How the model maps onto glTF:
/// - Units: glTF's are metres; each visualization and the structure say what theirs are
///   (metresPerUnit).
/// - Scene: one root node turns the model's up axis into glTF's +Y (the product structure's
///   world orientation; Z up when it is unknown or there is no structure). Under it stand the
///   root block references of the structure, then the scene root nodes of the root assembly
///   visualization; without a structure, every block visualization stands at the origin.
/// - A block reference is a node with the reference's transformation (translation converted to
///   metres from the structure's units) whose children are the block's picture and the nodes of
///   the block's own references. A block placed twice is two node trees over the same meshes.
///   A reference that would enter a block already on its path (a cycle) is left out.
/// - A block's picture is a node scaled from its visualization's units to metres, over its scene
///   root nodes. Each visualization node keeps its name and transformation.
/// - Transformations: the affine matrix maps column vectors, p' = A p + t, rows as stored.
///   Nodes carry translation, rotation and scale; a matrix that is not a rotation times a scale
///   (shear) is written as the nearest one, its axes made orthogonal in the order x, y, z.
/// - Faces become triangle primitives (faces of one mesh with the same material share one
///   primitive). A polygon of n > 3 indices is cut into the fan (i0, i1, i2), (i0, i2, i3), ...,
///   (i0, in-2, in-1), which is exact for convex polygons; polygons with fewer than 3 indices or
///   an index outside the face's vertices are left out, as are faces whose vertices are not all
///   finite. Normals are kept, normalised, when the face has one per vertex and all are finite
///   and non-zero; otherwise the face's primitive has none.
/// - Edges, wires and the lines of PMI graphics become line primitives (mode LINES): the line
///   indices name the points in order (all points in order when there are none), joined as a
///   strip, and closed for the loop types. Point sets become point primitives. Texts are not
///   exported.
/// - Materials: a face's colour when it has RGB, else the colour of the nearest node attributes
///   above it that have RGB, else the diffuse colour of the nearest material, else light grey.
///   Colour channels are 0-255 (sRGB); alpha below 255 makes the material blend. Lines and
///   points take their own colour, else black. Materials are shared between equal colours.
/// - Hidden nodes (attributes hidden) and hidden or suppressed references are left out, or kept
///   with extras {"hidden": true} when GltfOptions::keepHidden is set (suppressed references are
///   always left out).

#include <hrm_api/hrm_api_exchange_visualization.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#if defined(HRM_API_STATIC)
#  define HRM_GLTF_API
#elif defined(_WIN32)
#  if defined(HRM_GLTF_BUILDING)
#    define HRM_GLTF_API __declspec(dllexport)
#  else
#    define HRM_GLTF_API __declspec(dllimport)
#  endif
#else
#  define HRM_GLTF_API __attribute__((visibility("default")))
#endif

namespace hrm {

class ExcProductStructure;

/// What one glTF file is made of. Every part may be missing.
struct GltfInput
{
    /// The assembly: its block references place the block visualizations.
    std::shared_ptr<const ExcProductStructure> productStructure;
    /// The pictures of the blocks, found by their block ids (a later one of the same id wins).
    std::vector<std::shared_ptr<const ExcBlockVisualization>> blockVisualizations;
    /// The picture of the assembly as a whole, added beside the structure's nodes.
    std::shared_ptr<const ExcRootAssemblyVisualization> rootAssemblyVisualization;
};

/// How to export.
struct GltfOptions
{
    /// Keep hidden nodes and hidden references, flagged with extras {"hidden": true}.
    bool keepHidden = false;
    /// Export edges, wires and PMI lines as line primitives, and point sets as points.
    bool lines = true;
    /// The most nodes the scene may have; instancing a deep structure beyond it throws
    /// std::length_error("glTF export: too many nodes"), so that a hostile structure (a chain of
    /// blocks each placed twice in the next) cannot ask for billions of nodes. A node costs about
    /// 600 bytes while the scene is built: the default allows some 1.2 GB.
    std::size_t maxNodes = 2'000'000;
    /// Called now and then with the share of the work done (0 to 1).
    std::function<void(double done)> progress;
};

/// The .glb file of `input`. Throws std::length_error("glTF export: the model does not fit into
/// one .glb file") when the geometry passes the 4 GiB a .glb can hold (less room for its JSON).
HRM_GLTF_API std::vector<unsigned char> toGlb(const GltfInput& input, const GltfOptions& options = {});

/// Writes the .glb file of `input` to `path` (UTF-8). Throws std::runtime_error("glTF export:
/// cannot write <path>") when the file cannot be written.
HRM_GLTF_API void writeGlb(const std::string& path, const GltfInput& input, const GltfOptions& options = {});

/// The length of one unit of `units` in metres. Units that name no length (unknown, model
/// units) are taken as millimetres, the unit a visualization has by default.
HRM_GLTF_API double metresPerUnit(ELengthUnitType units);

} // namespace hrm

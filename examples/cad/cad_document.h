#pragma once

// A STEP or IGES file read into OpenCASCADE's XDE document, and what the translator asks of it:
// the assembly tree, the tessellation of one part at a time, the semantic PMI.
//
//   cad::Document document(path);                 // throws cad::Error with a message for a person
//   const cad::Structure& tree = document.structure();
//   cad::BlockMesh mesh = document.mesh(block, {sag});
//   cad::Pmi pmi = document.pmi();
//
// OpenCASCADE's own messages of warning level and above are collected (takeWarnings()); it
// prints nothing.

#include "cad_model.h"

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace cad {

// A file that cannot be read; the message says why, for a person.
class Error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// The file formats the document reads.
enum class Format
{
    Step,
    Iges,
};

// The format of a file by its extension (.stp, .step, .p21, .igs, .iges, any case), or none.
std::optional<Format> formatOf(const std::string& path);

// The OpenCASCADE version the document is built on ("7.6.3").
std::string kernelVersion();

// Called with the fraction done (0 to 1) of a long step; returns false to stop the step (it
// then ends early, with what it has done).
using ProgressCallback = std::function<bool(double fraction)>;

// An XDE document read from a file.
class Document
{
public:
    // Reads `path` (STEP or IGES, by its extension) with colours, names, layers and, for STEP,
    // the semantic PMI. Throws cad::Error when the file is missing, unreadable, of another
    // format, or holds no shape.
    explicit Document(const std::string& path, const ProgressCallback& progress = {});
    ~Document();
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;

    // The assembly tree: blocks (shape definitions) and the components that place them.
    const Structure& structure() const;
    // The tessellation of part `block` (empty for an assembly), in the block's coordinates.
    BlockMesh mesh(std::size_t block, const MeshOptions& options, const ProgressCallback& progress = {}) const;
    // The datums, dimensions and geometric tolerances with the faces they apply to.
    Pmi pmi() const;
    // OpenCASCADE's warnings since the last call, each once, in the order they came.
    std::vector<std::string> takeWarnings();

    // What the document keeps between its steps (cad_document_impl.h).
    struct Impl;

private:
    std::unique_ptr<Impl> m_impl;
};

} // namespace cad

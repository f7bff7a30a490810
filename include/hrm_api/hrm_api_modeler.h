#pragma once

/// @file
/// The one header through which hrm_api sees the solid modeler; no other file includes the
/// modeler's headers. The build chooses the modeler (HRM_MODELER in CMake), and the library's
/// target hands the choice to every consumer:
///
///   HRM_MODELER_ACIS     the modeler's SDK
///   HRM_MODELER_STANDIN  the stand-in the tests build, with the same names
///   neither              no modeler: HRM_HAS_MODELER is 0, and the members that take modeler
///                        types are left out
///
/// hrm::modeler names the base of the shared ACIS buffer and the types of its stream
/// primitives in every case (a small base of the library's own when there is no modeler).

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>

#if defined(HRM_MODELER_ACIS)

#include <acis.hxx>
#include <api.hxx>      // API_BEGIN, API_END, outcome, check_outcome
#include <attrib.hxx>   // ATTRIB, the owner-change actions, restore_def
#include <binfile.hxx>  // BinaryFile
#include <err_info.hxx> // error_info_base
#include <fileinfo.hxx> // FileInfo, api_set_file_info
#include <kernapi.hxx>  // api_save_entity_list_file, api_restore_entity_list_file
#include <lists.hxx>    // ENTITY_LIST
#include <savres.hxx>   // write_id, write_long, read_long

/// 1 when the library is built with a modeler (its geometry members are there), else 0.
#define HRM_HAS_MODELER 1

#elif defined(HRM_MODELER_STANDIN)

#include <modeler_standin.hxx>

/// 1 when the library is built with a modeler (its geometry members are there), else 0.
#define HRM_HAS_MODELER 1

#else

/// 1 when the library is built with a modeler (its geometry members are there), else 0.
#define HRM_HAS_MODELER 0

#endif

namespace hrm::modeler {

#if HRM_HAS_MODELER

using ::BinaryFile;
using ::FilePosition;
using ::logical;

#else

/// A position in a binary file.
using FilePosition = int64_t;
/// The modeler's truth value.
using logical = int;

/// What the shared ACIS buffer offers when there is no modeler: the four stream primitives of
/// the modeler's binary file interface.
class HRM_API BinaryFile
{
public:
    virtual ~BinaryFile();

    /// The current position.
    virtual FilePosition set_mark() = 0;
    /// Moves to a position and answers it.
    virtual FilePosition goto_mark(FilePosition position) = 0;

protected:
    /// Reads up to `length` bytes and answers how many it read.
    virtual size_t read(void* buffer, size_t length, logical swap) = 0;
    /// Writes `length` bytes.
    virtual void write(const void* data, size_t length, logical swap) = 0;
};

#endif

} // namespace hrm::modeler

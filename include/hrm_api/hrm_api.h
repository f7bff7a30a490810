#pragma once

/// @file
/// The whole public interface of hrm_api.

/// @mainpage hrm_api
///
/// The library through which a CAD host application and a CAD translation service exchange
/// their data. Both processes link it: the side that sends builds objects of this library and
/// writes them, the other side reads them back into the same objects.
///
/// - Requests: hrm::Command with its hrm::ImportOptions or hrm::ExportOptions and one
///   options object per file format (hrm::IFormatOptions); the translator's self-description,
///   hrm::HermetorInfo; the final hrm::Result.
/// - Results: exchange objects (hrm::IExchangeObject), each in an envelope
///   (hrm::ExchangeObjectWrapper). Large ones travel as compressed binary JSON in shared memory
///   (mp::SharedBuffer), named in the envelope.
/// - The common road in one call each: mp::toText and mp::fromText for whole documents,
///   hrm::toEnvelope and hrm::fromEnvelope for exchange objects, with typed access
///   (hrm::ExchangeObjectWrapper::get, hrm::FormatOptionsHolder::formatOptions).
/// - Underneath: JSON documents (hrm::JsonDocument, hrm::JsonTextIO), the binary encoding
///   (hrm::JsonBinaryIO), compression (hrm::Compressor), Base64 (hrm::Base64), enumeration
///   words (hrm::enumToString, hrm::enumFromString) and the log (ax_herm::LoggerHolder).

/// @namespace hrm
/// The library's classes and functions; import options in hrm::imp, export options in hrm::exp.
/// @namespace hrm::imp
/// The options of the import formats.
/// @namespace hrm::exp
/// The options of the export formats.
/// @namespace mp
/// Whole documents on wide streams, and the shared memory that carries large objects.
/// @namespace ax_herm
/// The library's log.

#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_version.h>
#include <hrm_api/hrm_api_text.h>
#include <hrm_api/hrm_api_json.h>
#include <hrm_api/hrm_api_json_binary.h>
#include <hrm_api/hrm_api_base64.h>
#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_export.h>
#include <hrm_api/hrm_api_enums_legacy.h>
#include <hrm_api/hrm_api_enums_options.h>
#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_common_entity.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <hrm_api/hrm_api_exchange_structure.h>
#include <hrm_api/hrm_api_exchange_visualization.h>
#include <hrm_api/hrm_api_exchange_visualization_attributes.h>
#include <hrm_api/hrm_api_exchange_mechanical_pmi.h>
#include <hrm_api/hrm_api_exchange_mechanical_pmi_tolerances.h>
#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>
#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_format_options.h>
#include <hrm_api/hrm_api_format_options_export.h>
#include <hrm_api/hrm_api_legacy_options.h>
#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_hermetor_info.h>
#include <hrm_api/hrm_api_modeler.h>
#include <hrm_api/hrm_api_acis_attrib_id.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_exception.h>
#include <mp/mp_serializable.h>
#include <mp/mp_shared_buffer.h>

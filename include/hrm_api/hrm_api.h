#pragma once

// The whole public interface of hrm_api.

#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_version.h>
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
#include <logging/ax_herm_logger.h>
#include <mp/mp_exception.h>
#include <mp/mp_serializable.h>
#include <mp/mp_shared_buffer.h>

#pragma once

#include <hrm_api/hrm_api_exchange_object.h>

namespace hrm {

// Registers a prototype of every exchange object type of the library.
void addLibraryTypes(ExchangeObjectRegistry& registry);

} // namespace hrm

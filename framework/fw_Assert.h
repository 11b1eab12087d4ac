#pragma once
// The module assert pattern: each module's <prefix>_Assert is one line over a message table.
#include <cstddef>

// The message of a code in a table, or an empty text for a code outside it.
template <std::size_t N>
const char* fw_MessageAt(const char* const (&table)[N], int code) {
  return code >= 0 && static_cast<std::size_t>(code) < N ? table[code] : "";
}

// Does nothing when ok; otherwise throws nex_PrimException<atr_String, 1> carrying the raw
// (untranslated) message and the module's source position.
void fw_ModuleAssert(bool ok, const char* message, const char* file, int line);

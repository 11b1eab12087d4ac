#pragma once
// Well-formed UTF-8: every text the file stores and the command layer shows must be UTF-8, since
// JSON (dumps, scripts) cannot carry anything else.
#include <cstddef>
#include <optional>
#include <string_view>

// The byte offset of the first byte that does not belong to well-formed UTF-8 (overlong forms,
// surrogates and code points above U+10FFFF included), or nullopt for valid text.
std::optional<std::size_t> dbf_InvalidUtf8At(std::string_view text);

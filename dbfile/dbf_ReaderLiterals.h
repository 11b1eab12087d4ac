#pragma once
// Enumeration literals of a stored row, checked against the ones today's class takes, so that a
// bad literal in a file is refused naming the class, the row and the field rather than by the
// enumeration's own constructor.
#include <cstdint>
#include <string>
#include <string_view>

#include "dbfile/dbf_Reader.h"

// The literals the class takes in the enumeration field of that persistent name, or null.
const omu_EnumLiteral* dbf_LiteralsOf(const cls_ClassMetadata& cls, const std::string& field);
// Refuses text that is none of the literals, as damage to the file.
void dbf_CheckLiteral(const dbf_ReadTable& t, std::int64_t oid, const std::string& field,
                      const omu_EnumLiteral* allowed, std::string_view text);

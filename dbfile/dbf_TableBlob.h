#pragma once
// The BLOB in which the database file stores a table of doubles (cow_2DArray<double>):
//
//   bytes 0..3   number of rows, unsigned 32-bit little-endian
//   bytes 4..7   number of columns, unsigned 32-bit little-endian
//   bytes 8..    rows x columns IEEE-754 binary64 values, little-endian, row by row
//
// so a table of r rows and c columns takes exactly 8 + 8*r*c bytes. The values keep every bit
// (NaN, infinities and negative zero included).
#include <cstddef>
#include <string>

#include "platform/base/cow_2DArray.h"

// Refuses (nex_CmdException) a table with more rows or columns than 32 bits count.
void dbf_EncodeTable(const cow_2DArray<double>& table, std::string& out);
// False when the bytes are not a table in the layout above.
bool dbf_DecodeTable(const void* data, std::size_t size, cow_2DArray<double>& out);

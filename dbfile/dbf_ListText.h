#pragma once
// The JSON text in which the database file stores lists, so that the sqlite3 shell shows them
// and its json functions read them: numbers, strings (escaped as JSON requires, other bytes as
// they are), true and false; a list of objects as [OID, ClassID] pairs, null for a null element.
// Doubles are written in their shortest exact form; JSON has no NaN or infinity, so a NaN is
// null and the infinities are 9e999 and -9e999 (what SQLite's own json functions write).
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/cow_String.h"

// A reference from a stored row to the row of another object; oid 0 stands for no object.
struct dbf_Ref {
  std::int64_t oid = 0;
  std::uint32_t classId = 0;
};

void dbf_AppendInt(std::string& out, std::int64_t v);
void dbf_AppendDouble(std::string& out, double v);
void dbf_AppendJsonString(std::string& out, std::string_view s);
void dbf_AppendRef(std::string& out, const dbf_Ref& ref);

void dbf_AppendIntList(std::string& out, const std::vector<std::int32_t>& v);
void dbf_AppendDoubleList(std::string& out, const std::vector<double>& v);
void dbf_AppendBoolList(std::string& out, const std::vector<bool>& v);
void dbf_AppendTextList(std::string& out, const std::vector<cow_String>& v);

// Each parse takes the whole text and returns false for anything but the form written above.
bool dbf_ParseIntList(std::string_view text, std::vector<std::int32_t>& out);
bool dbf_ParseDoubleList(std::string_view text, std::vector<double>& out);
bool dbf_ParseBoolList(std::string_view text, std::vector<bool>& out);
bool dbf_ParseTextList(std::string_view text, std::vector<cow_String>& out);
bool dbf_ParseRefList(std::string_view text, std::vector<dbf_Ref>& out);

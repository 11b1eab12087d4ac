#pragma once
// The model database file on SQLite: save a database atomically, open one (upgrading rows
// written at older versions before any class reads them), copy a file forward to the current
// versions. Every refusal is a nex_CmdException naming the file and the reason; nothing is half
// loaded and a failed save leaves the previous file as it was.
#include <string>

#include "platform/ddr_Database.h"

// The database version this library writes (the highest class version it knows).
int dbf_DatabaseVersion();
// The library version written into every file.
const char* dbf_LibraryVersion();

void dbf_Save(const ddr_Database& db, const std::string& path);
ddr_Database dbf_Open(const std::string& path);
// Opens `in` (upgrading it) and saves the result as `out`; `in` is not changed.
void dbf_Upgrade(const std::string& in, const std::string& out);

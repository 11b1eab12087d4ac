#pragma once
// The model database file on SQLite: save a database atomically, open one (upgrading rows
// written at older versions before any class reads them), copy a file forward to the current
// versions. Every refusal is a nex_CmdException naming the file and the reason; nothing is half
// loaded and a failed save leaves the previous file as it was. The layout is described in
// README.md ("Database file") and dbfile/dbf_Format.h.
#include <string>

#include "dbfile/dbf_SaveOptions.h"
#include "platform/model/ddr_Database.h"

class dbc_UpgradeDriver;
class dbf_Baseline;


void dbf_Save(const ddr_Database& db, const std::string& path);
void dbf_Save(const ddr_Database& db, const std::string& path, const dbf_SaveOptions& options);
ddr_Database dbf_Open(const std::string& path);
// Opens with the upgrade steps of the given driver instead of the registered ones.
ddr_Database dbf_Open(const std::string& path, const dbc_UpgradeDriver& driver);
// Opens, and makes `baseline` describe the file as read, so that saves into it write only what
// changed (options.baseline).
ddr_Database dbf_Open(const std::string& path, dbf_Baseline& baseline);
// Opens `in` (upgrading it) and saves the result as `out`; `in` is not changed.
void dbf_Upgrade(const std::string& in, const std::string& out);

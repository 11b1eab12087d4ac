#pragma once
// File helpers of the database file tests: bytes of files, SQL run on a model database through
// its checksumming VFS (so that edited files stay well-formed at the page level), and models
// filled with controls and samples.
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/model/ddr_Database.h"

std::vector<unsigned char> dbtT_ReadBytes(const std::string& path);
void dbtT_WriteBytes(const std::string& path, const std::vector<unsigned char>& bytes);

// Runs statements on a model database file as an editor would, keeping its page checksums.
void dbtT_Edit(const std::string& path, const std::string& sql);
// The first column of the first row of a query on the file (read through plain SQLite).
std::string dbtT_Query(const std::string& path, const std::string& sql);
std::vector<std::string> dbtT_QueryColumn(const std::string& path, const std::string& sql);

// A database with models "Model-1" (controls "C-1".."C-n" varied, a filled sample and a default
// one) and "Model-10" (empty containers).
ddr_Database dbtT_MakeDatabase(int controls);

// The files in a directory, by name.
std::vector<std::string> dbtT_ListDir(const std::string& dir);

#pragma once
// What a model database file was written at, read without loading its objects: for tools that
// must say whether a file needs upgrading.
#include <string>

struct dbf_FileVersion {
  int databaseVersion = 0;  // the database version stamped in the file
  bool current = false;     // written at this library's database version, every class at its version
};

// Refuses a file that SQLite cannot read or that has no catalog; call it on a file that
// dbf_Open accepted to know its version.
dbf_FileVersion dbf_ReadFileVersion(const std::string& path);

#pragma once
// The generic face of the database file: any registered objects stored under names ("roots")
// with everything they hold. A model database is a file whose roots are the models; the generic
// form also lets tools and tests store objects that no model container holds.
#include <string>
#include <vector>

#include "dbfile/dbf_Root.h"
#include "dbfile/dbf_SaveOptions.h"

class dbc_UpgradeDriver;

// Saves the roots (names must be distinct and non-empty) atomically as a new file at path.
void dbf_SaveRoots(const std::vector<dbf_Root>& roots, const std::string& path, const dbf_SaveOptions& options = {});

// Opens a file and reads every root, upgrading stored rows with the driver's steps (the
// registered ones when null). When `required` is given, a root of any other class is refused.
std::vector<dbf_LoadedRoot> dbf_OpenRoots(const std::string& path, const dbc_UpgradeDriver* driver = nullptr,
                                          const cls_ClassMetadata* required = nullptr);

#pragma once
// The save that patches the file a database came from (dbf_Patch.h).
#include <string>
#include <vector>

#include "dbfile/dbf_Root.h"
#include "dbfile/dbf_SaveOptions.h"

// Writes what changed since options.baseline into the file, in one transaction of its rollback
// journal; false, with the file untouched, when the baseline does not describe the file as it is
// (the caller then writes a new file). Refuses like a full save (a file another process changed).
bool dbf_SaveInPlace(const std::vector<dbf_Root>& roots, const std::string& target, const dbf_SaveOptions& options);

// Rolls back what a save killed in the middle of its transaction left in the file's journal, so
// that the file reads as it was before that save.
void dbf_RecoverJournal(const std::string& target);

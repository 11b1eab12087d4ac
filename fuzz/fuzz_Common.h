#pragma once
// Shared parts of the fuzz targets: a private scratch folder, whole-file reads and writes, the
// page checksums a mutated file needs so that it reaches the reader, and the check of a round
// trip through the database file.
#include <cstddef>
#include <string>
#include <string_view>

class ddr_Database;

// A folder of this process's own under the temporary folder, made on first use.
const std::string& fuzz_Scratch();
// fuzz_Scratch()/name, with any journal left beside it removed.
std::string fuzz_ScratchFile(std::string_view name);

void fuzz_WriteFile(const std::string& path, std::string_view bytes);

// Rewrites the checksum at the end of every whole page, for the page size the header states
// (bytes 16-17). Bytes that are too short for a header, or state no valid page size, are left
// as they are: the reader must refuse them on its own.
void fuzz_FixChecksums(std::string& bytes);

// Prints what went wrong and aborts, so that libFuzzer keeps the input.
[[noreturn]] void fuzz_Fail(std::string_view what, std::string_view detail = {});

// Saves db to the scratch folder, opens the file again and requires the two to be equal. A
// database that is in memory must always save and read back.
void fuzz_RequireRoundTrip(const ddr_Database& db, std::string_view name);

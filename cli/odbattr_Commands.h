#pragma once
// The subcommands of odbattr. Each returns the process exit code: 0 when everything succeeded,
// 1 when a command failed or an object is invalid, 2 when a file is unusable.
#include <string>

namespace odbattr {

constexpr int kOk = 0;
constexpr int kFailed = 1;
constexpr int kUnusable = 2;

// Runs a script of JSON Lines ("-" reads standard input), one result line per command; with a
// database file, opens it (or starts an empty one) and saves it at the end.
int Run(const std::string& script, const std::string& db);
// Opens (upgrading in memory) and validates every object; prints each failure with its path, then
// each warning of the advice. Warnings fail the check only when `strict`.
int Check(const std::string& file, bool strict = false);
// Prints the database, or what a path names in it, as JSON: one line per object (compact), or
// indented when `pretty`.
int Dump(const std::string& file, const std::string& path, bool pretty = false);
// Writes the file upgraded to the current versions as a new file.
int Upgrade(const std::string& in, const std::string& out);
// Lists the registered classes with their type ids, versions and fields.
int Classes();
// Builds the example models from the scripts of a directory into a database file and checks it.
int Example(const std::string& dir, const std::string& db);

// Writes the class reference for scripting (Markdown) to `out`, or prints it when `out` is empty.
int Reference(const std::string& out);
// Prints the JSON Schema of a command of a script.
int Schema();
// "odbattr 1.0.0 (library 1.0.0, database version N)".
std::string VersionText();

// Prints "odbattr: <message>" on standard error.
void Complain(const std::string& message);

}  // namespace odbattr

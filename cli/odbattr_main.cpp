// odbattr: the command layer of the attribute library over JSON, and the tools to build, check,
// dump and upgrade model database files.
#include <CLI/CLI.hpp>

#include <exception>
#include <string>

#include "cli/odbattr_Commands.h"
#include "frame/QMXOdbAttrEO2.h"

int main(int argc, char** argv) {
  CLI::App app{"odbattr: build, check, dump and upgrade model database files through the command layer"};
  app.require_subcommand(1);
  app.set_version_flag("--version", odbattr::VersionText(), "Print the versions of the tool, the library and the database "
                                                             "files it writes, and exit");

  std::string script, db, file, path, in, out, dir;

  CLI::App* run = app.add_subcommand(
      "run", "Run a script of JSON Lines, one command per line (blank lines and lines starting with # are "
             "skipped), printing one JSON result per command; exit 1 when any command failed");
  run->add_option("SCRIPT", script, "the script; - reads standard input")->required();
  run->add_option("--db", db, "a database file: opened (or created when absent) before the script, saved at the "
                              "end with every command that succeeded");

  CLI::App* check = app.add_subcommand(
      "check", "Open a database file (upgrading it in memory) and validate every object; exit 1 when an object is "
               "invalid, 2 when the file is unusable; warnings of the advice are printed too");
  check->add_option("FILE", file, "the database file")->required();
  bool strict = false;
  check->add_flag("--strict", strict, "exit 1 also when the advice has warnings");

  CLI::App* dump = app.add_subcommand("dump", "Print a database file, or what a path names in it, as JSON: one line "
                                              "per object, compact");
  dump->add_option("FILE", file, "the database file")->required();
  dump->add_option("PATH", path,
                   "steps separated by / (Model-1/adaptiveMeshControls/C-1), or a JSON array of steps");
  bool pretty = false;
  dump->add_flag("--pretty", pretty, "indent every member on a line of its own");

  CLI::App* upgrade = app.add_subcommand("upgrade", "Write a database file upgraded to the current class versions");
  upgrade->add_option("IN", in, "the database file to read; it is not changed")->required();
  upgrade->add_option("OUT", out, "the database file to write; it must not be IN")->required();

  app.add_subcommand("classes", "List the registered classes with their type ids, versions and fields");
  CLI::App* schema = app.add_subcommand(
      "schema", "Print the JSON Schema of one command of a script, made from the registered classes: the ops, the "
                "constructors of each repository, the members with their types, literals and defaults");

  CLI::App* reference = app.add_subcommand(
      "reference", "Print the class reference for scripting (Markdown): the constructors of each repository, "
                   "their members with type, default, literals and meaning, and the codes their validation raises");
  reference->add_option("--out", out, "write it to this file instead (replaced whole)");

  CLI::App* example = app.add_subcommand(
      "example", "Build the example models (the scripts of examples/) into a database file and check it");
  dir = QMX_EXAMPLES_DIR;
  example->add_option("--dir", dir, "the directory of example scripts (*.jsonl)")->capture_default_str();
  example->add_option("--db", db, "the database file to write (default: odbattr-example.db in the temporary "
                                  "directory)");

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    // Help answers 0; any misuse of the command line is an unusable request, like a bad file.
    return app.exit(e) == 0 ? odbattr::kOk : odbattr::kUnusable;
  }

  int tally = 0;
  QMXOdbAttrEO2_initialize(tally);  // loading the library started it already; this only counts
  int code = odbattr::kOk;
  try {
    if (*run) code = odbattr::Run(script, db);
    else if (*check) code = odbattr::Check(file, strict);
    else if (*dump) code = odbattr::Dump(file, path, pretty);
    else if (*upgrade) code = odbattr::Upgrade(in, out);
    else if (*example) code = odbattr::Example(dir, db);
    else if (*schema) code = odbattr::Schema();
    else if (*reference) code = odbattr::Reference(out);
    else code = odbattr::Classes();
  } catch (const std::exception& e) {
    odbattr::Complain(e.what());
    code = odbattr::kUnusable;
  }
  QMXOdbAttrEO2_finalize(tally);
  return code;
}

// The database file reader. Each input is a whole file; its page checksums are recomputed first,
// so that mutations reach the reader and not only the checksum check. A file that opens is
// checked, dumped model by model, saved, opened again and must be equal to what was read.
#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>

#include "command/cmd_Check.h"
#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "fuzz/fuzz_Common.h"
#include "fuzz/fuzz_SqliteMemory.h"
#include "platform/model/ddr_Database.h"

#include <nlohmann/json.hpp>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  fuzz_UseOwnSqliteMemory();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string bytes(reinterpret_cast<const char*>(data), size);
  fuzz_FixChecksums(bytes);
  const std::string path = fuzz_ScratchFile("in.odb");
  fuzz_WriteFile(path, bytes);

  ddr_Database db;
  try {
    db = dbf_Open(path);
  } catch (const std::exception&) {
    return 0;  // refused with the system's error: that is the reader's job
  }

  cmd_Checker checker;
  checker.CheckDatabase(db);
  for (const auto& f : checker.Failures())
    if (f.message.empty()) fuzz_Fail("a check failure without a message");

  cmd_Session session(db);
  for (const auto& name : db.ModelNames()) {
    cmd_Json get = cmd_Json::object();
    get["op"] = "get";
    get["path"] = cmd_Json::array({name.str()});
    const cmd_Json r = session.Execute(get);
    if (!r["ok"].get<bool>()) fuzz_Fail("a model read from a file cannot be dumped: ", r.dump());
    (void)r["result"].dump(-1, ' ', false, cmd_Json::error_handler_t::replace);
  }
  if (!(session.Database() == db)) fuzz_Fail("dumping changed the database");

  fuzz_RequireRoundTrip(db, "out.odb");
  return 0;
}

#include "dbfile/dbf_File.h"

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_Baseline.h"
#include "dbfile/dbf_Roots.h"
#include "platform/base/nex_Exception.h"

void dbf_Save(const ddr_Database& db, const std::string& path) { dbf_Save(db, path, dbf_SaveOptions{}); }

namespace {
// The baseline of a file that holds `db`: a copy shares every model, so the roots are the very
// objects the file holds.
void Remember(dbf_Baseline& baseline, const ddr_Database& db, const std::string& path,
              std::optional<dbf_FileStamp> stamp) {
  const cls_ClassMetadata* model = cls_ClassRegistrar::Instance().ByName(ddr_Model::kClassName);
  auto keeper = std::make_shared<const ddr_Database>(db);
  std::vector<dbf_Root> roots;
  for (const auto& [name, handle] : keeper->GetModels()) roots.push_back(dbf_Root{name, model, &handle.Get()});
  const std::string target = dbf_SaveTarget(path);
  baseline.Set(target, std::move(roots), std::move(keeper), stamp ? stamp : dbf_StampOf(target));
}

// The model class, which the library registers when it starts.
const cls_ClassMetadata& ModelClass(const char* doing, const std::string& path) {
  const cls_ClassMetadata* model = cls_ClassRegistrar::Instance().ByName(ddr_Model::kClassName);
  if (!model)
    nex_ThrowCmd(std::string("Cannot ") + doing + " the model database \"" + path +
                 "\": the model class is not registered (the library has not been started)");
  return *model;
}
}  // namespace

void dbf_Save(const ddr_Database& db, const std::string& path, const dbf_SaveOptions& options) {
  const cls_ClassMetadata& model = ModelClass("save", path);
  std::vector<dbf_Root> roots;
  for (const auto& [name, handle] : db.GetModels()) roots.push_back(dbf_Root{name, &model, &handle.Get()});
  dbf_SaveRoots(roots, path, options);
  if (options.baseline) Remember(*options.baseline, db, path, std::nullopt);
}

namespace {
ddr_Database Open(const std::string& path, const dbc_UpgradeDriver* driver) {
  const cls_ClassMetadata* model = &ModelClass("open", path);
  std::vector<dbf_LoadedRoot> roots = dbf_OpenRoots(path, driver, model);
  ddr_Database db;
  for (auto& r : roots)
    db.PutModel(r.name, ddr_Database::ModelHandle(static_cast<ddr_Model*>(r.object.Release())));
  return db;
}
}  // namespace

ddr_Database dbf_Open(const std::string& path) { return Open(path, nullptr); }

ddr_Database dbf_Open(const std::string& path, dbf_Baseline& baseline) {
  std::optional<dbf_FileStamp> before;
  try {
    before = dbf_StampOf(dbf_SaveTarget(path));
  } catch (const std::exception&) {
    // not a name a save could write: the open refuses it
  }
  ddr_Database db = Open(path, nullptr);
  baseline.Clear();
  if (before) Remember(baseline, db, path, before);
  return db;
}

ddr_Database dbf_Open(const std::string& path, const dbc_UpgradeDriver& driver) { return Open(path, &driver); }

void dbf_Upgrade(const std::string& in, const std::string& out) { dbf_Save(dbf_Open(in), out); }

#include "dbfile/dbf_File.h"

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/dbc_Converter.h"
#include "dbfile/dbf_Roots.h"
#include "platform/base/nex_Exception.h"

void dbf_Save(const ddr_Database& db, const std::string& path) { dbf_Save(db, path, dbf_SaveOptions{}); }

namespace {
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

ddr_Database dbf_Open(const std::string& path, const dbc_UpgradeDriver& driver) { return Open(path, &driver); }

void dbf_Upgrade(const std::string& in, const std::string& out) { dbf_Save(dbf_Open(in), out); }

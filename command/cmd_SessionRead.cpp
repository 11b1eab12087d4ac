// The session's ops that read or move whole databases: get, list, validate, save and open.
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "command/cmd_AdviceJson.h"
#include "command/cmd_SessionSupport.h"
#include "dbfile/dbf_AtomicFile.h"
#include "dbfile/dbf_File.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_Record.h"

namespace {
bool IsObjectListNode(const cmd_Node& n) { return n.kind == cmd_Node::kMember && n.field->type == cls_AttrObjectList; }
}  // namespace

cmd_Json cmd_Session::Get(const cmd_Json& command) {
  cmd_Json out;
  cmd_WalkConst(db_, cmd_PathOf(command), [&](const cmd_Node& n) {
    switch (n.kind) {
      case cmd_Node::kDatabase: out = cmd_DatabaseToJson(*n.db); break;
      case cmd_Node::kModel: out = cmd_ModelToJson(*n.model); break;
      case cmd_Node::kRepository: out = cmd_RepositoryToJson(*n.repo); break;
      case cmd_Node::kObject: out = cmd_ObjectToJson(n.obj, *n.md); break;
      case cmd_Node::kMember: out = cmd_MemberToJson(n.owner, *n.field); break;
    }
  });
  return out;
}

cmd_Json cmd_Session::List(const cmd_Json& command) {
  const cmd_Path path = cmd_PathOf(command);
  cmd_Json out = cmd_Json::array();
  cmd_WalkConst(db_, path, [&](const cmd_Node& n) {
    switch (n.kind) {
      case cmd_Node::kDatabase:
        for (const auto& name : n.db->ModelNames()) out.push_back(name.str());
        break;
      case cmd_Node::kModel:
        for (const auto& name : n.model->RepositoryNames()) out.push_back(name.str());
        for (const auto& name : n.model->ObjectNames()) out.push_back(name.str());
        for (const auto& name : ddr_Model::ViewNames()) out.push_back(name.str());
        break;
      case cmd_Node::kRepository:
        for (const auto& key : n.repo->Keys()) out.push_back(key.str());
        break;
      case cmd_Node::kObject:
        for (const auto& f : n.md->ScriptFields()) out.push_back(f.scriptName);
        break;
      case cmd_Node::kMember:
        if (!IsObjectListNode(n)) cmd_Refuse(cmd_MemberText(*n.field, *n.ownerMd) + " holds a value; get it instead");
        for (std::size_t i = 0; i < std::get<std::vector<cls_RecordPtr>>(n.field->get(n.owner)).size(); ++i) out.push_back(std::to_string(i));
        break;
    }
  });
  return out;
}

cmd_Json cmd_Session::Validate(const cmd_Json& command) {
  const cmd_Path path = cmd_PathOf(command);
  cmd_Checker checker;
  cmd_WalkConst(db_, path, [&](const cmd_Node& n) { checker.CheckNode(n, path); });
  // Advice beside validation: it changes no verdict, failures or not.
  cmd_Adviser adviser;
  adviser.AdvisePath(db_, path);
  if (!checker.Failures().empty()) throw cmd_ValidationFailure{checker.Failures(), adviser.Warnings()};
  cmd_Json r = cmd_Json::object();
  r["validated"] = checker.Checked();
  if (!adviser.Warnings().empty()) r["warnings"] = cmd_WarningsJson(adviser.Warnings());  // none: no key
  return r;
}

cmd_Json cmd_Session::Save(const cmd_Json& command) {
  const std::string file = cmd_FileOf(command);
  dbf_SaveOptions options;
  options.seen = &seen_;
  options.baseline = &baseline_;
  if (command.contains("overwrite")) {
    if (!command["overwrite"].is_boolean()) cmd_Refuse("The \"overwrite\" of a save is true or false");
    options.overwrite = command["overwrite"].get<bool>();
  }
  dbf_Save(db_, file, options);
  cmd_Json r = cmd_Json::object();
  r["file"] = file;
  r["models"] = db_.GetModels().size();
  // A symbolic link stays; the file it leads to was replaced.
  if (const std::string target = dbf_SaveTarget(file); target != file) r["target"] = target;
  return r;
}

cmd_Json cmd_Session::Open(const cmd_Json& command) {
  const std::string file = cmd_FileOf(command);
  dbf_Seen seen;  // the file as it was before it was read; the database read none other
  seen.Opened(file);
  dbf_Baseline baseline;
  db_ = dbf_Open(file, baseline);
  seen_ = std::move(seen);
  baseline_ = std::move(baseline);
  cmd_Json r = cmd_Json::object();
  r["file"] = file;
  r["models"] = cmd_Json::array();
  for (const auto& name : db_.ModelNames()) r["models"].push_back(name.str());
  return r;
}

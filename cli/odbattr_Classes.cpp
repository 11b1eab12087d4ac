#include <cstdio>
#include <iostream>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "command/cmd_Schema.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Value.h"

namespace odbattr {

int Classes() {
  nlohmann::ordered_json all = nlohmann::ordered_json::array();
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) {
    nlohmann::ordered_json c;
    c["name"] = md->Name().str();
    char hex[16];
    std::snprintf(hex, sizeof hex, "0x%08X", md->TypeId());
    c["typeId"] = md->TypeId();
    c["typeIdHex"] = hex;
    c["version"] = md->Version();
    if (*md->ScriptName()) c["constructor"] = md->ScriptName();
    if (std::string(md->RootName()) != md->Name().str()) c["family"] = md->RootName();
    c["fields"] = nlohmann::ordered_json::array();
    for (const auto& a : md->Attributes()) {
      nlohmann::ordered_json f;
      f["number"] = a.handle.Number();
      f["name"] = a.handle.Name().str();
      f["type"] = a.type;
      f["typeName"] = cls_AttrTypeName(a.type);
      for (const auto& s : md->ScriptFields())
        if (s.number == a.handle.Number() && a.handle.Name() == s.persistentName) f["scriptName"] = s.scriptName;
      c["fields"].push_back(std::move(f));
    }
    all.push_back(std::move(c));
  }
  std::cout << all.dump(2) << std::endl;
  return kOk;
}

int Schema() {
  std::cout << cmd_ScriptSchema().dump(2) << std::endl;
  return kOk;
}

}  // namespace odbattr

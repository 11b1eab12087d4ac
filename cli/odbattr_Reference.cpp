// The class reference for scripting: Markdown made from the registered classes, their
// descriptions and their validation codes, for an engineer to read beside a script.
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/odbattr_Commands.h"
#include "command/cmd_Json.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Description.h"
#include "platform/persist/cls_Value.h"

namespace odbattr {

namespace {

using Classes = std::vector<const cls_ClassMetadata*>;

Classes ReferenceConstructors(const cls_ClassMetadata& declared) {
  Classes out;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (*md->ScriptName() && md->CanConstruct() && md->IsA(declared)) out.push_back(md);
  return out;
}

// A class whose instances are containers: its element class; null for any other class.
const cls_ClassMetadata* ReferenceContainerElement(const cls_ClassMetadata& md) {
  if (!md.ScriptFields().empty() || *md.ScriptName() || !md.CanConstruct()) return nullptr;
  cmd_OwnedObject obj(md.NewDefault(), cmd_ObjectDeleter{&md});
  const mdl_Repository* repo = md.AsRepository(static_cast<const void*>(obj.get()));
  return repo ? &repo->ElementClass() : nullptr;
}

// Text in a table cell: a "|" would end the cell, a line break the row.
std::string Cell(std::string text) {
  std::string out;
  for (char c : text) {
    if (c == '|') out += "\\|";
    else if (c == '\n') out += ' ';
    else out += c;
  }
  return out;
}

std::string Code(const std::string& text) { return text.empty() ? "" : "`" + text + "`"; }

std::string Anchor(const std::string& constructor) {
  std::string a;
  for (char c : constructor) a += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return "#" + a;
}

std::string ClassLink(const cls_ClassMetadata& md) {
  return *md.ScriptName() ? "[" + std::string(md.ScriptName()) + "](" + Anchor(md.ScriptName()) + ")" : Code(md.Name().str());
}

class ReferenceWriter {
 public:
  std::string Write() {
    ddr_Model model;  // holds every registered repository and model object
    out_ << "# Class reference for scripting\n\n"
         << "Made by `odbattr reference` from the registered classes; regenerate it with\n"
         << "`cmake --build build --target class_reference` after a class changes.\n"
         << "A path starts at a model: `[\"Model-1\", repository, key, member, ...]`; a member that\n"
         << "holds an object is set inline (an object keyed by scripting names, with `\"type\"`\n"
         << "naming the constructor) or by `set` with `type` on the member's own path.\n\n";
    out_ << "## Repositories\n\n| repository | path | constructors |\n|---|---|---|\n";
    std::vector<std::pair<std::string, Classes>> where;
    for (const auto& name : model.RepositoryNames()) {
      const Classes ctors = ReferenceConstructors(model.FindRepository(name.view())->ElementClass());
      Row({Code(name.str()), Code("[\"Model-1\", \"" + name.str() + "\", name]"), Links(ctors)});
      where.emplace_back("repository `" + name.str() + "`", ctors);
    }
    for (const auto& name : model.ObjectNames()) {
      const cls_ClassMetadata* md = nullptr;
      const void* obj = model.FindObject(name.view(), &md);
      if (!md || !obj) continue;
      for (const auto& f : md->ScriptFields()) {
        const cls_ClassMetadata* element = f.declared ? ReferenceContainerElement(*f.declared) : nullptr;
        if (!element) continue;
        const Classes ctors = ReferenceConstructors(*element);
        const std::string path = "[\"Model-1\", \"" + name.str() + "\", \"" + f.scriptName + "\", name]";
        Row({Code(name.str() + "." + f.scriptName), Code(path), Links(ctors)});
        where.emplace_back("repository `" + name.str() + "." + f.scriptName + "`", ctors);
      }
    }
    out_ << '\n';
    for (const auto& [place, ctors] : where) {
      out_ << "## Constructors of the " << place << "\n\n";
      for (const cls_ClassMetadata* c : ctors) Class(*c);
    }
    // Classes that stand only inside others (options, sub-options, list elements), in the order
    // the classes above first name them.
    if (!pending_.empty()) out_ << "## Constructors of member objects\n\n";
    for (std::size_t i = 0; i < pending_.size(); ++i) Class(*pending_[i]);
    return out_.str();
  }

 private:
  void Row(const std::vector<std::string>& cells) {
    out_ << '|';
    for (const auto& c : cells) out_ << ' ' << Cell(c) << " |";
    out_ << '\n';
  }

  std::string Links(const Classes& classes) {
    std::string s;
    for (const cls_ClassMetadata* c : classes) s += (s.empty() ? "" : ", ") + ClassLink(*c);
    return s;
  }

  void Later(const Classes& classes) {
    for (const cls_ClassMetadata* c : classes)
      if (written_.count(c) == 0 && queued_.insert(c).second) pending_.push_back(c);
  }

  std::string TypeOf(const cls_ScriptField& f) {
    std::string t = cls_AttrTypeName(f.type);
    if ((f.type == cls_AttrObject || f.type == cls_AttrObjectList) && f.declared) {
      const cls_ClassMetadata* element = ReferenceContainerElement(*f.declared);
      const Classes ctors = ReferenceConstructors(element ? *element : *f.declared);
      Later(ctors);
      const std::string what = ctors.empty() ? Code(f.declared->Name().str()) : Links(ctors);
      if (element) return "objects by name: " + what;
      return (f.type == cls_AttrObjectList ? "list of " : "") + what;
    }
    return t;
  }

  static std::string LiteralsOf(const cls_ScriptField& f) {
    std::string s;
    for (int i = 0; f.literals && f.literals[i].text; ++i) s += (i ? ", " : "") + Code(f.literals[i].text);
    return s;
  }

  void Class(const cls_ClassMetadata& md) {
    if (!written_.insert(&md).second) return;
    out_ << "### " << md.ScriptName() << "\n\n";
    if (*md.Summary()) out_ << md.Summary() << "\n\n";
    out_ << "Class `" << md.Name() << "`, version " << md.Version() << ".\n\n";
    if (!md.ScriptFields().empty()) {
      cmd_OwnedObject fresh(md.NewDefault(), cmd_ObjectDeleter{&md});
      out_ << "| member | type | default | literals | meaning |\n|---|---|---|---|---|\n";
      for (const auto& f : md.ScriptFields()) {
        std::string def;
        try {
          def = cmd_MemberToJson(fresh.get(), f).dump();
        } catch (const std::exception&) {
          // a default that JSON cannot show is left blank
        }
        Row({Code(f.scriptName), TypeOf(f), Code(def), LiteralsOf(f), md.MemberDescription(f.scriptName)});
      }
      out_ << '\n';
    }
    const cls_ClassDescription* d = md.Description();
    if (d && !d->codes.empty()) {
      out_ << "Validation (`validate`) stops at the first failed check, in this order:\n\n"
           << "| code | message |\n|---|---|\n";
      for (int code : d->codes) Row({std::to_string(code), cls_FindErrorMessage(md.Name().view(), code)});
      out_ << '\n';
    }
  }

  std::ostringstream out_;
  std::set<const cls_ClassMetadata*> written_, queued_;
  Classes pending_;
};

}  // namespace

int Reference(const std::string& out) {
  const std::string text = ReferenceWriter().Write();
  if (out.empty()) {
    std::cout << text;
    return kOk;
  }
  // Written beside and renamed over: a reader never sees half a reference.
  const std::string temp = out + ".tmp";
  {
    std::ofstream file(temp, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
      std::remove(temp.c_str());
      Complain("cannot write " + out);
      return kUnusable;
    }
  }
  std::error_code ec;
  std::filesystem::rename(temp, out, ec);
  if (ec) {
    std::remove(temp.c_str());
    Complain("cannot write " + out + ": " + ec.message());
    return kUnusable;
  }
  return kOk;
}

}  // namespace odbattr

#include "command/cmd_Json.h"

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "platform/base/QMXBasException.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "command/cmd_Path.h"
#include "platform/model/ddr_Database.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/mdl_Repository.h"

void cmd_WithinMember(const std::string& member, const std::function<void()>& fn) {
  try {
    fn();
  } catch (cmd_MemberError& e) {
    e.members.insert(e.members.begin(), member);
    throw;
  } catch (const cmd_StepError& e) {  // an unknown member below this one
    throw cmd_MemberError{{member, e.Step()}, e.Kind(), e.Message(), e.File(), e.Line(), e.Candidates()};
  } catch (const QMXBasException& e) {
    throw cmd_MemberError{{member}, e.Kind(), e.Message(), e.File(), e.Line(), {}};
  }
}

const cls_ScriptField* cmd_TableShorthand(const cls_ClassMetadata& md) {
  if (*md.ScriptName() || md.ScriptFields().empty() || !md.CanConstruct()) return nullptr;
  const cls_ScriptField& f = md.ScriptFields().front();
  return f.type == cls_AttrDoubleTable ? &f : nullptr;
}

namespace {

// An object given inline: its class (a constructor key, or the declared class), then its members,
// or for a container its elements by key.
cmd_OwnedObject NewInline(const cls_ClassMetadata& declared, const cmd_Json& v);

std::string Describe(const cmd_Json& v) {
  switch (v.type()) {
    case cmd_Json::value_t::null: return "null";
    case cmd_Json::value_t::boolean: return std::string("the boolean ") + (v.get<bool>() ? "true" : "false");
    case cmd_Json::value_t::number_integer:
    case cmd_Json::value_t::number_unsigned:
    case cmd_Json::value_t::number_float: return "the number " + v.dump();
    case cmd_Json::value_t::string: return "the string " + v.dump();
    case cmd_Json::value_t::array: return "an array";
    case cmd_Json::value_t::object: return "an object";
    default: return std::string("a ") + v.type_name();
  }
}

const char* Wanted(int type) {
  switch (type) {
    case cls_AttrInt: return "an integer (32 bits)";
    case cls_AttrDouble: return "a number";
    case cls_AttrBool: return "true or false";
    case cls_AttrString: return "a string";
    case cls_AttrEnum: return "an enumeration literal (a string) or its integer value";
    case cls_AttrRegion: return "a region name (a string)";
    case cls_AttrDoubleTable: return "a table (an array of rows of numbers)";
    case cls_AttrIntList: return "an array of integers";
    case cls_AttrDoubleList: return "an array of numbers";
    case cls_AttrStringList: return "an array of strings";
    case cls_AttrRegionList: return "an array of region names";
    case cls_AttrEnumList: return "an array of enumeration literals";
    case cls_AttrBoolList: return "an array of booleans";
    case cls_AttrObject: return "an object or null";
    case cls_AttrObjectList: return "an array of objects";
    default: return "a value of a kind the command layer does not know";
  }
}

// What a member takes, with the literal or null that a number member may take instead.
std::string WantedOf(const cls_ScriptField& f) {
  std::string wanted = Wanted(f.type);
  if (f.type != cls_AttrInt && f.type != cls_AttrDouble) return wanted;
  if (f.literals)
    for (const omu_EnumLiteral* l = f.literals; l->text; ++l) wanted += std::string(" or \"") + l->text + "\"";
  if (f.optional) wanted += " or null";
  return wanted;
}

class Converter {
 public:
  Converter(const cls_ClassMetadata& owner, const cls_ScriptField& field) : owner_(owner), field_(field) {}

  [[noreturn]] void Refuse(const cmd_Json& v, const std::string& where = "") const {
    const bool rows = field_.type == cls_AttrObject && field_.declared && cmd_TableShorthand(*field_.declared);
    cmd_Refuse("The member \"" + std::string(field_.scriptName) + "\" of " + cmd_ClassLabel(owner_) + " takes " +
               (rows ? std::string("an object, a table (an array of rows of numbers) or null") : WantedOf(field_)) + ", not " +
               Describe(v) + (where.empty() ? "" : " " + where));
  }

  static std::optional<std::int32_t> Int32(const cmd_Json& v) {
    if (v.is_number_unsigned()) {
      auto u = v.get<std::uint64_t>();
      if (u <= static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max())) return static_cast<std::int32_t>(u);
      return std::nullopt;
    }
    if (v.is_number_integer()) {
      auto i = v.get<std::int64_t>();
      if (i >= std::numeric_limits<std::int32_t>::min() && i <= std::numeric_limits<std::int32_t>::max())
        return static_cast<std::int32_t>(i);
    }
    return std::nullopt;
  }

  template <class E, class Fn>
  std::vector<E> Array(const cmd_Json& v, Fn element) const {
    if (!v.is_array()) Refuse(v);
    std::vector<E> out;
    out.reserve(v.size());
    for (std::size_t i = 0; i < v.size(); ++i) out.push_back(element(v[i], "at element " + std::to_string(i)));
    return out;
  }

  cls_Value Convert(const cmd_Json& v) const {
    auto number = [&](const cmd_Json& e, const std::string& where) {
      if (!e.is_number()) Refuse(e, where);
      return e.get<double>();
    };
    auto integer = [&](const cmd_Json& e, const std::string& where) {
      auto i = Int32(e);
      if (!i) Refuse(e, where);
      return *i;
    };
    auto text = [&](const cmd_Json& e, const std::string& where) {
      if (!e.is_string()) Refuse(e, where);
      return cow_String(e.get<std::string>());
    };
    auto boolean = [&](const cmd_Json& e, const std::string& where) {
      if (!e.is_boolean()) Refuse(e, where);
      return e.get<bool>();
    };
    switch (field_.type) {
      case cls_AttrInt:
      case cls_AttrDouble:
        if (v.is_null() && field_.optional) return std::monostate{};  // unspecified
        if (v.is_string() && field_.literals) return cow_String(v.get<std::string>());  // a number or a literal
        return field_.type == cls_AttrInt ? cls_Value(integer(v, "")) : cls_Value(number(v, ""));
      case cls_AttrBool: return boolean(v, "");
      case cls_AttrString:
      case cls_AttrRegion: return text(v, "");
      case cls_AttrEnum:
        if (v.is_string()) return cow_String(v.get<std::string>());
        return integer(v, "");
      case cls_AttrIntList: return Array<std::int32_t>(v, integer);
      case cls_AttrDoubleList:  // numbers, or texts where the member also takes a text, as its single form does
        if (field_.literals && v.is_array() && !v.empty() && v[0].is_string()) return Array<cow_String>(v, text);
        return Array<double>(v, number);
      case cls_AttrStringList:
      case cls_AttrRegionList:
      case cls_AttrEnumList: return Array<cow_String>(v, text);
      case cls_AttrBoolList: {
        std::vector<bool> out;
        for (bool b : Array<bool>(v, boolean)) out.push_back(b);
        return out;
      }
      case cls_AttrDoubleTable: return Table(v);
      case cls_AttrObject:
        if (v.is_null()) return std::monostate{};
        if (v.is_array() && field_.declared) {
          if (const cls_ScriptField* table = cmd_TableShorthand(*field_.declared)) {
            cmd_Json members = cmd_Json::object();
            members[table->scriptName] = v;
            return Inline(members);
          }
        }
        if (!v.is_object()) Refuse(v);
        return Inline(v);
      case cls_AttrObjectList: {
        if (!v.is_array()) Refuse(v);
        std::vector<cls_RecordPtr> out;
        for (std::size_t i = 0; i < v.size(); ++i) {
          if (v[i].is_null()) out.push_back(nullptr);
          else if (v[i].is_object()) cmd_WithinMember(std::to_string(i), [&] { out.push_back(Inline(v[i])); });
          else Refuse(v[i], "at element " + std::to_string(i));
        }
        return out;
      }
      default: Refuse(v);
    }
  }

 private:
  cls_Value Table(const cmd_Json& v) const {
    if (!v.is_array()) Refuse(v);
    std::size_t cols = 0;
    std::vector<double> data;
    for (std::size_t r = 0; r < v.size(); ++r) {
      const cmd_Json& row = v[r];
      if (!row.is_array()) Refuse(row, "at row " + std::to_string(r));
      if (r == 0) cols = row.size();
      if (row.size() != cols)
        cmd_Refuse("The member \"" + std::string(field_.scriptName) + "\" of " + cmd_ClassLabel(owner_) +
                   " takes a table whose rows have equal lengths; row " + std::to_string(r) + " has " +
                   std::to_string(row.size()) + " values where row 0 has " + std::to_string(cols));
      for (std::size_t c = 0; c < row.size(); ++c) {
        if (!row[c].is_number())
          Refuse(row[c], "at row " + std::to_string(r) + ", column " + std::to_string(c));
        data.push_back(row[c].get<double>());
      }
    }
    if (v.empty()) return cow_2DArray<double>();
    return cow_2DArray<double>(v.size(), cols, std::move(data));
  }

  cls_RecordPtr Inline(const cmd_Json& v) const {
    if (!field_.declared)
      cmd_Refuse("The class of the member \"" + std::string(field_.scriptName) + "\" of " + cmd_ClassLabel(owner_) +
                 " is not registered");
    cmd_OwnedObject obj = NewInline(*field_.declared, v);
    return cmd_RecordOf(*obj.get_deleter().md, obj.get());
  }

 private:
  const cls_ClassMetadata& owner_;
  const cls_ScriptField& field_;
};

// The key under which an object of this class carries its constructor name.
const char* ConstructorKey(const cls_ClassMetadata& md) { return md.FindScriptField("type") ? "$type" : "type"; }

// True when `key` names the constructor rather than a member of md.
bool IsConstructorKey(const cls_ClassMetadata& md, const std::string& key) {
  return key == "$type" || (key == "type" && !md.FindScriptField("type"));
}

// `made`: the object is being made here, so that its read-only members may be given.
void SetMembers(void* obj, const cls_ClassMetadata& md, const cmd_Json& values, const std::string& skip, bool made) {
  if (!values.is_object()) cmd_Refuse("The values of " + cmd_ClassLabel(md) + " must be a JSON object keyed by scripting names, not " + Describe(values));
  for (const auto& item : values.items()) {
    const std::string& key = item.key();
    const cmd_Json& v = item.value();
    if (!skip.empty() && key == skip) continue;
    if (IsConstructorKey(md, key)) {
      if (!v.is_string() || v.get<std::string>() != md.ScriptName())
        cmd_Refuse("The values name the constructor " + v.dump() + ", but the object is of " + cmd_ClassLabel(md));
      continue;
    }
    const cls_ScriptField* f = nullptr;
    try {
      f = &cmd_FindMember(obj, md, key, {});
    } catch (const cmd_StepError& e) {
      throw cmd_MemberError{{key}, e.Kind(), e.Message(), e.File(), e.Line(), e.Candidates()};
    }
    cmd_WithinMember(key, [&] {
      if (f->readOnly && !made) cmd_RefuseReadOnly(*f, md);
      f->set(obj, cmd_ValueFromJson(md, *f, v));
    });
  }
}

cmd_OwnedObject NewInline(const cls_ClassMetadata& declared, const cmd_Json& v) {
  // A container has neither a constructor name nor members: all its keys are element keys.
  const bool container = declared.ScriptFields().empty() && !*declared.ScriptName() && declared.CanConstruct();
  std::string key;
  if (v.contains("$type")) key = "$type";
  else if (!container && v.contains("type") && !declared.FindScriptField("type")) key = "type";
  const cls_ClassMetadata* cls = &declared;
  if (!key.empty()) {
    const cmd_Json& ctor = v[key];
    if (!ctor.is_string())
      cmd_Refuse("The constructor name under \"" + key + "\" must be a string, not " + Describe(ctor));
    cls = &cmd_ClassForConstructor(ctor.get<std::string>(), declared);
  }
  cmd_OwnedObject obj = cmd_NewObject(*cls, nullptr);
  if (mdl_Repository* repo = cls->AsRepository(obj.get())) {
    for (const auto& item : v.items()) {
      const std::string& k = item.key();
      const cmd_Json& e = item.value();
      if (k == key) continue;
      if (!e.is_object())
        cmd_Refuse("The element \"" + k + "\" of " + repo->RepositoryName() + " must be an object, not " + Describe(e));
      cmd_WithinMember(k, [&] {
        cmd_OwnedObject elem = NewInline(repo->ElementClass(), e);
        repo->InsertNew(cow_String(k), elem.release());
      });
    }
    return obj;
  }
  SetMembers(obj.get(), *cls, v, key, true);
  return obj;
}

// The members of a JSON object as the vector they are kept in. Keys of a repository (and names of
// models and repositories) are distinct, so they are appended without the search that inserting
// by key makes (which made a dump quadratic in the size of the repository).
std::vector<cmd_Json::object_t::value_type>& ObjectMembers(cmd_Json& j) {
  return static_cast<std::vector<cmd_Json::object_t::value_type>&>(j.get_ref<cmd_Json::object_t&>());
}

cmd_Json RecordToJson(const cls_Record& rec) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(rec.typeId);
  if (!md) cmd_Refuse("No class is registered with type id " + std::to_string(rec.typeId));
  cmd_OwnedObject obj(md->NewFromRecord(cls_RecordReader(rec)), cmd_ObjectDeleter{md});
  return cmd_ObjectToJson(obj.get(), *md);
}

}  // namespace

cls_Value cmd_ValueFromJson(const cls_ClassMetadata& owner, const cls_ScriptField& field, const cmd_Json& v) {
  return Converter(owner, field).Convert(v);
}

void cmd_SetValues(void* obj, const cls_ClassMetadata& md, const cmd_Json& values) { SetMembers(obj, md, values, "", false); }

void cmd_RefuseReadOnly(const cls_ScriptField& field, const cls_ClassMetadata& owner) {
  cmd_Refuse("The member \"" + std::string(field.scriptName) + "\" of " + cmd_ClassLabel(owner) +
             " is read-only; it is given only where the object is made");
}

const cls_ClassMetadata& cmd_ClassForConstructor(const std::string& scriptName, const cls_ClassMetadata& declared) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByScriptName(scriptName);
  if (!md || scriptName.empty()) cmd_Refuse("There is no constructor \"" + scriptName + "\"");
  if (!md->IsA(declared))
    cmd_Refuse(cmd_ClassLabel(*md) + " cannot stand where " + cmd_ClassLabel(declared) + " is expected");
  if (!md->CanConstruct())
    cmd_Refuse(cmd_ClassLabel(*md) + " cannot be constructed; name one of its kinds: " + cmd_ConstructorNames(*md));
  return *md;
}

std::string cmd_ConstructorNames(const cls_ClassMetadata& declared) {
  std::string names;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (*md->ScriptName() && md->CanConstruct() && md->IsA(declared)) {
      names += (names.empty() ? "" : ", ") + std::string(md->ScriptName());
      for (const char* variant : md->ScriptVariants()) names += std::string(", ") + variant;
    }
  return names.empty() ? "none" : names;
}

cmd_OwnedObject cmd_NewObject(const cls_ClassMetadata& md, const cmd_Json* values) {
  if (!md.CanConstruct())
    cmd_Refuse(cmd_ClassLabel(md) + " cannot be constructed; name one of its kinds: " + cmd_ConstructorNames(md));
  cmd_OwnedObject obj(md.NewDefault(), cmd_ObjectDeleter{&md});
  if (values) SetMembers(obj.get(), md, *values, "", true);
  return obj;
}

cls_RecordPtr cmd_RecordOf(const cls_ClassMetadata& md, const void* obj) {
  cls_RecordWriter w;
  md.Write(obj, w);
  return std::make_shared<const cls_Record>(w.Take());
}

cmd_Json cmd_ValueToJson(const cls_Value& v) {
  return std::visit(
      [](const auto& x) -> cmd_Json {
        using X = std::decay_t<decltype(x)>;
        if constexpr (std::is_same_v<X, std::monostate>) {
          return nullptr;
        } else if constexpr (std::is_same_v<X, cow_String>) {
          return x.str();
        } else if constexpr (std::is_same_v<X, std::vector<cow_String>>) {
          cmd_Json a = cmd_Json::array();
          for (const auto& s : x) a.push_back(s.str());
          return a;
        } else if constexpr (std::is_same_v<X, cow_2DArray<double>>) {
          cmd_Json rows = cmd_Json::array();
          for (std::size_t r = 0; r < x.Rows(); ++r) {
            cmd_Json row = cmd_Json::array();
            for (std::size_t c = 0; c < x.Columns(); ++c) row.push_back(x(r, c));
            rows.push_back(std::move(row));
          }
          return rows;
        } else if constexpr (std::is_same_v<X, cls_RecordPtr>) {
          return x ? RecordToJson(*x) : cmd_Json(nullptr);
        } else if constexpr (std::is_same_v<X, std::vector<cls_RecordPtr>>) {
          cmd_Json a = cmd_Json::array();
          for (const auto& r : x) a.push_back(r ? RecordToJson(*r) : cmd_Json(nullptr));
          return a;
        } else if constexpr (std::is_same_v<X, std::vector<bool>>) {
          cmd_Json a = cmd_Json::array();
          for (bool b : x) a.push_back(b);
          return a;
        } else {
          return x;  // numbers, booleans, lists of numbers
        }
      },
      v);
}

cmd_Json cmd_ObjectToJson(const void* obj, const cls_ClassMetadata& md) {
  if (const mdl_Repository* repo = md.AsRepository(obj)) return cmd_RepositoryToJson(*repo);
  if (const cls_ScriptField* table = cmd_TableShorthand(md)) {
    const cmd_OwnedObject fresh(md.NewDefault(), cmd_ObjectDeleter{&md});
    bool rest = true;
    for (const auto& f : md.ScriptFields())
      if (&f != table && cmd_MemberToJson(obj, f) != cmd_MemberToJson(fresh.get(), f)) rest = false;
    if (rest) return cmd_MemberToJson(obj, *table);
  }
  cmd_Json j = cmd_Json::object();
  if (*md.ScriptName()) j[ConstructorKey(md)] = md.ScriptName();
  for (const auto& f : md.ScriptFields()) j[f.scriptName] = cmd_MemberToJson(obj, f);
  return j;
}

cmd_Json cmd_MemberToJson(const void* owner, const cls_ScriptField& field) {
  if (field.type == cls_AttrObject && field.declared) {
    const void* child = field.child(owner);
    return child ? cmd_ObjectToJson(child, field.declared->ClassOf(child)) : cmd_Json(nullptr);
  }
  return cmd_ValueToJson(field.get(owner));
}

cmd_Json cmd_RepositoryToJson(const mdl_Repository& repo) {
  cmd_Json j = cmd_Json::object();
  const std::vector<cow_String> keys = repo.Keys();
  auto& members = ObjectMembers(j);
  members.reserve(keys.size());
  for (const auto& key : keys) {
    const cls_ClassMetadata* cls = nullptr;
    const void* obj = repo.Find(key, &cls);
    members.emplace_back(key.str(), cmd_ObjectToJson(obj, *cls));
  }
  return j;
}

cmd_Json cmd_ModelToJson(const ddr_Model& model) {
  cmd_Json j = cmd_Json::object();
  auto& members = ObjectMembers(j);
  for (const auto& name : model.RepositoryNames())
    members.emplace_back(name.str(), cmd_RepositoryToJson(*model.FindRepository(name.view())));
  for (const auto& name : model.ObjectNames()) {
    const cls_ClassMetadata* cls = nullptr;
    const void* obj = model.FindObject(name.view(), &cls);
    members.emplace_back(name.str(), cmd_ObjectToJson(obj, *cls));
  }
  return j;
}

cmd_Json cmd_DatabaseToJson(const ddr_Database& db) {
  cmd_Json j = cmd_Json::object();
  auto& members = ObjectMembers(j);
  for (const auto& [name, model] : db.GetModels()) members.emplace_back(name.str(), cmd_ModelToJson(model.Get()));
  return j;
}

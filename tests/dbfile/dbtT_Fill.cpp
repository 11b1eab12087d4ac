#include "tests/dbfile/dbtT_Fill.h"

#include <memory>
#include <vector>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/base/omu_PrimEnum.h"

const cls_ClassMetadata* dbtT_Constructible(const cls_ClassMetadata& cls) {
  if (cls.CanConstruct()) return &cls;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All())
    if (md->CanConstruct() && md->IsA(cls)) return md;
  return nullptr;
}

namespace {

cls_RecordPtr DefaultRecordOf(const cls_ClassMetadata* declared) {
  const cls_ClassMetadata* cls = declared ? dbtT_Constructible(*declared) : nullptr;
  if (!cls) return nullptr;
  void* obj = cls->NewDefault();
  cls_RecordWriter w;
  cls->Write(obj, w);
  cls->Destroy(obj);
  return std::make_shared<const cls_Record>(w.Take());
}

// The last literal of the table: the first is often the default.
cow_String LastLiteral(const omu_EnumLiteral* table) {
  int n = table ? omu_LiteralCount(table) : 0;
  return n ? cow_String(table[n - 1].text) : cow_String();
}

bool ValueFor(const cls_ScriptField& f, int i, cls_Value& v) {
  switch (f.type) {
    case cls_AttrInt: v = std::int32_t(7 + i); return true;
    case cls_AttrDouble: v = 0.25 + i; return true;
    case cls_AttrBool: v = true; return true;
    case cls_AttrString: v = cow_String("text-" + std::to_string(i)); return true;
    case cls_AttrRegion: v = cow_String("Set-" + std::to_string(i)); return true;
    case cls_AttrEnum: v = LastLiteral(f.literals); return true;
    case cls_AttrDoubleTable: v = cow_2DArray<double>{{1.5, 2.5}, {3.5, -4.5}}; return true;
    case cls_AttrIntList: v = std::vector<std::int32_t>{1, -2, i}; return true;
    case cls_AttrDoubleList: v = std::vector<double>{0.5, -1e300}; return true;
    case cls_AttrBoolList: v = std::vector<bool>{true, false}; return true;
    case cls_AttrStringList:
    case cls_AttrRegionList: v = std::vector<cow_String>{"a", "b \"c\""}; return true;
    case cls_AttrEnumList: v = std::vector<cow_String>{LastLiteral(f.literals)}; return true;
    case cls_AttrObject: {
      cls_RecordPtr rec = DefaultRecordOf(f.declared);
      if (!rec) return false;
      v = rec;
      return true;
    }
    case cls_AttrObjectList: {
      cls_RecordPtr rec = DefaultRecordOf(f.declared);
      if (!rec) return false;
      v = std::vector<cls_RecordPtr>{rec, rec};
      return true;
    }
    default: return false;
  }
}

}  // namespace

void* dbtT_NewFilled(const cls_ClassMetadata& cls, int& fields) {
  void* obj = cls.NewDefault();
  fields = 0;
  int i = 0;
  for (const cls_ScriptField& f : cls.ScriptFields()) {
    cls_Value v;
    if (!ValueFor(f, ++i, v) || !f.set) continue;
    try {
      f.set(obj, v);
      ++fields;
    } catch (const std::exception&) {
      // A member that refuses this value (a fixed-width table, a literal it forbids) keeps its default.
    }
  }
  return obj;
}

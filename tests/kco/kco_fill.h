#pragma once
// Objects of a class built through its metadata, default or with every scripting field set away
// from its default, and the checks of a kind's registered layout; shared by the constraint and
// engineering feature tests.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/base/omu_PrimEnum.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"

struct kco_Owned {
  kco_Owned(const cls_ClassMetadata& c, void* o) : cls(&c), obj(o) {}
  kco_Owned(const kco_Owned&) = delete;
  kco_Owned& operator=(const kco_Owned&) = delete;
  ~kco_Owned() { cls->Destroy(obj); }
  const cls_ClassMetadata* cls;
  void* obj;
};

// Sets every scripting field of obj to a value that differs from the one it holds. A list of
// objects gets `element` (a record of its declared class) twice.
inline void kco_FillAway(void* obj, const cls_ClassMetadata& md, const cls_RecordPtr& element = nullptr) {
  // A suppressed feature refuses edits, so its suppress flag is set after everything else.
  std::vector<const cls_ScriptField*> order;
  for (const cls_ScriptField& f : md.ScriptFields())
    if (std::string_view(f.persistentName) != "suppress") order.push_back(&f);
  for (const cls_ScriptField& f : md.ScriptFields())
    if (std::string_view(f.persistentName) == "suppress") order.push_back(&f);
  for (const cls_ScriptField* field : order) {
    const cls_ScriptField& f = *field;
    SCOPED_TRACE(f.scriptName);
    const cls_Value now = f.get(obj);
    const std::string tag = std::string("X-") + f.scriptName;
    switch (f.type) {
      // A number that holds its literal ("ALL", "WHOLE_SURFACE") is offered as the literal's text.
      case cls_AttrInt: {
        const auto* i = std::get_if<std::int32_t>(&now);
        f.set(obj, i && *i == 7 ? 8 : 7);
        break;
      }
      case cls_AttrDouble: {
        const auto* d = std::get_if<double>(&now);
        f.set(obj, d && *d == 0.75 ? 1.25 : 0.75);
        break;
      }
      case cls_AttrBool: f.set(obj, !std::get<bool>(now)); break;
      case cls_AttrString:
      case cls_AttrRegion: f.set(obj, cow_String(tag)); break;
      case cls_AttrEnum: {
        const cow_String current = std::get<cow_String>(now);
        for (const omu_EnumLiteral* l = f.literals; l->text; ++l)
          if (current != l->text) {
            f.set(obj, cow_String(l->text));
            break;
          }
        break;
      }
      case cls_AttrDoubleTable: f.set(obj, cow_2DArray<double>{{1.5, 2.5, 3.5}, {4.5, 5.5, 6.5}}); break;
      case cls_AttrIntList: f.set(obj, std::vector<std::int32_t>{3, 1, 2}); break;
      case cls_AttrDoubleList: f.set(obj, std::vector<double>{0.25, -1.5, 3.0}); break;
      case cls_AttrStringList: f.set(obj, std::vector<cow_String>{"A-1", "B-2"}); break;
      case cls_AttrRegionList: f.set(obj, std::vector<cow_String>{"Set-1", "Surf-2"}); break;
      case cls_AttrObjectList: f.set(obj, std::vector<cls_RecordPtr>{element, element}); break;
      default: ADD_FAILURE() << "a member of a kind the filler does not know: " << f.type;
    }
    EXPECT_FALSE(cls_ValueEqual(f.get(obj), now)) << "the filler left " << f.scriptName << " as it was";
  }
}

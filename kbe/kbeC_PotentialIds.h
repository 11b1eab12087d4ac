#pragma once
// The last-used potential id of a potential list (lastId, lastIniId, lastEvoId) belongs to the
// option: every potential that joins the list counts, however it joins, and scripts cannot take
// the id back, so no id is handed out twice. The id is read-only for scripts: an option that is
// being made may be given the id it held or a later one, so that an option read out whole (list
// first, then id) is rebuilt as it was; an existing option's id is never set by a script. Included only by the
// .cpp files of the options that hold potentials.
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include "framework/fw_FieldTable.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_TypedMetadata.h"

// L names one list: its option class C, the scripting names kList and kLastId, Count(const C&),
// Last(const C&), the last id, and Grow(C&, n), which raises it by n.
template <class L>
struct kbeC_PotentialIdKeeper {
  using C = typename L::C;
  static inline void (*storedSet)(void*, const cls_Value&) = nullptr;

  static C& Obj(void* p) { return *static_cast<C*>(static_cast<fw_Root<C>*>(p)); }
  // The list is set as before; each potential beyond the count it held is a new one.
  static void SetList(void* p, const cls_Value& v) {
    C& option = Obj(p);
    const std::size_t before = L::Count(option);
    storedSet(p, v);
    const std::size_t after = L::Count(option);
    if (after > before) L::Grow(option, static_cast<std::int32_t>(after - before));
  }
  static void SetLastId(void* p, const cls_Value& v) {
    C& option = Obj(p);
    const std::int32_t held = L::Last(option);
    const std::int32_t* given = std::get_if<std::int32_t>(&v);
    if (!given || *given < held)
      nex_ThrowCmd(std::string("The member \"") + L::kLastId + "\" of " + C::kScriptName + " counts the potentials added to \"" +
                   L::kList + "\" and cannot be set below " + std::to_string(held));
    L::Grow(option, *given - held);
  }
  static void Wrap(std::vector<cls_ScriptField>& fields) {
    for (cls_ScriptField& f : fields) {
      if (std::string(f.scriptName) == L::kList) {
        storedSet = f.set;
        f.set = &SetList;
      } else if (std::string(f.scriptName) == L::kLastId) {
        f.set = &SetLastId;
        f.readOnly = true;
      }
    }
  }
};

// The plain list of an option that holds one: "connectorPotentials" counted by "lastId".
template <class Option>
struct kbeC_PlainPotentialIds {
  using C = Option;
  static constexpr const char* kList = "connectorPotentials";
  static constexpr const char* kLastId = "lastId";
  static std::size_t Count(const C& c) { return c.GetConnectorPotentials().size(); }
  static std::int32_t Last(const C& c) { return c.GetLastId(); }
  static void Grow(C& c, std::int32_t n) { c.SetLastId(c.GetLastId() + n); }
};

// The metadata of an option with potential lists: the scripting fields of its field table, with
// the lists and their last ids kept as above.
template <class C, class... Lists>
class kbeC_PotentialIdMetadata final : public cls_TypedMetadata<C> {
 public:
  const std::vector<cls_ScriptField>& ScriptFields() const override {
    if (!built_) {
      script_ = fw_MakeScriptFields<C>(std::make_index_sequence<std::tuple_size_v<decltype(C::Fields())>>());
      (kbeC_PotentialIdKeeper<Lists>::Wrap(script_), ...);
      built_ = true;
    }
    return script_;
  }

 private:
  mutable std::vector<cls_ScriptField> script_;
  mutable bool built_ = false;
};

// fw_InitializeMetadata with the metadata above.
template <class C, class... Lists>
void kbeC_InitializePotentialIdMetadata(cls_ClassRegistrar& registrar) {
  static_assert(fw_NumbersUnique(C::Fields()), "field numbers must be unique within a class");
  static_assert(fw_NamesUnique(C::Fields()), "persistent and scripting names must be unique within a class");
  auto* md = new kbeC_PotentialIdMetadata<C, Lists...>();
  registrar.AddClassMD(md);
  md->AddDtor(&C::CowDtor);
  std::apply(
      [&](const auto&... f) {
        (md->AddAttribute(cls_FieldHandle(f.number, f.name),
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kType, 1,
                          fw_Traits<typename fw_MemberType<std::remove_cvref_t<decltype(f)>>::type>::kCollection),
         ...);
      },
      C::Fields());
}

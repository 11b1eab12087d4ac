#include "kma/kmaC_Material.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "platform/base/nex_Exception.h"

namespace {
template <class M>
struct IsSlot : std::false_type {};
template <kmaC_OptionClass Class>
struct IsSlot<kmaC_OptionSlot<Class>> : std::true_type {};

static_assert(std::tuple_size_v<decltype(kmaC_Material::Fields())> == kmaC_Material::kSlotCount + 2);

}  // namespace

void kmaC_Material::RefuseSlot() { nex_ThrowCmd("Unknown material option"); }

kmaC_Material::kmaC_Material(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

// Calls fn(slot, name) for the slot of that scripting name; false when there is none.
template <class Fn>
bool kmaC_Material::VisitSlot(std::string_view slot, Fn&& fn) {
  bool found = false;
  std::apply(
      [&](const auto&... f) {
        auto one = [&](const auto& field) {
          using M = typename fw_MemberType<std::remove_cvref_t<decltype(field)>>::type;
          if constexpr (IsSlot<M>::value)
            if (!found && slot == field.scriptName) found = true, fn(this->*(field.member), field.scriptName);
        };
        (one(f), ...);
      },
      Fields());
  return found;
}

template <class Fn>
bool kmaC_Material::VisitSlot(std::string_view slot, Fn&& fn) const {
  return const_cast<kmaC_Material*>(this)->VisitSlot(slot, [&](const auto& s, const char* name) { fn(s, name); });
}

bool kmaC_Material::IsSlotName(std::string_view slot) {
  kmaC_Material probe;
  return probe.VisitSlot(slot, [](auto&, const char*) {});
}

const kmaC_MaterialOption* kmaC_Material::GetOption(std::string_view slot) const {
  const kmaC_MaterialOption* out = nullptr;
  if (!VisitSlot(slot, [&](const auto& s, const char*) { out = s.ConstGet(); })) RefuseSlot();
  return out;
}

kmaC_MaterialOption* kmaC_Material::ModifyOption(std::string_view slot) {
  kmaC_MaterialOption* out = nullptr;
  if (!VisitSlot(slot, [&](auto& s, const char*) { out = s.Get(); })) RefuseSlot();
  return out;
}

void kmaC_Material::SetOption(std::string_view slot, const kmaC_MaterialOption& option) {
  if (!VisitSlot(slot, [&](auto& s, const char* name) { s.Set(option, name); })) RefuseSlot();
}

void kmaC_Material::ClearOption(std::string_view slot) {
  if (!VisitSlot(slot, [](auto& s, const char*) { s.Clear(); })) RefuseSlot();
}

// The slots in persistent order; the first failing option decides the message. The material adds
// no rule of its own (how a damage initiation fits its slot is advice, kmaC_DamageInitiationFit.h).
void kmaC_Material::AssertValid() const {
  std::apply(
      [&](const auto&... f) {
        auto one = [&](const auto& field) {
          using M = typename fw_MemberType<std::remove_cvref_t<decltype(field)>>::type;
          if constexpr (IsSlot<M>::value) {
            if (const kmaC_MaterialOption* o = (this->*(field.member)).ConstGet()) o->AssertValid();
          }
        };
        (one(f), ...);
      },
      Fields());
}

template class fw_PersistentClass<kmaC_Material, mem_Allocated>;

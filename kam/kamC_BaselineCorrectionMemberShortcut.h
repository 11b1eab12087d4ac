#pragma once
// The baseline correction of an amplitude, reached through the shortcut of the amplitude. Kind is
// the amplitude class the shortcut insists on (kamC_Amplitude for any kind that can carry one);
// Self is the concrete shortcut class (kClassName, TypeId()).
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kam/kamC_AmplitudeShortcut.h"
#include "kam/kamC_BaselineCorrectionIMPLSC.h"
#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_Visitor.h"

template <class Self, class Kind>
class kamC_BaselineCorrectionMemberShortcut : public kamC_BaselineCorrectionIMPLSC {
 public:
  explicit kamC_BaselineCorrectionMemberShortcut(kamC_AmplitudeShortcut owner) : owner_(std::move(owner)) {}

  static Self Ctor(const cls_ReadVisitor& r) {
    if (r.GetTypeId() != Self::TypeId()) ddr_RefuseShortcutRecord(Self::kClassName, r.GetTypeId());
    std::optional<kamC_AmplitudeShortcut> owner;
    r.ReadObject("owner", [&](const cls_ReadVisitor& m) { owner.emplace(kamC_AmplitudeShortcut::Ctor(m)); });
    if (!owner) nex_ThrowCmd(std::string("A stored ") + Self::kClassName + " has no owner");
    Self s(*std::move(owner));
    s.SetUid(r.GetUid());
    return s;
  }

  const kamC_AmplitudeShortcut& Owner() const noexcept { return owner_; }

  kamC_BaselineCorrectionIMPLSC* Copy() const override { return mem_New<Self>(static_cast<const Self&>(*this)); }
  const char* ClassName() const override { return Self::kClassName; }
  unsigned ClassTypeId() const override { return Self::TypeId(); }
  cow_String Name() const override { return "baselineCorrection"; }
  std::vector<cow_String> Path() const override {
    std::vector<cow_String> p = owner_.Path();
    p.push_back(Name());
    return p;
  }

  // Null when the amplitude is missing, of another kind, or has no correction.
  const kamC_BaselineCorrection* ConstGet(const ddr_Model& model) const override {
    const Kind* k = Narrow(owner_.ConstGet(model));
    return k ? k->FindBaselineCorrection() : nullptr;
  }
  // Refuses before the repository records a modification.
  kamC_BaselineCorrection& Get(ddr_Model& model) const override {
    if (const kamC_Amplitude* a = owner_.ConstGet(model)) {
      if (!Narrow(a)) ddr_RefuseShortcutPath(Path(), std::string("the amplitude is not a ") + Kind::kClassName);
      if (!a->FindBaselineCorrection()) ddr_RefuseShortcutPath(Path(), "the amplitude has no baseline correction");
    }
    return *owner_.Get(model).ModifyBaselineCorrection();
  }
  void DBWrite(const cls_WriteVisitor& w) const override {
    if (!w.StartWrite(Self::TypeId(), this->GetUid())) return;
    w.WriteObject("owner", &owner_, [](const void* p, const cls_WriteVisitor& v) {
      static_cast<const kamC_AmplitudeShortcut*>(p)->DBWrite(v);
    });
  }

 private:
  static const Kind* Narrow(const kamC_Amplitude* a) {
    if constexpr (std::is_same_v<Kind, kamC_Amplitude>) return a;
    else return dynamic_cast<const Kind*>(a);
  }
  kamC_AmplitudeShortcut owner_;
};

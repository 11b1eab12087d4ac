#pragma once
// A sub-option inside an option ("failStress" of an elastic option), by its scripting name. The
// name is checked against the owning option when the shortcut resolves, and an unknown one is
// refused with the owning option's own message.
#include "kma/kmaC_MaterialOptionShortcut.h"

class kmaC_MaterialOptionInMaterialOptionShortcut : public kmaC_MaterialOptionIMPLSC {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionInMaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 103); }

  kmaC_MaterialOptionInMaterialOptionShortcut(kmaC_MaterialOptionShortcut owner, const cow_String& name)
      : owner_(std::move(owner)), name_(name) {}
  static kmaC_MaterialOptionInMaterialOptionShortcut Ctor(const cls_ReadVisitor& r);

  const kmaC_MaterialOptionShortcut& Owner() const noexcept { return owner_; }
  kmaC_MaterialOptionIMPLSC* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
  cow_String Name() const override { return name_; }
  std::vector<cow_String> Path() const override;
  // Null when the owner is missing or the sub-option is absent; refuses an unknown name.
  const kmaC_MaterialOption* ConstGet(const ddr_Model& model) const override;
  kmaC_MaterialOption& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  kmaC_MaterialOptionShortcut owner_;
  cow_String name_;
};

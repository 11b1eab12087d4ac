#pragma once
// The option in one slot of a material, the slot named by its scripting name ("elastic").
#include "kma/kmaC_MaterialOptionIMPLSC.h"
#include "kma/kmaC_MaterialShortcut.h"

class kmaC_MaterialOptionInMaterialShortcut : public kmaC_MaterialOptionIMPLSC {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionInMaterialShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 102); }

  // Refuses a name that is not a slot of the material with "Unknown material option".
  kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialShortcut owner, const cow_String& slot);
  static kmaC_MaterialOptionInMaterialShortcut Ctor(const cls_ReadVisitor& r);

  const kmaC_MaterialShortcut& Owner() const noexcept { return owner_; }
  kmaC_MaterialOptionIMPLSC* Copy() const override;
  const char* ClassName() const override { return kClassName; }
  unsigned ClassTypeId() const override { return TypeId(); }
  cow_String Name() const override { return slot_; }
  std::vector<cow_String> Path() const override;
  // Null when the material is missing or the slot is empty.
  const kmaC_MaterialOption* ConstGet(const ddr_Model& model) const override;
  kmaC_MaterialOption& Get(ddr_Model& model) const override;
  void DBWrite(const cls_WriteVisitor& w) const override;

 private:
  kmaC_MaterialShortcut owner_;
  cow_String slot_;
};

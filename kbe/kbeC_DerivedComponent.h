#pragma once
// A named derived component: a combination of terms over the connector's components.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "kbe/kbeC_Values.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "kbe/kbeC_CDCTerm.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbeC_DerivedComponent : public fw_PersistentClass<kbeC_DerivedComponent, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "kbeC_DerivedComponent";
  static constexpr const char* kScriptName = "DerivedComponent";
  static constexpr int kVersion = 836;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 3); }

  // Persistent fields in write order (the numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kbeC_DerivedComponent;
    return std::tuple{
        fw_Field{"name", 0, "name", &C::name},
        fw_Field{"cdcTerms", 1, "cdcTerms", &C::cdcTerms},
    };
  }

  kbeC_DerivedComponent() = default;
  explicit kbeC_DerivedComponent(const cls_ReadVisitor& r);
  virtual ~kbeC_DerivedComponent() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  void AppendCdcTerm(const kbeC_CDCTerm& term) { cdcTerms.Append(cow_COW<kbeC_CDCTerm>(term)); }
  // Refuses (content error 0, naming the available components) a term that uses a component
  // the connection does not offer.
  void AssertComponentsAvailable(const cow_List<std::int32_t>& available) const;
  const cow_String& GetName() const { return name; }
  void SetName(const cow_String& v) { name = v; }
  const cow_List<cow_COW<kbeC_CDCTerm>>& GetCdcTerms() const { return cdcTerms; }
  cow_List<cow_COW<kbeC_CDCTerm>>& ModifyCdcTerms() { return cdcTerms; }
  void SetCdcTerms(const cow_List<cow_COW<kbeC_CDCTerm>>& v) { cdcTerms = v; }

 private:
  cow_String name;
  cow_List<cow_COW<kbeC_CDCTerm>> cdcTerms;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kbeC_DerivedComponent, mem_Allocated>;

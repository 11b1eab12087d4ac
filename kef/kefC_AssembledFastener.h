#pragma once
// An assembled fastener: a template model copied to each point of a control set, its template
// surfaces assigned to surfaces of this model.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Fastener.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"

class kefC_AssembledFastener : public fw_PersistentClass<kefC_AssembledFastener, kefC_Fastener> {
 public:
  using BaseClass = kefC_Fastener;
  using RootClass = kefC_Fastener;
  static constexpr const char* kClassName = "kefC_AssembledFastener";
  static constexpr const char* kScriptName = "AssembledFastener";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 10); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_AssembledFastener;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"region", 1, "region", &C::region},
        fw_Field{"csys", 2, "csys", &C::csys},
        fw_Field{"ur1", 3, "ur1", &C::ur1},
        fw_Field{"ur2", 4, "ur2", &C::ur2},
        fw_Field{"ur3", 5, "ur3", &C::ur3},
        fw_Field{"influenceRadius", 6, "influenceRadius", &C::influenceRadius},
        fw_Field{"weightingMethod", 7, "weightingMethod", &C::weightingMethod},
        fw_Field{"coupling", 8, "coupling", &C::coupling},
        fw_Field{"rotCoupling", 9, "rotationalCoupling", &C::rotCoupling},
        fw_Field{"templateModel", 10, "templateModel", &C::templateModel},
        fw_Field{"controlSet", 11, "controlSet", &C::controlSet},
        fw_Field{"propertyPrefix", 12, "propertyPrefix", &C::propertyPrefix},
        fw_Field{"templateSurfaces", 13, "templateSurfaces", &C::templateSurfaces},
        fw_Field{"assignedSurfaces", 14, "assignedSurfaces", &C::assignedSurfaces},
        fw_Field{"orientMethod", 15, "orientMethod", &C::orientMethod},
        fw_Field{"scriptName", 16, "scriptName", &C::scriptName},
        fw_Field{"flipNormal", 17, "flipNormal", &C::flipNormal},
    };
  }

  kefC_AssembledFastener() = default;
  explicit kefC_AssembledFastener(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetTemplateModel() const { return templateModel; }
  void SetTemplateModel(const cow_String& v) { AssertEditable(); templateModel = v; }
  const cow_String& GetControlSet() const { return controlSet; }
  void SetControlSet(const cow_String& v) { AssertEditable(); controlSet = v; }
  const cow_String& GetPropertyPrefix() const { return propertyPrefix; }
  void SetPropertyPrefix(const cow_String& v) { AssertEditable(); propertyPrefix = v; }
  const cow_List<cow_String>& GetTemplateSurfaces() const { return templateSurfaces; }
  void SetTemplateSurfaces(const cow_List<cow_String>& v) { AssertEditable(); templateSurfaces = v; }
  const cow_List<cow_String>& GetAssignedSurfaces() const { return assignedSurfaces; }
  void SetAssignedSurfaces(const cow_List<cow_String>& v) { AssertEditable(); assignedSurfaces = v; }
  kefC_OrientMethodEnum GetOrientMethod() const { return orientMethod; }
  void SetOrientMethod(kefC_OrientMethodEnum v) { AssertEditable(); orientMethod = v; }
  const cow_String& GetScriptName() const { return scriptName; }
  void SetScriptName(const cow_String& v) { AssertEditable(); scriptName = v; }
  bool GetFlipNormal() const { return flipNormal; }
  void SetFlipNormal(bool v) { AssertEditable(); flipNormal = v; }

 private:
  cow_String templateModel;
  cow_String controlSet;
  cow_String propertyPrefix;
  cow_List<cow_String> templateSurfaces;
  cow_List<cow_String> assignedSurfaces;
  kefC_OrientMethodEnum orientMethod = kefC_OrientMethodEnum::NORMALS;
  cow_String scriptName;
  bool flipNormal = false;
};

extern template class fw_PersistentClass<kefC_AssembledFastener, kefC_Fastener>;

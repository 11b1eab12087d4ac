#pragma once
// The engineering features of a model ("engineeringFeatures"): one object that the model holds as
// an extension, owning the five containers of features by name. Scripts reach a feature through
// it: ["Model-1", "engineeringFeatures", "inertias", "PM-1"].
#include "framework/fw_Field.h"
#include "kef/kefC_CrackContainer.h"
#include "kef/kefC_FastenerContainer.h"
#include "kef/kefC_ImperfectionContainer.h"
#include "kef/kefC_InertiaContainer.h"
#include "kef/kefC_SpringContainer.h"
#include "platform/model/mdl_Extension.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kefC_EngineeringFeatures : public mdl_Extension {
 public:
  using RootClass = mdl_Extension;
  static constexpr const char* kClassName = "kefC_EngineeringFeatures";
  // The name that addresses the object in a model.
  static constexpr const char* kExtensionName = "engineeringFeatures";
  static constexpr int kVersion = 844;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 1); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_EngineeringFeatures;
    return std::tuple{
        fw_Field{"inertiaContainer", 0, "inertias", &C::inertiaContainer},
        fw_Field{"fastenerContainer", 1, "fasteners", &C::fastenerContainer},
        fw_Field{"crackContainer", 2, "cracks", &C::crackContainer},
        fw_Field{"springContainer", 3, "springDashpots", &C::springContainer},
        fw_Field{"imperfectionContainer", 4, "imperfections", &C::imperfectionContainer},
    };
  }

  kefC_EngineeringFeatures() = default;
  explicit kefC_EngineeringFeatures(const cls_ReadVisitor& r);
  void DBWrite(const cls_WriteVisitor& w) const override;
  kefC_EngineeringFeatures* Copy() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // --- mdl_Extension: one object, not a repository ---
  mdl_Repository* Repository() override { return nullptr; }
  const mdl_Repository* Repository() const override { return nullptr; }
  const char* ExtensionName() const override { return kExtensionName; }
  bool Equals(const mdl_Extension& o) const override;

  bool operator==(const kefC_EngineeringFeatures& o) const;
  bool operator!=(const kefC_EngineeringFeatures& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  const kefC_InertiaContainer& GetInertiaContainer() const { return inertiaContainer; }
  kefC_InertiaContainer& GetInertiaContainer() { return inertiaContainer; }
  const kefC_FastenerContainer& GetFastenerContainer() const { return fastenerContainer; }
  kefC_FastenerContainer& GetFastenerContainer() { return fastenerContainer; }
  const kefC_CrackContainer& GetCrackContainer() const { return crackContainer; }
  kefC_CrackContainer& GetCrackContainer() { return crackContainer; }
  const kefC_SpringContainer& GetSpringContainer() const { return springContainer; }
  kefC_SpringContainer& GetSpringContainer() { return springContainer; }
  const kefC_ImperfectionContainer& GetImperfectionContainer() const { return imperfectionContainer; }
  kefC_ImperfectionContainer& GetImperfectionContainer() { return imperfectionContainer; }

 private:
  kefC_InertiaContainer inertiaContainer;
  kefC_FastenerContainer fastenerContainer;
  kefC_CrackContainer crackContainer;
  kefC_SpringContainer springContainer;
  kefC_ImperfectionContainer imperfectionContainer;
  cls_Uid uid;
};

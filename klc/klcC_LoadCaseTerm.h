#pragma once
// One member of a load case: a load or boundary condition of the model, by name, with the factor
// it is scaled by.
#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_String.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class klcC_LoadCaseTerm : public fw_PersistentClass<klcC_LoadCaseTerm, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "klcC_LoadCaseTerm";
  static constexpr const char* kScriptName = "LoadCaseTerm";
  static constexpr int kVersion = 732;
  static constexpr unsigned TypeId() { return fw_TypeId(732, 2); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = klcC_LoadCaseTerm;
    return std::tuple{
        fw_Field{"name", 0, "name", &C::name},
        fw_Field{"scaleFactor", 1, "scaleFactor", &C::scaleFactor},
    };
  }

  klcC_LoadCaseTerm() = default;
  klcC_LoadCaseTerm(const cow_String& name_, double scaleFactor_) : name(name_), scaleFactor(scaleFactor_) {}
  explicit klcC_LoadCaseTerm(const cls_ReadVisitor& r);
  virtual ~klcC_LoadCaseTerm() = default;
  // The term on its own: named, with a finite factor.
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  const cow_String& GetName() const { return name; }
  void SetName(const cow_String& v) { name = v; }
  double GetScaleFactor() const { return scaleFactor; }
  void SetScaleFactor(double v) { scaleFactor = v; }

 private:
  cow_String name;  // the name of a load or boundary condition of the model
  double scaleFactor = 1.0;
  cls_Uid uid;
};

extern template class fw_PersistentClass<klcC_LoadCaseTerm, mem_Allocated>;

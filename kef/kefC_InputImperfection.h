#pragma once
// An imperfection read from an input file, in a coordinate system of the given kind.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Imperfection.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_String.h"

class kefC_InputImperfection : public fw_PersistentClass<kefC_InputImperfection, kefC_Imperfection> {
 public:
  using BaseClass = kefC_Imperfection;
  using RootClass = kefC_Imperfection;
  static constexpr const char* kClassName = "kefC_InputImperfection";
  static constexpr const char* kScriptName = "InputImperfection";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 24); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_InputImperfection;
    return std::tuple{
        fw_Field{"inputFile", 1, "inputFile", &C::inputFile},
        fw_Field{"system", 2, "system", &C::system},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_InputImperfection() = default;
  explicit kefC_InputImperfection(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetInputFile() const { return inputFile; }
  void SetInputFile(const cow_String& v) { inputFile = v; }
  kefC_SystemEnum GetSystem() const { return system; }
  void SetSystem(kefC_SystemEnum v) { system = v; }

 private:
  cow_String inputFile;
  kefC_SystemEnum system = kefC_SystemEnum::CARTESIAN;
};

extern template class fw_PersistentClass<kefC_InputImperfection, kefC_Imperfection>;

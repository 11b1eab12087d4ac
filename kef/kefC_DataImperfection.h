#pragma once
// An imperfection given as data: one row of displacements per node, the nodes by number.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Imperfection.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_List.h"

class kefC_DataImperfection : public fw_PersistentClass<kefC_DataImperfection, kefC_Imperfection> {
 public:
  using BaseClass = kefC_Imperfection;
  using RootClass = kefC_Imperfection;
  static constexpr const char* kClassName = "kefC_DataImperfection";
  static constexpr const char* kScriptName = "DataImperfection";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 25); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_DataImperfection;
    return std::tuple{
        fw_Field{"imperfectionTable", 1, "imperfectionTable", &C::imperfectionTable},
        fw_Field{"nodeNumbers", 2, "nodeNumbers", &C::nodeNumbers},
        fw_Field{"system", 3, "system", &C::system},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_DataImperfection() = default;
  explicit kefC_DataImperfection(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_2DArray<double>& GetImperfectionTable() const { return imperfectionTable; }
  void SetImperfectionTable(const cow_2DArray<double>& v) { imperfectionTable = v; }
  const cow_List<std::int32_t>& GetNodeNumbers() const { return nodeNumbers; }
  void SetNodeNumbers(const cow_List<std::int32_t>& v) { nodeNumbers = v; }
  kefC_SystemEnum GetSystem() const { return system; }
  void SetSystem(kefC_SystemEnum v) { system = v; }

 private:
  cow_2DArray<double> imperfectionTable;
  cow_List<std::int32_t> nodeNumbers;
  kefC_SystemEnum system = kefC_SystemEnum::CARTESIAN;
};

extern template class fw_PersistentClass<kefC_DataImperfection, kefC_Imperfection>;

#pragma once
// A table of parameter columns: the parameters that index the data of property tables.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_ParameterColumnList.h"
#include "platform/base/cow_String.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_ParameterTable : public fw_PersistentClass<ktbC_ParameterTable, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "ktbC_ParameterTable";
  static constexpr const char* kScriptName = "ParameterTable";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 4); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_ParameterTable;
    return std::tuple{
        fw_Field{"label", 0, "label", &C::label},
        fw_Field{"parameters", 1, "parameters", &C::parameters},
    };
  }

  ktbC_ParameterTable() = default;
  explicit ktbC_ParameterTable(const cls_ReadVisitor& reader);
  virtual ~ktbC_ParameterTable() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_String& GetLabel() const { return label; }
  void SetLabel(const cow_String& v) { label = v; }
  const ktbC_ParameterColumnList& GetParameters() const { return parameters; }
  void SetParameters(const ktbC_ParameterColumnList& v) { parameters = v; }
  ktbC_ParameterColumnList& ModifyParameters() { return parameters; }

 private:
  cow_String label;
  ktbC_ParameterColumnList parameters;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_ParameterTable, mem_Allocated>;

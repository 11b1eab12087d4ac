#pragma once
// A property table: the names of its properties, the parameter table whose parameters index it
// (by name, in the same collection) and its data by name.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_PropertyTableDataCont.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_PropertyTable : public fw_PersistentClass<ktbC_PropertyTable, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "ktbC_PropertyTable";
  static constexpr const char* kScriptName = "PropertyTable";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 6); }
  static constexpr int kDataContainerField = 2;

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_PropertyTable;
    return std::tuple{
        fw_Field{"properties", 0, "properties", &C::properties},
        fw_Field{"parameterTable", 1, "parameterTable", &C::parameterTable},
        fw_Field{"propertyTableDataContainer", 2, "propertyTableDatas", &C::propertyTableDataContainer},
    };
  }

  ktbC_PropertyTable() = default;
  explicit ktbC_PropertyTable(const cls_ReadVisitor& reader);
  virtual ~ktbC_PropertyTable() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const cow_List<cow_String>& GetProperties() const { return properties; }
  void SetProperties(const cow_List<cow_String>& v) { properties = v; }
  const cow_String& GetParameterTable() const { return parameterTable; }
  void SetParameterTable(const cow_String& v) { parameterTable = v; }
  const ktbC_PropertyTableDataCont& GetPropertyTableDataContainer() const { return propertyTableDataContainer; }
  void SetPropertyTableDataContainer(const ktbC_PropertyTableDataCont& v) { propertyTableDataContainer = v; }
  ktbC_PropertyTableDataCont& ModifyPropertyTableDataContainer() { return propertyTableDataContainer; }

 private:
  cow_List<cow_String> properties;
  cow_String parameterTable;
  ktbC_PropertyTableDataCont propertyTableDataContainer;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_PropertyTable, mem_Allocated>;

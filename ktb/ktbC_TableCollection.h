#pragma once
// A collection of tables: parameter tables, property tables and data tables, each by name.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "ktb/ktbC_CompositeColTableCont.h"
#include "ktb/ktbC_ParameterTableCont.h"
#include "ktb/ktbC_PropertyTableCont.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_TableCollection : public fw_PersistentClass<ktbC_TableCollection, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "ktbC_TableCollection";
  static constexpr const char* kScriptName = "TableCollection";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 1); }
  static constexpr int kParameterTablesField = 0;
  static constexpr int kPropertyTablesField = 1;
  static constexpr int kDataTablesField = 2;
  static const char* constructorCmd() { return kScriptName; }
  // The scripting name of one parameter table.
  static const char* parameterTableCmd() { return "parameterTable"; }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_TableCollection;
    return std::tuple{
        fw_Field{"parameterTableContainer", 0, "parameterTables", &C::parameterTableContainer},
        fw_Field{"propertyTableContainer", 1, "propertyTables", &C::propertyTableContainer},
        fw_Field{"dataTables", 2, "dataTables", &C::dataTables},
    };
  }

  ktbC_TableCollection() = default;
  explicit ktbC_TableCollection(const cls_ReadVisitor& reader);
  virtual ~ktbC_TableCollection() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  const ktbC_ParameterTableCont& GetParameterTableContainer() const { return parameterTableContainer; }
  void SetParameterTableContainer(const ktbC_ParameterTableCont& v) { parameterTableContainer = v; }
  const ktbC_PropertyTableCont& GetPropertyTableContainer() const { return propertyTableContainer; }
  void SetPropertyTableContainer(const ktbC_PropertyTableCont& v) { propertyTableContainer = v; }
  const ktbC_CompositeColTableCont& GetDataTables() const { return dataTables; }
  void SetDataTables(const ktbC_CompositeColTableCont& v) { dataTables = v; }
  ktbC_ParameterTableCont& ModifyParameterTableContainer() { return parameterTableContainer; }
  ktbC_PropertyTableCont& ModifyPropertyTableContainer() { return propertyTableContainer; }
  ktbC_CompositeColTableCont& ModifyDataTables() { return dataTables; }

 private:
  ktbC_ParameterTableCont parameterTableContainer;
  ktbC_PropertyTableCont propertyTableContainer;
  ktbC_CompositeColTableCont dataTables;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_TableCollection, mem_Allocated>;

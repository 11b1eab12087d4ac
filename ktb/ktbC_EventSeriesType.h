#pragma once
// The type of an event series: each event carries its time, its position (three coordinates) and
// "fieldNums" field values.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class ktbC_EventSeriesType : public fw_PersistentClass<ktbC_EventSeriesType, mem_Allocated> {
 public:
  static constexpr const char* kClassName = "ktbC_EventSeriesType";
  static constexpr const char* kScriptName = "EventSeriesType";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 8); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = ktbC_EventSeriesType;
    return std::tuple{
        fw_Field{"fieldNums", 0, "fieldNums", &C::fieldNums},
    };
  }

  ktbC_EventSeriesType() = default;
  explicit ktbC_EventSeriesType(const cls_ReadVisitor& reader);
  virtual ~ktbC_EventSeriesType() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  std::int32_t GetFieldNums() const { return fieldNums; }
  void SetFieldNums(std::int32_t v) { fieldNums = v; }

 private:
  std::int32_t fieldNums = 0;
  cls_Uid uid;
};

extern template class fw_PersistentClass<ktbC_EventSeriesType, mem_Allocated>;

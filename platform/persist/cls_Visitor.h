#pragma once
// The persistence protocol: a class writes itself through a cls_WriteVisitor and is read back
// through a cls_ReadVisitor. Backends (in-memory records, the database file) implement both.
#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "platform/persist/cls_Uid.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_String.h"

class cls_WriteVisitor;
class cls_ReadVisitor;

// Writes one member object (given as an untyped pointer) through a visitor.
using cls_WriteFn = void (*)(const void* obj, const cls_WriteVisitor& v);
// Called with a reader of a member record.
using cls_ReadFn = std::function<void(const cls_ReadVisitor&)>;
// Called for each element of a list of objects; the reader is null for a null element.
using cls_ReadListFn = std::function<void(std::size_t index, const cls_ReadVisitor* element)>;

class cls_WriteVisitor {
 public:
  virtual ~cls_WriteVisitor() = default;
  // Starts the record of an object; a visitor may decline (false), and the object then writes
  // nothing more.
  virtual bool StartWrite(unsigned typeId, const cls_Uid& uid) const = 0;
  virtual void WriteInt(const char* name, std::int32_t v) const = 0;
  virtual void WriteDouble(const char* name, double v) const = 0;
  virtual void WriteBool(const char* name, bool v) const = 0;
  // Strings, enumeration literals and region names.
  virtual void WriteString(const char* name, const cow_String& v) const = 0;
  virtual void WriteIntList(const char* name, const std::vector<std::int32_t>& v) const = 0;
  virtual void WriteDoubleList(const char* name, const std::vector<double>& v) const = 0;
  virtual void WriteStringList(const char* name, const std::vector<cow_String>& v) const = 0;
  virtual void WriteBoolList(const char* name, const std::vector<bool>& v) const = 0;
  virtual void WriteDoubleTable(const char* name, const cow_2DArray<double>& v) const = 0;
  // An absent member object.
  virtual void WriteNull(const char* name) const = 0;
  // A member object, written as a nested record by fn.
  virtual void WriteObject(const char* name, const void* obj, cls_WriteFn fn) const = 0;
  // A list of member objects (null pointers stand for null elements).
  virtual void WriteObjectList(const char* name, const std::vector<const void*>& objs, cls_WriteFn fn) const = 0;
};

class cls_ReadVisitor {
 public:
  virtual ~cls_ReadVisitor() = default;
  virtual cls_Uid GetUid() const = 0;
  virtual unsigned GetTypeId() const = 0;
  virtual bool Has(const char* name) const = 0;
  // Each read refuses a missing field or a value of another kind with a nex_CmdException.
  virtual std::int32_t ReadInt(const char* name) const = 0;
  virtual double ReadDouble(const char* name) const = 0;
  virtual bool ReadBool(const char* name) const = 0;
  virtual cow_String ReadString(const char* name) const = 0;
  virtual std::vector<std::int32_t> ReadIntList(const char* name) const = 0;
  virtual std::vector<double> ReadDoubleList(const char* name) const = 0;
  virtual std::vector<cow_String> ReadStringList(const char* name) const = 0;
  virtual std::vector<bool> ReadBoolList(const char* name) const = 0;
  virtual cow_2DArray<double> ReadDoubleTable(const char* name) const = 0;
  // Calls fn with the member's reader and returns true, or returns false for a null member.
  virtual bool ReadObject(const char* name, const cls_ReadFn& fn) const = 0;
  // Calls fn for each element in order; returns the number of elements.
  virtual std::size_t ReadObjectList(const char* name, const cls_ReadListFn& fn) const = 0;
};

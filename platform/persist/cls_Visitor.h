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
#include "platform/persist/cls_Value.h"

class cls_WriteVisitor;
class cls_ReadVisitor;

// A class's persistent fields as its field table lists them: the key a visitor checks once per
// stored class before it offers that class's rows by position (no lookups by name).
struct cls_FieldLayout {
  std::size_t count = 0;
  const char* const* names = nullptr;  // persistent names, in write order
  const int* types = nullptr;          // attribute types
  const bool* cells = nullptr;         // whether the class writes the field into a plain cell
};

// One plain field of a row written by position: ints and bools in `integer`, doubles in
// `number`, texts as bytes that stay valid until the row is stored.
struct cls_WriteCell {
  std::int64_t integer = 0;
  double number = 0;
  const char* text = "";
  std::size_t size = 0;
};

// The value of an enumeration literal that a reader shares between rows, filled in by the first
// class that reads it, so that each literal is looked up once per file, not once per row.
struct cls_LiteralCode {
  const void* table = nullptr;  // the literal table the code belongs to; null until known
  std::int32_t code = 0;
};

// One field of a row read by position. Plain values as stored; texts, lists and tables point at
// values the reader keeps until the row is done; member objects are read by name.
struct cls_ReadCell {
  std::int64_t integer = 0;
  double number = 0;
  const cow_String* text = nullptr;
  cls_LiteralCode* code = nullptr;  // for a shared enumeration literal, else null
  const cls_Value* value = nullptr;  // lists and tables
};

// Writes one member object (given as an untyped pointer) through a visitor.
using cls_WriteFn = void (*)(const void* obj, const cls_WriteVisitor& v);
// Called with a reader of a member record.
using cls_ReadFn = std::function<void(const cls_ReadVisitor&)>;
// Called for each element of a list of objects; the reader is null for a null element.
using cls_ReadListFn = std::function<void(std::size_t index, const cls_ReadVisitor* element)>;

// The key of one element of a keyed collection: a name, or a 32-bit integer.
struct cls_ElementKey {
  const cow_String* text = nullptr;  // null for an integer key
  std::int32_t integer = 0;
};

// The elements of a repository under their keys, in key order, as a visitor may store them: one
// row each, so that a save in place visits only the elements that changed.
class cls_KeyedObjects {
 public:
  using Visit = std::function<void(const cls_ElementKey& key, const void* obj)>;
  // old is null for an element added since, now null for one removed since.
  using Change = std::function<void(const cls_ElementKey& key, const void* old, const void* now)>;
  virtual ~cls_KeyedObjects() = default;
  virtual std::size_t Size() const = 0;
  virtual bool IntegerKeys() const = 0;
  virtual void ForEach(const Visit& visit) const = 0;
  // The collection object itself, as an older state of it is handed back to DiffFrom.
  virtual const void* Self() const = 0;
  // The elements in which this collection differs from `older`, which Self() of a collection of
  // the same class returned, in key order; elements both share are not visited.
  virtual void DiffFrom(const void* older, const Change& change) const = 0;
  // Writes one element.
  virtual cls_WriteFn WriteFn() const = 0;
};

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
  // A keyed collection of member objects, stored as the field `keysName` (a list of the keys)
  // and the field `valuesName` (a list of the objects, in the same order); a visitor that keeps
  // elements apart overrides this.
  virtual void WriteKeyedObjects(const char* keysName, const char* valuesName, const cls_KeyedObjects& objs) const;
  // After StartWrite: cells for the plain fields (ints, doubles, bools, texts) by position, when
  // the record's stored fields are exactly `layout`; the fields the layout marks as cells then
  // count as written. Null otherwise. The other fields are written by name either way.
  virtual cls_WriteCell* Positional(const cls_FieldLayout& layout) const {
    (void)layout;
    return nullptr;
  }
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
  // ReadStringList for a caller that reads the field once and keeps what it reads: a reader may
  // hand over its own list instead of a copy (a repository's keys, by the ten thousand). The
  // field reads as absent afterwards from a reader that does.
  virtual std::vector<cow_String> TakeStringList(const char* name) const { return ReadStringList(name); }
  virtual std::vector<bool> ReadBoolList(const char* name) const = 0;
  virtual cow_2DArray<double> ReadDoubleTable(const char* name) const = 0;
  // Calls fn with the member's reader and returns true, or returns false for a null member.
  virtual bool ReadObject(const char* name, const cls_ReadFn& fn) const = 0;
  // Calls fn for each element in order; returns the number of elements.
  virtual std::size_t ReadObjectList(const char* name, const cls_ReadListFn& fn) const = 0;
  // The row's fields by position when they are stored exactly as `layout` lists them; null
  // otherwise. Member objects are read by name either way.
  virtual const cls_ReadCell* Positional(const cls_FieldLayout& layout) const {
    (void)layout;
    return nullptr;
  }
};

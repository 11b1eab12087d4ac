#pragma once
// The write visitor of the database file: collects one object's fields as it writes them and
// stores them as one row of its class's table when the object is done. Member objects are
// stored first, as rows of their own classes, and referenced by OID and class id.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/persist/cls_Visitor.h"
#include "dbfile/dbf_Patch.h"
#include "dbfile/dbf_Writer.h"

// The uid as the UID column holds it: 32 hexadecimal digits, no terminator.
void dbf_HexUid(const cls_Uid& uid, char* out);

class dbf_RowWriter final : public cls_WriteVisitor {
 public:
  dbf_RowWriter(dbf_Writer& writer, std::size_t depth) : writer_(writer), depth_(depth) {}

  bool StartWrite(unsigned typeId, const cls_Uid& uid) const override;
  void WriteInt(const char* name, std::int32_t v) const override;
  void WriteDouble(const char* name, double v) const override;
  void WriteBool(const char* name, bool v) const override;
  void WriteString(const char* name, const cow_String& v) const override;
  void WriteIntList(const char* name, const std::vector<std::int32_t>& v) const override;
  void WriteDoubleList(const char* name, const std::vector<double>& v) const override;
  void WriteStringList(const char* name, const std::vector<cow_String>& v) const override;
  void WriteBoolList(const char* name, const std::vector<bool>& v) const override;
  void WriteDoubleTable(const char* name, const cow_2DArray<double>& v) const override;
  void WriteNull(const char* name) const override;
  void WriteObject(const char* name, const void* obj, cls_WriteFn fn) const override;
  void WriteObjectList(const char* name, const std::vector<const void*>& objs, cls_WriteFn fn) const override;
  // In a new row, every element; written over a stored row, only the elements that differ from
  // the state the file holds (dbf_Elements).
  void WriteKeyedObjects(const char* keysName, const char* valuesName, const cls_KeyedObjects& objs) const override;
  cls_WriteCell* Positional(const cls_FieldLayout& layout) const override;

  // Stores the row written since StartWrite and returns its reference. Refuses an object that
  // started no record or left a declared field unwritten.
  dbf_Ref Finish();
  // In a patch: the next object this writer writes takes the place of the stored one, keeping
  // its row when it is of the same class.
  void Expect(const dbf_Stored& old) const { expected_ = old; }

 private:
  // By field: plain values in plain_ (texts as bytes that live until Finish: a string written by
  // name is held in hold), the rest in Cell.
  struct Cell {
    cow_String hold;
    std::string bytes;  // list text and table blobs
    dbf_Ref ref;
  };
  std::size_t Slot(const char* name, dbf_Kind kind) const;
  void RefuseNul(std::size_t field, std::string_view text) const;
  // In a patch, for a member object at field i: its stored reference when the old state held
  // this very object there; else the child writer is told which stored object it replaces.
  bool Kept(std::size_t i, const void* obj, dbf_Ref& ref) const;
  void Pair(std::size_t i, std::size_t position, std::size_t count) const;
  // Whether the row as bound is the stored one, column for column.
  bool SameAsStored() const;
  // Deletes the stored rows of what the old object held and the new one does not.
  void DropUnclaimed() const;
  std::string ClassName() const;

  dbf_Writer& writer_;
  std::size_t depth_;
  mutable dbf_WriteTable* table_ = nullptr;
  mutable std::int64_t oid_ = 0;
  mutable char uid_[32] = {};
  mutable std::vector<cls_WriteCell> plain_;
  mutable std::vector<Cell> cells_;
  mutable std::vector<char> written_;
  mutable std::size_t cursor_ = 0;
  // A patch's: the stored object this one replaces, and its row when it is written over.
  mutable dbf_Stored expected_;
  mutable bool over_ = false;
  mutable dbf_OldRow old_;
  mutable std::vector<dbf_Ref> doomed_;  // stored rows to delete once this row is stored
};

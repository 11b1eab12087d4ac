// Rows stored at an older class version or under a retired class name, carried up their chain
// of conversions as they are loaded.
#include "dbfile/dbf_Reader.h"

#include <memory>

#include "dbfile/dbf_ReaderSupport.h"

cls_Record dbf_Reader::RawRecord(const dbf_LoadedRow& row) {
  const dbf_ReadTable& t = *row.table;
  cls_Record rec;
  rec.typeId = t.storedTypeId;
  rec.uid = row.uid;
  for (std::size_t i = 0; i < t.fields.size(); ++i) {
    const dbf_ReadField& f = t.fields[i];
    if (f.kind == dbf_Kind::Object) {
      const dbf_Ref& ref = row.refs[row.spans[i].first];
      rec.fields.emplace_back(f.name + "#OID", ref.oid ? cls_Value(static_cast<std::int32_t>(ref.oid)) : cls_Value());
      rec.fields.emplace_back(f.name + "#ClassID",
                              ref.oid ? cls_Value(static_cast<std::int32_t>(ref.classId)) : cls_Value());
    } else if (f.kind == dbf_Kind::ObjectList) {
      std::vector<std::int32_t> oids, ids;
      for (std::uint32_t k = 0; k < row.spans[i].second; ++k) {
        const dbf_Ref& ref = row.refs[row.spans[i].first + k];
        oids.push_back(static_cast<std::int32_t>(ref.oid));
        ids.push_back(static_cast<std::int32_t>(ref.classId));
      }
      rec.fields.emplace_back(f.name + "#OID", std::move(oids));
      rec.fields.emplace_back(f.name + "#ClassID", std::move(ids));
    } else {
      rec.fields.emplace_back(f.name, ValueOf(row, i));
    }
  }
  return rec;
}

std::shared_ptr<const cls_Record> dbf_Reader::FetchRaw(dbf_ReadTable& t, std::int64_t oid) {
  if (oid < 1 || oid > t.rows) return nullptr;
  if (!MarkLoaded(t, oid))
    dbf_Damaged(std::string("row ") + std::to_string(oid) + " of class " + t.className + " is held twice");
  ++t.loaded;
  sqlite3_stmt* s = Position(t, oid);
  if (!s) return nullptr;
  dbf_LoadedRow row;
  row.table = &t;
  row.oid = oid;
  if (sqlite3_column_type(s, 1) != SQLITE_TEXT || !dbf_ParseUid(dbf_Text(s, 1), row.uid))
    dbf_DamagedField(t, oid, dbf_kUidColumn, "no uid");
  Extract(t, s, row);
  return std::make_shared<const cls_Record>(RawRecord(row));
}

// The other rows of the file, as a conversion that renames a class sees them.
class dbf_Reader::Source final : public dbc_RowSource {
 public:
  Source(dbf_Reader& reader, dbf_LoadedRow::Upgraded& up) : reader_(reader), up_(up) {}
  std::shared_ptr<const cls_Record> Fetch(std::uint32_t classId, std::int64_t oid) override {
    auto it = reader_.byStoredId_.find(classId);
    return it == reader_.byStoredId_.end() ? nullptr : reader_.FetchRaw(*it->second, oid);
  }
  std::shared_ptr<const cls_Record> FetchByName(const std::string& className, std::int64_t oid) override {
    for (const auto& t : reader_.tables_)
      if (t->className == className) return reader_.FetchRaw(*t, oid);
    return nullptr;
  }
  std::string ClassName(std::uint32_t classId) const override {
    auto it = reader_.byStoredId_.find(classId);
    return it == reader_.byStoredId_.end() ? std::string() : it->second->className;
  }
  cls_RecordPtr Reference(std::uint32_t classId, std::int64_t oid) override {
    auto rec = std::make_shared<cls_Record>();
    rec->typeId = reader_.CurrentTypeId(classId);
    up_.stubs.emplace(rec.get(), std::pair{cls_RecordPtr(rec), dbf_Ref{oid, classId}});
    return rec;
  }

 private:
  dbf_Reader& reader_;
  dbf_LoadedRow::Upgraded& up_;
};

void dbf_Reader::Rename(dbf_LoadedRow& row) {
  dbf_ReadTable& t = *row.table;
  const cls_Record old = RawRecord(row);
  auto up = Reuse(row);
  up->record.fields.clear();  // the rename's conversion builds the row from nothing
  up->record.typeId = t.cls->TypeId();
  up->record.uid = row.uid;
  Source source(*this, *up);
  dbc_Row oldRow(old);
  oldRow.SetSource(&source);
  dbc_Row newRow(up->record);
  newRow.SetSource(&source);
  if (dbc_ConversionFn fn = t.rename->Function()) fn(oldRow, newRow, t.rename->Arg());
  dbc_UpgradeDriver::Run(t.steps, up->record, up->scratch);
  row.upgraded = std::move(up);
}

// The row as a record at its stored version, member objects as stub records of their classes,
// carried through the conversions to the class's current version.
void dbf_Reader::Upgrade(dbf_LoadedRow& row) {
  dbf_ReadTable& t = *row.table;
  auto up = Reuse(row);
  up->record.typeId = t.cls->TypeId();
  up->record.uid = row.uid;
  // The fields go into the slots the last row left, by assignment: the names and most values
  // are the bodies those slots already hold, so copying them changes no reference counts.
  auto& fields = up->record.fields;
  fields.resize(t.fields.size());
  auto stub = [&](const dbf_Ref& ref) -> cls_RecordPtr {
    if (ref.oid == 0) return nullptr;
    auto rec = std::make_shared<cls_Record>();
    rec->typeId = CurrentTypeId(ref.classId);
    up->stubs.emplace(rec.get(), std::pair{cls_RecordPtr(rec), ref});
    return rec;
  };
  for (std::size_t i = 0; i < t.fields.size(); ++i) {
    const dbf_ReadField& f = t.fields[i];
    fields[i].first = f.key;
    cls_Value& v = fields[i].second;
    if (f.kind == dbf_Kind::Object) {
      cls_RecordPtr p = stub(row.refs[row.spans[i].first]);
      v = p ? cls_Value(p) : cls_Value();
    } else if (f.kind == dbf_Kind::ObjectList) {
      std::vector<cls_RecordPtr> list;
      for (std::uint32_t k = 0; k < row.spans[i].second; ++k) list.push_back(stub(row.refs[row.spans[i].first + k]));
      v = std::move(list);
    } else {
      AssignValue(row, i, v);
    }
  }
  dbc_UpgradeDriver::Run(t.steps, up->record, up->scratch);
  row.upgraded = std::move(up);
}

std::unique_ptr<dbf_LoadedRow::Upgraded> dbf_Reader::Reuse(dbf_LoadedRow& row) {
  if (!row.spare) return std::make_unique<dbf_LoadedRow::Upgraded>();
  std::unique_ptr<dbf_LoadedRow::Upgraded> up = std::move(row.spare);
  up->stubs.clear();
  return up;
}

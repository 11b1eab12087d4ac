#pragma once
// The raw baseline of the database benchmarks: SQLite writing and reading the same rows as a model
// database file, with prepared statements in one transaction.
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/model/ddr_Database.h"

namespace bnhT {

// A cell of a stored row, as SQLite gave it.
struct RawCell {
  int type = SQLITE_NULL;
  std::int64_t integer = 0;
  double number = 0;
  std::string bytes;  // text or blob
};


// The file's other object rows: the model, its empty repositories and the repositories' wrappers,
// each class in a table of its own. The baseline writes and reads them too, from a copy taken of a
// saved file before anything is measured, so that both sides store the same rows in the same
// tables; only the file's own tables (catalog, fields, meta, roots) are this library's alone.
struct OtherTable {
  std::string name, create;
  int columns = 0;
  std::vector<std::vector<RawCell>> rows;
};


struct RawControl {
  std::int64_t oid;
  std::string uid;
  std::string enums[5];
  double values[9];
};

struct RawTable {
  std::int64_t oid;
  std::string uid, description;
  std::vector<double> table;
};


// One element of a repository, as dbf_Elements holds it.
struct RawElement {
  std::int64_t ownerId, owner;
  std::string key;
  std::int64_t oid, classId;
};

struct RawRows {
  std::vector<RawControl> controls;
  std::vector<RawTable> tables;
  std::vector<std::string> conts;  // the repositories' uids
  std::vector<RawElement> elements;
  std::vector<std::vector<RawCell>> others;
};


// The object tables of a file saved from the benchmark's model of n objects, except the two
// classes and two repositories the baseline writes from the objects themselves.
const std::vector<OtherTable>& OtherTables(std::int64_t n);
// The same element rows and container rows, bound straight from the objects' getters.
void RawSave(const ddr_Database& db, const std::vector<OtherTable>& others, const std::string& path, int pageSize);
// Every row and column of the baseline's file, copied out into plain structures.
void RawRead(const std::string& path, const std::vector<OtherTable>& others, RawRows& rows);

}  // namespace bnhT

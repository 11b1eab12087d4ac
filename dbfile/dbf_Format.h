#pragma once
// The layout of the model database file (README.md, "Database file"): its identity, its own
// tables, and how each attribute type of class metadata is stored in a class's table.
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"

// PRAGMA application_id of every model database: "QMXA".
inline constexpr std::uint32_t dbf_kApplicationId = 0x514D5841;
inline constexpr const char* dbf_kFormatName = "QMXOdbAttr model database";

// The database version this library writes: the highest class version it knows, and at least
// the version of the file layout it writes.
int dbf_DatabaseVersion();
// The library version written into every file.
const char* dbf_LibraryVersion();

// The file's own tables. Class tables are named by registered class names, which carry a module
// prefix, so they cannot meet these.
inline constexpr const char* dbf_kMetaTable = "dbf_Meta";        // key, value
inline constexpr const char* dbf_kCatalogTable = "dbf_Catalog";  // name, typeId, version, fieldHash, rows
inline constexpr const char* dbf_kFieldsTable = "dbf_Fields";    // class, position, name, number, type, ...
inline constexpr const char* dbf_kRootsTable = "dbf_Roots";      // name, OID, ClassID
// The elements of every repository, one row each: the repository's row (its class id and OID),
// the element's key (TEXT or INTEGER, as the repository's keys are) and the element's row.
// Unique by repository and key, so that a save in place finds one element without reading the
// others. Rows of one repository follow each other in key order where the repository was
// written whole; elements added by later saves in place come after.
inline constexpr const char* dbf_kElementsTable = "dbf_Elements";  // OwnerID, Owner, Key, OID, ClassID
inline constexpr const char* dbf_kElementsIndex = "dbf_ElementsByKey";
// The first database version whose files keep repositories' elements in dbf_Elements; files of
// older versions hold them in two lists in the repository's row, and are read as they are.
inline constexpr int dbf_kElementsApartVersion = 2504;

// The row id and uid columns of every class table.
inline constexpr const char* dbf_kOidColumn = "OID";
inline constexpr const char* dbf_kUidColumn = "UID";

// How a value is stored: one column per field, except objects (two columns).
enum class dbf_Kind {
  Int,         // INTEGER
  Double,      // REAL; NULL for a NaN, which SQLite cannot hold
  Bool,        // INTEGER 0 or 1
  Text,        // TEXT: strings, enumeration literals, region names
  IntList,     // TEXT: JSON array of integers
  DoubleList,  // TEXT: JSON array of numbers, null for NaN, 9e999 and -9e999 for infinities
  BoolList,    // TEXT: JSON array of true and false
  TextList,    // TEXT: JSON array of strings
  Table,       // BLOB: see dbf_TableBlob.h
  Object,      // INTEGER pair "<field>#OID", "<field>#ClassID"; both NULL for no object
  ObjectList,  // TEXT: JSON array of [OID, ClassID] pairs and nulls
};

// The kind of an attribute type (cls_AttrType); false for a type the file cannot store.
bool dbf_KindOf(int attrType, dbf_Kind& kind) noexcept;
const char* dbf_SqlType(dbf_Kind kind) noexcept;
// What a field of the kind holds, as messages name it ("list of ints").
const char* dbf_KindName(dbf_Kind kind) noexcept;

// A stable hash of a field table (name, number, type, count and collection of each attribute,
// in order), as 16 hexadecimal digits. A stored class whose version equals the library's must
// have the library's hash: a field table edited without a version step is caught on open.
std::string dbf_FieldTableHash(const std::vector<cls_Attribute>& attributes);

// The first 100 bytes of an SQLite file, as far as the format checks them.
struct dbf_Header {
  std::uint32_t pageSize = 0;
  std::uint32_t reservedBytes = 0;
  std::uint32_t pageCount = 0;  // 0 when the header's count is not valid
  std::uint32_t userVersion = 0;
  std::uint32_t applicationId = 0;
};
inline constexpr std::size_t dbf_kHeaderSize = 100;
// False when the bytes do not start with the SQLite header string.
bool dbf_ParseHeader(const unsigned char* bytes, std::size_t size, dbf_Header& out) noexcept;

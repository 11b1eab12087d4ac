#include "dbfile/dbf_Format.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <string_view>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Value.h"

int dbf_DatabaseVersion() {
  int version = dbf_kElementsApartVersion;
  for (const cls_ClassMetadata* md : cls_ClassRegistrar::Instance().All()) version = std::max(version, md->Version());
  return version;
}

const char* dbf_LibraryVersion() { return "1.0.0"; }

bool dbf_KindOf(int attrType, dbf_Kind& kind) noexcept {
  switch (attrType) {
    case cls_AttrInt: kind = dbf_Kind::Int; return true;
    case cls_AttrDouble: kind = dbf_Kind::Double; return true;
    case cls_AttrBool: kind = dbf_Kind::Bool; return true;
    case cls_AttrString:
    case cls_AttrEnum:
    case cls_AttrRegion: kind = dbf_Kind::Text; return true;
    case cls_AttrIntList: kind = dbf_Kind::IntList; return true;
    case cls_AttrDoubleList: kind = dbf_Kind::DoubleList; return true;
    case cls_AttrBoolList: kind = dbf_Kind::BoolList; return true;
    case cls_AttrStringList:
    case cls_AttrEnumList:
    case cls_AttrRegionList: kind = dbf_Kind::TextList; return true;
    case cls_AttrDoubleTable: kind = dbf_Kind::Table; return true;
    case cls_AttrObject: kind = dbf_Kind::Object; return true;
    case cls_AttrObjectList: kind = dbf_Kind::ObjectList; return true;
    default: return false;
  }
}

const char* dbf_SqlType(dbf_Kind kind) noexcept {
  switch (kind) {
    case dbf_Kind::Int:
    case dbf_Kind::Bool:
    case dbf_Kind::Object: return "INTEGER";
    case dbf_Kind::Double: return "REAL";
    case dbf_Kind::Table: return "BLOB";
    default: return "TEXT";
  }
}

std::string dbf_FieldTableHash(const std::vector<cls_Attribute>& attributes) {
  std::uint64_t h = 0xcbf29ce484222325ull;
  auto add = [&h](std::string_view s) {
    for (unsigned char c : s) {
      h ^= c;
      h *= 0x100000001b3ull;
    }
  };
  // Each field as "name|number|type|count|collection\n", its numbers written into a buffer of the
  // stack: the hash is taken twice per stored class each time a file opens.
  char line[5 * 12];
  for (const cls_Attribute& a : attributes) {
    add(a.handle.Name().view());
    char* p = line;
    for (int v : {a.handle.Number(), a.type, a.count, a.collection}) {
      *p++ = '|';
      p = std::to_chars(p, line + sizeof line, v).ptr;
    }
    *p++ = '\n';
    add(std::string_view(line, static_cast<std::size_t>(p - line)));
  }
  static const char* kHex = "0123456789abcdef";
  std::string out(16, '0');
  for (int i = 15; i >= 0; --i, h >>= 4) out[static_cast<std::size_t>(i)] = kHex[h & 0xf];
  return out;
}

namespace {
std::uint32_t BigEndian32(const unsigned char* p) {
  return (std::uint32_t(p[0]) << 24) | (std::uint32_t(p[1]) << 16) | (std::uint32_t(p[2]) << 8) | p[3];
}
}  // namespace

bool dbf_ParseHeader(const unsigned char* b, std::size_t size, dbf_Header& out) noexcept {
  static const char kMagic[16] = {'S', 'Q', 'L', 'i', 't', 'e', ' ', 'f', 'o', 'r', 'm', 'a', 't', ' ', '3', '\0'};
  if (size < dbf_kHeaderSize || std::memcmp(b, kMagic, sizeof kMagic) != 0) return false;
  std::uint32_t page = (std::uint32_t(b[16]) << 8) | b[17];
  out.pageSize = page == 1 ? 65536 : page;
  out.reservedBytes = b[20];
  // The in-header page count holds only when the change counter matches "version valid for".
  out.pageCount = BigEndian32(b + 24) == BigEndian32(b + 92) ? BigEndian32(b + 28) : 0;
  out.userVersion = BigEndian32(b + 60);
  out.applicationId = BigEndian32(b + 68);
  return true;
}

const char* dbf_KindName(dbf_Kind kind) noexcept {
  switch (kind) {
    case dbf_Kind::Int: return "int";
    case dbf_Kind::Double: return "double";
    case dbf_Kind::Bool: return "bool";
    case dbf_Kind::Text: return "string";
    case dbf_Kind::IntList: return "list of ints";
    case dbf_Kind::DoubleList: return "list of doubles";
    case dbf_Kind::BoolList: return "list of bools";
    case dbf_Kind::TextList: return "list of strings";
    case dbf_Kind::Table: return "table of doubles";
    case dbf_Kind::Object: return "object";
    case dbf_Kind::ObjectList: return "list of objects";
  }
  return "value";
}

#include "platform/base/typ_ArchCompTable.h"

#include <cstring>

namespace {
std::map<std::uint16_t, typ_ArchCompEntry>& Table() {
  static std::map<std::uint16_t, typ_ArchCompEntry> table;
  return table;
}
}  // namespace

int typ_ArchCompEntry::RowOf(const char* className) const noexcept {
  for (int i = 0; i < count_; ++i)
    if (records_[i].name && std::strcmp(records_[i].name, className) == 0) return i;
  return -1;
}

void typ_ArchCompTable::InsertEntry(std::uint16_t key, const typ_ArchCompEntry& entry) { Table()[key] = entry; }

const typ_ArchCompEntry* typ_ArchCompTable::Find(std::uint16_t key) {
  auto it = Table().find(key);
  return it == Table().end() ? nullptr : &it->second;
}

const std::map<std::uint16_t, typ_ArchCompEntry>& typ_ArchCompTable::Entries() { return Table(); }

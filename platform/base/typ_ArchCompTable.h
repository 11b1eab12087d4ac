#pragma once
// The architecture-compatibility table: per module key, the rows that name the module's classes.
#include <cstdint>
#include <map>
#include <vector>

struct typ_ArchCompRecord {
  std::int32_t kind;    // 0 for the first, empty row; 7 for a class row
  std::uint16_t first;
  std::uint16_t second;
  const char* name;     // null for the empty row
};

class typ_ArchCompEntry {
 public:
  typ_ArchCompEntry() = default;
  typ_ArchCompEntry(const typ_ArchCompRecord* records, int count) : records_(records), count_(count) {}
  const typ_ArchCompRecord* Records() const noexcept { return records_; }
  int Count() const noexcept { return count_; }
  const typ_ArchCompRecord& Row(int i) const noexcept { return records_[i]; }
  // The row naming a class, or -1.
  int RowOf(const char* className) const noexcept;

 private:
  const typ_ArchCompRecord* records_ = nullptr;
  int count_ = 0;
};

class typ_ArchCompTable {
 public:
  // Inserts (or replaces) the entry of a module key.
  static void InsertEntry(std::uint16_t key, const typ_ArchCompEntry& entry);
  static const typ_ArchCompEntry* Find(std::uint16_t key);
  static const std::map<std::uint16_t, typ_ArchCompEntry>& Entries();
};

#pragma once
// What a database file held when this process last saved or opened it: the roots as objects,
// kept alive by a copy-on-write copy of the database they came from. Every object a later state
// shares with it (same address) is known to be stored unchanged, so a save into the same file
// writes only the objects that differ.
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dbfile/dbf_Root.h"
#include "dbfile/dbf_Seen.h"

class dbf_Baseline {
 public:
  // The file at `target` holds exactly `roots` (which `keeper` keeps alive); `stamp` is the file
  // as it was before it was read or just after it was written.
  void Set(const std::string& target, std::vector<dbf_Root> roots, std::shared_ptr<const void> keeper,
           std::optional<dbf_FileStamp> stamp);
  void Clear() noexcept;
  // The file was written and rolled back: it holds what it held, under a new stamp.
  void Restamp();
  // Whether the baseline describes `target` as it is on disk now.
  bool Fits(const std::string& target) const;
  const std::vector<dbf_Root>& Roots() const noexcept { return roots_; }

 private:
  std::string target_;
  std::optional<dbf_FileStamp> stamp_;
  std::vector<dbf_Root> roots_;
  std::shared_ptr<const void> keeper_;
};

#include "dbfile/dbf_Baseline.h"

void dbf_Baseline::Set(const std::string& target, std::vector<dbf_Root> roots, std::shared_ptr<const void> keeper,
                       std::optional<dbf_FileStamp> stamp) {
  target_ = target;
  roots_ = std::move(roots);
  keeper_ = std::move(keeper);
  stamp_ = stamp;
}

void dbf_Baseline::Clear() noexcept {
  target_.clear();
  roots_.clear();
  keeper_.reset();
  stamp_.reset();
}

bool dbf_Baseline::Fits(const std::string& target) const {
  if (!keeper_ || !stamp_ || target != target_) return false;
  const auto now = dbf_StampOf(target);
  return now && *now == *stamp_;
}

void dbf_Baseline::Restamp() {
  if (keeper_) stamp_ = dbf_StampOf(target_);
}

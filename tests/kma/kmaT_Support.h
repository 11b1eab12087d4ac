#pragma once
// Shared by the material tests: a started library, validation expectations and file editing.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "kma/kmaC_MaterialContainer.h"
#include "kma/kmaC_MaterialTable.h"
#include "kma/kmaC_assert.h"
#include "platform/model/ddr_Database.h"
#include "platform/base/nex_Exception.h"
#include "tests/support/qmx_test.h"

inline void kmaT_Start() { qmx_StartLibrary(); }

// Messages of the material error table that many cases expect.
inline constexpr char kDependencies[] = "Number of dependencies specified is less than the minimum.";
inline constexpr char kBlankRow[] =
    "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s).";
inline constexpr const char* kZeroRow = kBlankRow;

// A material table of the given rows.
kmaC_MaterialTable Table(std::initializer_list<std::initializer_list<double>> rows);
// The materials repository of a model of db.
kmaC_MaterialContainer& Materials(ddr_Database& db, const char* model = "Model-1");
// Runs one script line that must succeed, and returns its result.
cmd_Json Ok(cmd_Session& s, const std::string& line);
// Runs one script line that must fail, and returns its message.
std::string Refusal(cmd_Session& s, const std::string& line);

// Runs fn, which must fail validation through kmaC_Assert with exactly this message.
void kmaT_ExpectFailure(const std::function<void()>& fn, const std::string& message);

// Runs statements on a model database file through its checksumming file layer.
void kmaT_Edit(const std::string& path, const std::string& sql);
// The first column of every row of a query on the file.
std::vector<std::string> kmaT_Query(const std::string& path, const std::string& sql);

// Rewrites a saved file so that the rows of `className` have the layout of `version`: the named
// fields are gone from its table and its field table, and the catalog says `version`.
void kmaT_MakeOldLayout(const std::string& path, const char* className, int version,
                        const std::vector<std::string>& absentFields);

// One older layout of an option class: material "A" of model "M" holding the option `slot` set by
// script to `type` with `values` (a JSON object) is saved, rewritten with kmaT_MakeOldLayout to
// `version` without the `absent` fields, and opened again; `expected` (a JSON object keyed by
// paths below the option such as "uniaxialTests/0/smoothing") holds what must read back.
struct kmaT_OldLayoutCase {
  const char* className;
  int version;
  std::vector<std::string> absent;
  const char* slot;
  const char* type;
  std::string values;
  std::string expected;
};
// Runs each case with its file in `dir`.
void kmaT_ExpectOldLayoutsRead(const std::string& dir, const std::vector<kmaT_OldLayoutCase>& cases);

#include "kma/kmaC_MaterialOption.h"

// An in-memory stand-in for an option class this library does not offer yet: it has the type id
// of its slot's class and fails validation with `code` when one is given.
template <kmaC_OptionClass Class>
class kmaT_StandIn : public kmaC_MaterialOption {
 public:
  explicit kmaT_StandIn(int failWith = -1) : code_(failWith) {}
  kmaC_MaterialOption* DoCopy() const override { return mem_New<kmaT_StandIn>(*this); }
  void AssertValid() const override {
    if (code_ >= 0) kmaC_Assert(false, static_cast<kmaC_ErrorEnm>(code_));
  }
  unsigned DynTypeId() const override { return kmaC_OptionTypeId(Class); }

 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override {
    return GetUid() == o.GetUid() && code_ == static_cast<const kmaT_StandIn&>(o).code_;
  }

 private:
  int code_;
};

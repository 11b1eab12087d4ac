#pragma once
// The codes a class's description lists against what its validation does: every case breaks one
// rule and must fail with the message of its code, which the list must hold; every two cases
// together must fail with the message of the one the list puts first. A list that misses a code
// or holds two in the wrong order fails here by the names of the cases.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_Description.h"

template <class T>
struct qmx_CodeCase {
  // Cases that change the same members share a tag and are not combined. A case that needs a
  // setting (an algorithm, say) which another case may set otherwise names it: cases that need
  // different settings are not combined; 0 needs none.
  qmx_CodeCase(const char* what_, std::function<void(T&)> breakRule_, int code_,
               std::vector<std::string> tags_ = {}, int setting_ = 0)
      : what(what_), breakRule(std::move(breakRule_)), code(code_), tags(std::move(tags_)), setting(setting_) {}

  const char* what;
  std::function<void(T&)> breakRule;
  int code;
  std::vector<std::string> tags;
  int setting;
};

// The message a validation fails with; empty when it passes.
template <class T>
std::string qmx_ValidationFailure(const T& object) {
  try {
    object.AssertValid();
  } catch (const nex_PrimError& e) {
    return e.Message();
  }
  return "";
}

template <class T>
void qmx_CheckListedCodes(std::string_view className, const std::vector<qmx_CodeCase<T>>& cases,
                          const std::function<T()>& make) {
  const cls_ClassDescription* d = cls_FindDescription(className);
  ASSERT_NE(d, nullptr) << className;
  const std::vector<int> listed(d->codes.begin(), d->codes.end());
  const auto position = [&](int code) {
    return static_cast<std::size_t>(std::find(listed.begin(), listed.end(), code) - listed.begin());
  };
  const auto message = [&](int code) { return std::string(cls_FindErrorMessage(className, code)); };
  ASSERT_EQ(qmx_ValidationFailure(make()), "") << "the object the cases start from must be valid";
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_LT(position(c.code), listed.size()) << "code " << c.code << " is not listed";
    T object = make();
    c.breakRule(object);
    EXPECT_EQ(qmx_ValidationFailure(object), message(c.code));
  }
  for (std::size_t i = 0; i < cases.size(); ++i) {
    for (std::size_t j = i + 1; j < cases.size(); ++j) {
      const auto& a = cases[i];
      const auto& b = cases[j];
      const bool shared = std::any_of(a.tags.begin(), a.tags.end(), [&](const std::string& t) {
        return std::find(b.tags.begin(), b.tags.end(), t) != b.tags.end();
      });
      const bool exclusive = a.setting && b.setting && a.setting != b.setting;
      if (shared || exclusive || a.code == b.code) continue;
      SCOPED_TRACE(std::string(a.what) + " and " + b.what);
      const int first = position(a.code) < position(b.code) ? a.code : b.code;
      T ab = make();
      a.breakRule(ab);
      b.breakRule(ab);
      EXPECT_EQ(qmx_ValidationFailure(ab), message(first));
      T ba = make();
      b.breakRule(ba);
      a.breakRule(ba);
      EXPECT_EQ(qmx_ValidationFailure(ba), message(first));
    }
  }
}

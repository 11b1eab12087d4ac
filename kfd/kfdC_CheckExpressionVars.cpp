#include "kfd/kfdC_CheckExpressionVars.h"

#include <cstdlib>
#include <initializer_list>
#include <string_view>

#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_assert.h"

namespace {
bool ContainsAny(std::string_view text, std::initializer_list<std::string_view> names) {
  for (std::string_view n : names)
    if (text.find(n) != std::string_view::npos) return true;
  return false;
}

// At least one of the system's own names, none of the foreign ones. A foreign capital letter
// anywhere in the text (inside a longer name too) fails the check: that is the rule as users
// know it.
bool Uses(std::string_view text, std::initializer_list<std::string_view> own,
          std::initializer_list<std::string_view> foreign) {
  return ContainsAny(text, own) && !ContainsAny(text, foreign);
}
}  // namespace

void kfdC_CheckExpressionVars(const kfdC_ExpressionField& field, dtu_DatumCsysType csys) {
  const std::string_view text = field.GetExpression().view();
  switch (csys) {
    case dtu_InvalidCsys: kfdC_Assert(false, kfdC_InvalidCsysReference); break;
    case dtu_RectangularCsys: kfdC_Assert(Uses(text, {"X", "Y", "Z"}, {"R", "Th", "P"}), kfdC_BadRectangularVars); break;
    case dtu_CylindricalCsys: kfdC_Assert(Uses(text, {"R", "Th", "Z"}, {"X", "Y", "P"}), kfdC_BadCylindricalVars); break;
    case dtu_SphericalCsys: kfdC_Assert(Uses(text, {"R", "Th", "P"}, {"X", "Y", "Z"}), kfdC_BadSphericalVars); break;
    default: break;
  }
}

bool kfdC_UseMTKMapper() { return std::getenv("TSR_OLD_MAPPER") == nullptr; }

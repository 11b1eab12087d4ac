#include "kop/kopC_Strings.h"

#include <cstdio>
#include <iterator>
#include <string>

#include "kop/kopC_OrimConstraint.h"
#include "kop/kopC_OrimObjectiveFunction.h"

namespace {
template <std::size_t N>
cow_String At(const char* const (&texts)[N], int i) {
  return i >= 0 && static_cast<std::size_t>(i) < N && texts[i] ? cow_String(texts[i]) : cow_String();
}
}  // namespace

cow_String kopC_targetAsString(kopC_TargetEnm target) {
  static constexpr const char* kTexts[] = {"Minimize", "Maximize", "Minimize the maximum"};
  return At(kTexts, static_cast<int>(target));
}

cow_String kopC_algorithmAsString(kopC_AlgorithmEnm algorithm) {
  static constexpr const char* kTexts[] = {"Condition-based", "General"};
  return At(kTexts, static_cast<int>(algorithm));
}

// Average (2) and the absolute sum (4) have no text of their own.
cow_String kopC_operationAsString(kopC_VariableOperationEnm operation) {
  static constexpr const char* kTexts[] = {"Minimum", "Maximum", nullptr, "Sum", nullptr, "N/A"};
  return At(kTexts, static_cast<int>(operation));
}

cow_String kopC_combinedTermRequestMethodAsString(kopC_CombinedTermRequestMethodEnm method) {
  static constexpr const char* kTexts[] = {
      "Add", "Subtract", "Multiply", "Divide", "Minimum", "Maximum", "Weighted add", "Absolute difference",
      "Absolute", "Sine", "Cosine", "Tangent", "Log", "Natural log", "Square root", "Exponential", "Nth root",
      "Nth power", "Integer", "Nearest integer", "Sign", "Filter", "Cut-off", "Delta over 1 iteration",
      "Delta over 2 iterations", "Delta over 3 iterations", "Delta over 4 iterations", "Delta over 5 iterations",
      "Delta over 6 iterations", "Normalize", "Normalize first"};
  static_assert(std::size(kTexts) == 31);
  return At(kTexts, static_cast<int>(method));
}

// Six significant digits, as the value is shown elsewhere: 0.3 as a percentage is 30, not
// 30.000000000000004.
cow_String kopC_constraintComparisonAsString(const kopC_OrimConstraint& constraint) {
  static constexpr const char* kOperators[] = {"=", "<=", ">="};
  const int method = static_cast<int>(constraint.GetRestrictionMethod());
  const bool relative = constraint.IsRelative();
  const double value = relative ? constraint.GetRestrictionValue() * 100 : constraint.GetRestrictionValue();
  char number[64];
  std::snprintf(number, sizeof number, "%g", value);
  std::string text = std::string(kOperators[(method / 2) % 3]) + " " + number;
  if (relative) text += " %";
  return cow_String(text);
}

cow_String kopC_designResponseAsString(const kopC_OrimObjectiveFunction& function) {
  std::string text;
  for (const auto& o : function.GetObjectives()) {
    if (o.IsNull() || o->GetSuppressed()) continue;
    if (!text.empty()) text += ", ";
    text += o->GetDesignResponse().str();
  }
  // Characters, not bytes: the cut falls before the 40th character, never inside one.
  std::size_t chars = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) continue;  // a continuation byte
    if (++chars == 40) {
      text = text.substr(0, i) + "...";
      break;
    }
  }
  return cow_String(text);
}

kopC_AlgorithmEnm kopC_getAlgorithmFromStrategy(int strategy) {
  switch (strategy) {
    case 1: case 4: case 16: case 64:
      return kopC_AlgorithmEnm::CONDITION_BASED_OPTIMIZATION;
    default:
      return kopC_AlgorithmEnm::GENERAL_OPTIMIZATION;
  }
}

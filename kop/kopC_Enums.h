#pragma once
// The enumerations shared by the optimization classes, with their literal tables (the literal
// order is the value order).
#include <cstdint>

#include "platform/base/omu_PrimEnum.h"

// The optimizer of a task.
enum class kopC_AlgorithmEnm : std::int32_t { CONDITION_BASED_OPTIMIZATION = 0, GENERAL_OPTIMIZATION = 1 };
inline constexpr omu_EnumLiteral kAlgorithmLiterals[] = {{"CONDITION_BASED_OPTIMIZATION", 0}, {"GENERAL_OPTIMIZATION", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_AlgorithmEnm) { return kAlgorithmLiterals; }

// What an objective function does with its objectives.
enum class kopC_TargetEnm : std::int32_t { MINIMIZE = 0, MAXIMIZE = 1, MINIMIZE_MAXIMUM = 2 };
inline constexpr omu_EnumLiteral kTargetLiterals[] = {{"MINIMIZE", 0}, {"MAXIMIZE", 1}, {"MINIMIZE_MAXIMUM", 2}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_TargetEnm) { return kTargetLiterals; }

// How the values of a region or of several steps become one number. AVERAGE and ABSOLUTE_SUM
// have no display text.
enum class kopC_VariableOperationEnm : std::int32_t { MINIMUM = 0, MAXIMUM = 1, AVERAGE = 2, SUM = 3, ABSOLUTE_SUM = 4, NOT_APPLICABLE = 5 };
inline constexpr omu_EnumLiteral kVariableOperationLiterals[] = {{"MINIMUM", 0}, {"MAXIMUM", 1}, {"AVERAGE", 2}, {"SUM", 3}, {"ABSOLUTE_SUM", 4}, {"NOT_APPLICABLE", 5}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_VariableOperationEnm) { return kVariableOperationLiterals; }

// The step sets a step option may name in place of one step.
enum class kopC_StepSetEnm : std::int32_t { ALL_STATIC_STEPS = 0, ALL_MODAL_STEPS = 1, ALL_NONLINEAR_STEPS = 2, ALL_DAMAGE_STEPS = 3 };
inline constexpr omu_EnumLiteral kStepSetLiterals[] = {{"ALL_STATIC_STEPS", 0}, {"ALL_MODAL_STEPS", 1}, {"ALL_NONLINEAR_STEPS", 2}, {"ALL_DAMAGE_STEPS", 3}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_StepSetEnm) { return kStepSetLiterals; }

// How a combined-term design response combines its terms.
enum class kopC_CombinedTermRequestMethodEnm : std::int32_t { ADD = 0, SUBTRACT = 1, MULTIPLY = 2, DIVIDE = 3, MINIMUM = 4, MAXIMUM = 5, WEIGHTED_ADD = 6, ABSOLUTE_DIFFERENCE = 7, ABSOLUTE = 8, SINE = 9, COSINE = 10, TANGENT = 11, LOG = 12, NATURAL_LOG = 13, SQUARE_ROOT = 14, EXPONENTIAL = 15, NTH_ROOT = 16, NTH_POWER = 17, INTEGER = 18, NEAREST_INTEGER = 19, SIGN = 20, FILTER = 21, CUT_OFF = 22, DELTA_1_ITERATION = 23, DELTA_2_ITERATIONS = 24, DELTA_3_ITERATIONS = 25, DELTA_4_ITERATIONS = 26, DELTA_5_ITERATIONS = 27, DELTA_6_ITERATIONS = 28, NORMALIZE = 29, NORMALIZE_FIRST = 30 };
inline constexpr omu_EnumLiteral kCombinedTermRequestMethodLiterals[] = {{"ADD", 0}, {"SUBTRACT", 1}, {"MULTIPLY", 2}, {"DIVIDE", 3}, {"MINIMUM", 4}, {"MAXIMUM", 5}, {"WEIGHTED_ADD", 6}, {"ABSOLUTE_DIFFERENCE", 7}, {"ABSOLUTE", 8}, {"SINE", 9}, {"COSINE", 10}, {"TANGENT", 11}, {"LOG", 12}, {"NATURAL_LOG", 13}, {"SQUARE_ROOT", 14}, {"EXPONENTIAL", 15}, {"NTH_ROOT", 16}, {"NTH_POWER", 17}, {"INTEGER", 18}, {"NEAREST_INTEGER", 19}, {"SIGN", 20}, {"FILTER", 21}, {"CUT_OFF", 22}, {"DELTA_1_ITERATION", 23}, {"DELTA_2_ITERATIONS", 24}, {"DELTA_3_ITERATIONS", 25}, {"DELTA_4_ITERATIONS", 26}, {"DELTA_5_ITERATIONS", 27}, {"DELTA_6_ITERATIONS", 28}, {"NORMALIZE", 29}, {"NORMALIZE_FIRST", 30}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_CombinedTermRequestMethodEnm) { return kCombinedTermRequestMethodLiterals; }

// How a constraint bounds its design response: even values are absolute, odd values relative.
enum class kopC_RestrictionMethodEnm : std::int32_t { ABSOLUTE_EQUAL = 0, RELATIVE_EQUAL = 1, ABSOLUTE_LESS_THAN_EQUAL = 2, RELATIVE_LESS_THAN_EQUAL = 3, ABSOLUTE_GREATER_THAN_EQUAL = 4, RELATIVE_GREATER_THAN_EQUAL = 5 };
inline constexpr omu_EnumLiteral kRestrictionMethodLiterals[] = {{"ABSOLUTE_EQUAL", 0}, {"RELATIVE_EQUAL", 1}, {"ABSOLUTE_LESS_THAN_EQUAL", 2}, {"RELATIVE_LESS_THAN_EQUAL", 3}, {"ABSOLUTE_GREATER_THAN_EQUAL", 4}, {"RELATIVE_GREATER_THAN_EQUAL", 5}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_RestrictionMethodEnm) { return kRestrictionMethodLiterals; }

// A comparison of a stop condition.
enum class kopC_ComparisonEnm : std::int32_t { LESS_THAN = 0, LESS_THAN_EQUAL = 1, EQUAL = 2, GREATER_THAN_EQUAL = 3, GREATER_THAN = 4 };
inline constexpr omu_EnumLiteral kComparisonLiterals[] = {{"LESS_THAN", 0}, {"LESS_THAN_EQUAL", 1}, {"EQUAL", 2}, {"GREATER_THAN_EQUAL", 3}, {"GREATER_THAN", 4}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_ComparisonEnm) { return kComparisonLiterals; }

// What a single-term design response measures its deviation from.
enum class kopC_DeviationReferenceEnm : std::int32_t { DEVIATION_FROM_MAXIMUM = 0, DEVIATION_FROM_VARIABLE = 1 };
inline constexpr omu_EnumLiteral kDeviationReferenceLiterals[] = {{"DEVIATION_FROM_MAXIMUM", 0}, {"DEVIATION_FROM_VARIABLE", 1}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_DeviationReferenceEnm) { return kDeviationReferenceLiterals; }

// What the optimizer reports of a request.
enum class kopC_OutputFormatEnm : std::int32_t { NO_OUTPUT = 0, VALUES = 1, VALUES_AND_HISTORY = 2 };
inline constexpr omu_EnumLiteral kOutputFormatLiterals[] = {{"NO_OUTPUT", 0}, {"VALUES", 1}, {"VALUES_AND_HISTORY", 2}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_OutputFormatEnm) { return kOutputFormatLiterals; }

// The layer of a shell section a request reads.
enum class kopC_ShellLayerEnm : std::int32_t { NONE = 0, TOP = 1, MIDDLE = 2, BOTTOM = 3, MAXIMUM = 4, MINIMUM = 5 };
inline constexpr omu_EnumLiteral kShellLayerLiterals[] = {{"NONE", 0}, {"TOP", 1}, {"MIDDLE", 2}, {"BOTTOM", 3}, {"MAXIMUM", 4}, {"MINIMUM", 5}, {nullptr, 0}};
constexpr const omu_EnumLiteral* omu_LiteralTable(kopC_ShellLayerEnm) { return kShellLayerLiterals; }
// The marker of a double left to the solver's default (shown as DEFAULT); rules skip it.
inline constexpr double kopC_kUnset = 1.7976931348623157e308;
// The marker of an integer whose value is "ALL".
inline constexpr std::int32_t kopC_kAll = 2147483647;

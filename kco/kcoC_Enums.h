#pragma once
// The enumerations of the constraint module, each with its literal table in listed order.
#include <cstdint>

#include "platform/base/omu_PrimEnum.h"

enum class kcoC_PosToleranceEnm : std::int32_t { COMPUTED = 0, SPECIFIED = 1 };
enum class kcoC_DefaultOrValueEnm : std::int32_t { DEFAULT = 0, SPECIFIED = 1 };
enum class kcoC_TieConstraintEnforcementEnm : std::int32_t { SOLVER_DEFAULT = 0, NODE_TO_SURFACE = 1, SURFACE_TO_SURFACE = 2 };
enum class kcoC_CouplingTypeEnm : std::int32_t { KINEMATIC = 0, DISTRIBUTING = 1, STRUCTURAL = 2, UNIFORM_NDOF = 3 };
enum class kcoC_InfluenceRadiusEnm : std::int32_t { WHOLE_SURFACE = 0 };
enum class kcoC_WeightingMethodEnm : std::int32_t { UNIFORM = 0, LINEAR = 1, QUADRATIC = 2, CUBIC = 3 };
enum class kcoC_RotationalCouplingTypeEnm : std::int32_t { ROTATIONAL_CONTINUUM = 0, ROTATIONAL_STRUCTURAL = 1 };
enum class kcoC_UniformConstraintEnm : std::int32_t {
  NONE = 0,
  WARP_AMPLITUDE = 1,
  PORE_PRESSURE = 2,
  ELECTRIC_POTENTIAL = 3,
  CONNECTOR_MATERIAL_FLOW = 4,
  DOF_TEMPERATURE = 5,
  SLURRY_CONCENTRATION = 6,
  ELECTROLYTE_ELECTRIC_POTENTIAL = 7,
  ION_CONCENTRATION = 8,
  SPECIES_CONCENTRATION = 9,
};
enum class kcoC_MPCTypeEnum : std::int32_t { BEAM_MPC = 0, ELBOW_MPC = 1, PIN_MPC = 2, LINK_MPC = 3, TIE_MPC = 4, USER_MPC = 5 };
enum class kcoC_UserModeEnum : std::int32_t { DOF_MODE_MPC = 0, NODE_MODE_MPC = 1 };
enum class kcoC_EmbeddedToleranceEnm : std::int32_t { ABSOLUTE = 0, FRACTIONAL = 1, BOTH = 2 };

inline constexpr omu_EnumLiteral kcoC_kPosToleranceLiterals[] = {{"COMPUTED", 0}, {"SPECIFIED", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kDefaultOrValueLiterals[] = {{"DEFAULT", 0}, {"SPECIFIED", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kTieConstraintEnforcementLiterals[] = {
    {"SOLVER_DEFAULT", 0}, {"NODE_TO_SURFACE", 1}, {"SURFACE_TO_SURFACE", 2}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kCouplingTypeLiterals[] = {
    {"KINEMATIC", 0}, {"DISTRIBUTING", 1}, {"STRUCTURAL", 2}, {"UNIFORM_NDOF", 3}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kInfluenceRadiusLiterals[] = {{"WHOLE_SURFACE", 0}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kWeightingMethodLiterals[] = {
    {"UNIFORM", 0}, {"LINEAR", 1}, {"QUADRATIC", 2}, {"CUBIC", 3}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kRotationalCouplingTypeLiterals[] = {
    {"ROTATIONAL_CONTINUUM", 0}, {"ROTATIONAL_STRUCTURAL", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kUniformConstraintLiterals[] = {
    {"NONE", 0},
    {"WARP_AMPLITUDE", 1},
    {"PORE_PRESSURE", 2},
    {"ELECTRIC_POTENTIAL", 3},
    {"CONNECTOR_MATERIAL_FLOW", 4},
    {"DOF_TEMPERATURE", 5},
    {"SLURRY_CONCENTRATION", 6},
    {"ELECTROLYTE_ELECTRIC_POTENTIAL", 7},
    {"ION_CONCENTRATION", 8},
    {"SPECIES_CONCENTRATION", 9},
    {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kMPCTypeLiterals[] = {{"BEAM_MPC", 0}, {"ELBOW_MPC", 1}, {"PIN_MPC", 2},
                                                            {"LINK_MPC", 3}, {"TIE_MPC", 4},   {"USER_MPC", 5},
                                                            {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kUserModeLiterals[] = {{"DOF_MODE_MPC", 0}, {"NODE_MODE_MPC", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kcoC_kEmbeddedToleranceLiterals[] = {
    {"ABSOLUTE", 0}, {"FRACTIONAL", 1}, {"BOTH", 2}, {nullptr, 0}};

constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_PosToleranceEnm) { return kcoC_kPosToleranceLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_DefaultOrValueEnm) { return kcoC_kDefaultOrValueLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_TieConstraintEnforcementEnm) {
  return kcoC_kTieConstraintEnforcementLiterals;
}
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_CouplingTypeEnm) { return kcoC_kCouplingTypeLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_InfluenceRadiusEnm) { return kcoC_kInfluenceRadiusLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_WeightingMethodEnm) { return kcoC_kWeightingMethodLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_RotationalCouplingTypeEnm) {
  return kcoC_kRotationalCouplingTypeLiterals;
}
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_UniformConstraintEnm) { return kcoC_kUniformConstraintLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_MPCTypeEnum) { return kcoC_kMPCTypeLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_UserModeEnum) { return kcoC_kUserModeLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kcoC_EmbeddedToleranceEnm) { return kcoC_kEmbeddedToleranceLiterals; }

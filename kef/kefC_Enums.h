#pragma once
// The enumerations of the engineering feature module, each with its literal table in listed order.
// "kefC_DebondAmplitudeEnm" is the debond force amplitude of the VCCT debond.
#include <cstdint>

#include "platform/base/omu_PrimEnum.h"

enum class kefC_ForwardSenseEnm : std::int32_t { REVERSE = 0, FORWARD = 1 };
enum class kefC_collapsedElementAtTipEnm : std::int32_t { NONE = 0, SINGLE_NODE = 1, DUPLICATE_NODES = 2 };
enum class kefC_extensionVectorMethodEnm : std::int32_t { CRACK_NORMAL = 0, Q_VECTORS = 1 };
enum class kefC_DebondAmplitudeEnm : std::int32_t { STEP = 0, RAMP = 1 };
enum class kefC_AllEnum : std::int32_t { ALL = 0 };
enum class kefC_AttachmentMethodEnum : std::int32_t { FACETOFACE = 0, EDGETOFACE = 1, FACETOEDGE = 2, EDGETOEDGE = 3 };
enum class kefC_AxisEnum : std::int32_t { AXIS_1 = 0, AXIS_2 = 1, AXIS_3 = 2 };
enum class kefC_BehaviorDefinitionEnum : std::int32_t { NONLINEAR = 0, LINEAR = 1 };
enum class kefC_CouplingEnum : std::int32_t { CONTINUUM = 0, STRUCTURAL = 1 };
enum class kefC_DefaultEnum : std::int32_t { DEFAULT = 0 };
enum class kefC_DiscreteAdherendEnum : std::int32_t { CONNECTOR = 0, SPRING_RIGID_SPRING = 1, RIGID_SPRING_RIGID = 2 };
enum class kefC_DistributionEnum : std::int32_t { MASS_PROPORTIONAL = 0, VOLUME_PROPORTIONAL = 1 };
enum class kefC_ModelEnum : std::int32_t { MODEL = 0 };
enum class kefC_OrientMethodEnum : std::int32_t { NORMALS = 0, CSYS = 1 };
enum class kefC_PointAdherendEnum : std::int32_t { CONNECTOR = 0, BEAM_MPC = 1 };
enum class kefC_RotationalCouplingEnum : std::int32_t { ROTATIONAL_CONTINUUM = 0, ROTATIONAL_STRUCTURAL = 1 };
enum class kefC_SpringAxisTypeEnum : std::int32_t { NODAL_LINE = 0, FIXED_DOF = 1 };
enum class kefC_SystemEnum : std::int32_t { CARTESIAN = 0, CYLINDRICAL = 1, SPHERICAL = 2 };
enum class kefC_UnitsEnum : std::int32_t { TOTAL_MASS = 0, MASS_PER_VOLUME = 1, MASS_PER_AREA = 2, MASS_PER_LENGTH = 3 };
enum class kefC_WeightingMethodEnum : std::int32_t { UNIFORM = 0, LINEAR = 1, QUADRATIC = 2, CUBIC = 3 };
enum class kefC_WholeSurfaceEnum : std::int32_t { WHOLE_SURFACE = 0 };

inline constexpr omu_EnumLiteral kefC_kForwardSenseEnmLiterals[] = {{"REVERSE", 0}, {"FORWARD", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kCollapsedElementAtTipEnmLiterals[] = {{"NONE", 0}, {"SINGLE_NODE", 1}, {"DUPLICATE_NODES", 2}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kExtensionVectorMethodEnmLiterals[] = {{"CRACK_NORMAL", 0}, {"Q_VECTORS", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kDebondAmplitudeEnmLiterals[] = {{"STEP", 0}, {"RAMP", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kAllEnumLiterals[] = {{"ALL", 0}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kAttachmentMethodEnumLiterals[] = {{"FACETOFACE", 0}, {"EDGETOFACE", 1}, {"FACETOEDGE", 2}, {"EDGETOEDGE", 3}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kAxisEnumLiterals[] = {{"AXIS_1", 0}, {"AXIS_2", 1}, {"AXIS_3", 2}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kBehaviorDefinitionEnumLiterals[] = {{"NONLINEAR", 0}, {"LINEAR", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kCouplingEnumLiterals[] = {{"CONTINUUM", 0}, {"STRUCTURAL", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kDefaultEnumLiterals[] = {{"DEFAULT", 0}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kDiscreteAdherendEnumLiterals[] = {{"CONNECTOR", 0}, {"SPRING_RIGID_SPRING", 1}, {"RIGID_SPRING_RIGID", 2}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kDistributionEnumLiterals[] = {{"MASS_PROPORTIONAL", 0}, {"VOLUME_PROPORTIONAL", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kModelEnumLiterals[] = {{"MODEL", 0}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kOrientMethodEnumLiterals[] = {{"NORMALS", 0}, {"CSYS", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kPointAdherendEnumLiterals[] = {{"CONNECTOR", 0}, {"BEAM_MPC", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kRotationalCouplingEnumLiterals[] = {{"ROTATIONAL_CONTINUUM", 0}, {"ROTATIONAL_STRUCTURAL", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kSpringAxisTypeEnumLiterals[] = {{"NODAL_LINE", 0}, {"FIXED_DOF", 1}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kSystemEnumLiterals[] = {{"CARTESIAN", 0}, {"CYLINDRICAL", 1}, {"SPHERICAL", 2}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kUnitsEnumLiterals[] = {{"TOTAL_MASS", 0}, {"MASS_PER_VOLUME", 1}, {"MASS_PER_AREA", 2}, {"MASS_PER_LENGTH", 3}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kWeightingMethodEnumLiterals[] = {{"UNIFORM", 0}, {"LINEAR", 1}, {"QUADRATIC", 2}, {"CUBIC", 3}, {nullptr, 0}};
inline constexpr omu_EnumLiteral kefC_kWholeSurfaceEnumLiterals[] = {{"WHOLE_SURFACE", 0}, {nullptr, 0}};

constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_ForwardSenseEnm) { return kefC_kForwardSenseEnmLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_collapsedElementAtTipEnm) { return kefC_kCollapsedElementAtTipEnmLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_extensionVectorMethodEnm) { return kefC_kExtensionVectorMethodEnmLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_DebondAmplitudeEnm) { return kefC_kDebondAmplitudeEnmLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_AllEnum) { return kefC_kAllEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_AttachmentMethodEnum) { return kefC_kAttachmentMethodEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_AxisEnum) { return kefC_kAxisEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_BehaviorDefinitionEnum) { return kefC_kBehaviorDefinitionEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_CouplingEnum) { return kefC_kCouplingEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_DefaultEnum) { return kefC_kDefaultEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_DiscreteAdherendEnum) { return kefC_kDiscreteAdherendEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_DistributionEnum) { return kefC_kDistributionEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_ModelEnum) { return kefC_kModelEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_OrientMethodEnum) { return kefC_kOrientMethodEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_PointAdherendEnum) { return kefC_kPointAdherendEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_RotationalCouplingEnum) { return kefC_kRotationalCouplingEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_SpringAxisTypeEnum) { return kefC_kSpringAxisTypeEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_SystemEnum) { return kefC_kSystemEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_UnitsEnum) { return kefC_kUnitsEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_WeightingMethodEnum) { return kefC_kWeightingMethodEnumLiterals; }
constexpr const omu_EnumLiteral* omu_LiteralTable(kefC_WholeSurfaceEnum) { return kefC_kWholeSurfaceEnumLiterals; }

// A radius or distance left unspecified (to the solver's default).
inline constexpr double kefC_kUnspecified = 1.7976931348623157e308;

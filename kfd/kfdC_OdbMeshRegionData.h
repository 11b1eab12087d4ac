#pragma once
// The source of a mapped field taken from the results of an earlier analysis: the output database,
// the step and frame, the variable and how its values are averaged, transformed and refined. The
// section point is given by its category ("sectionPoint" is the category label) and the top and
// bottom points of it.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kfdC_OdbMeshRegionData : public fw_PersistentClass<kfdC_OdbMeshRegionData, mem_Allocated> {
 public:
  enum class QuantityToPlotEnm : std::int32_t { FIELD_OUTPUT = 0, DISCONTINUITIES = 1 };
  static constexpr omu_EnumLiteral kQuantityToPlotLiterals[] = {{"FIELD_OUTPUT", 0}, {"DISCONTINUITIES", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(QuantityToPlotEnm) { return kQuantityToPlotLiterals; }
  // Bit values: the boundaries that averaging respects.
  enum class RegionBoundariesEnm : std::int32_t { ODB_REGIONS = 16777216, ELEMENT_SET = 33554432, DISPLAY_GROUPS = 67108864 };
  static constexpr omu_EnumLiteral kRegionBoundariesLiterals[] = {{"ODB_REGIONS", 16777216}, {"ELEMENT_SET", 33554432}, {"DISPLAY_GROUPS", 67108864}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(RegionBoundariesEnm) { return kRegionBoundariesLiterals; }
  enum class ComputeOrderEnm : std::int32_t { RAW_DATA = 0, EXTRAPOLATE_COMPUTE_AVERAGE = 1, EXTRAPOLATE_AVERAGE_COMPUTE = 2, EXTRAPOLATE_COMPUTE = 3, EXTRAPOLATE_COMPUTE_DISCONTINUITIES = 4 };
  static constexpr omu_EnumLiteral kComputeOrderLiterals[] = {{"RAW_DATA", 0}, {"EXTRAPOLATE_COMPUTE_AVERAGE", 1}, {"EXTRAPOLATE_AVERAGE_COMPUTE", 2}, {"EXTRAPOLATE_COMPUTE", 3}, {"EXTRAPOLATE_COMPUTE_DISCONTINUITIES", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ComputeOrderEnm) { return kComputeOrderLiterals; }
  // USER_SPECIFIED takes the system named by "datumName".
  enum class TransformationTypeEnm : std::int32_t { NODAL = 1, USER_SPECIFIED = 2, ANGULAR = 3, LAYUP_ORIENTATION = 4 };
  static constexpr omu_EnumLiteral kTransformationTypeLiterals[] = {{"NODAL", 1}, {"USER_SPECIFIED", 2}, {"ANGULAR", 3}, {"LAYUP_ORIENTATION", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(TransformationTypeEnm) { return kTransformationTypeLiterals; }
  // How complex results are reduced to real values ("complexAngle" for the last).
  enum class NumericFormEnm : std::int32_t { REAL = 0, IMAGINARY = 1, COMPLEX_MAGNITUDE = 2, COMPLEX_PHASE = 3, COMPLEX_MAG_AT_ANGLE = 4 };
  static constexpr omu_EnumLiteral kNumericFormLiterals[] = {{"REAL", 0}, {"IMAGINARY", 1}, {"COMPLEX_MAGNITUDE", 2}, {"COMPLEX_PHASE", 3}, {"COMPLEX_MAG_AT_ANGLE", 4}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(NumericFormEnm) { return kNumericFormLiterals; }
  // Whether the results are read from surface or volumetric output.
  enum class StorageTypeEnm : std::int32_t { SURFACE = 0, VOLUMETRIC = 1 };
  static constexpr omu_EnumLiteral kStorageTypeLiterals[] = {{"SURFACE", 0}, {"VOLUMETRIC", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(StorageTypeEnm) { return kStorageTypeLiterals; }
  // How a selection of result regions combines with the previous one (used by hosts that build
  // the element set of "regionBoundaries" ELEMENT_SET step by step).
  enum class SetOperationEnm : std::int32_t { OVERWRITE = 0, APPEND = 1, INTERSECT = 2, REMOVE = 3 };
  static constexpr omu_EnumLiteral kSetOperationLiterals[] = {{"OVERWRITE", 0}, {"APPEND", 1}, {"INTERSECT", 2}, {"REMOVE", 3}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SetOperationEnm) { return kSetOperationLiterals; }
  // INVARIANT and COMPONENT take "refinementLabel" and "refinementIndex".
  enum class RefinementTypeEnm : std::int32_t { NO_REFINEMENT = 0, INVARIANT = 1, COMPONENT = 2 };
  static constexpr omu_EnumLiteral kRefinementTypeLiterals[] = {{"NO_REFINEMENT", 0}, {"INVARIANT", 1}, {"COMPONENT", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(RefinementTypeEnm) { return kRefinementTypeLiterals; }
  static constexpr const char* kClassName = "kfdC_OdbMeshRegionData";
  static constexpr const char* kScriptName = "OdbMeshRegionData";
  static constexpr int kVersion = 1505;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 9); }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kfdC_OdbMeshRegionData;
    return std::tuple{
        fw_Field{"stepIdx", 0, "stepIndex", &C::stepIdx},
        fw_Field{"frameIdx", 1, "frameIndex", &C::frameIdx},
        fw_Field{"odbFileName", 2, "odbFileName", &C::odbFileName},
        fw_Field{"variable", 3, "variableLabel", &C::variable},
        fw_Field{"quantityToPlot", 4, "quantityToPlot", &C::quantityToPlot},
        fw_Field{"average", 5, "averageElementOutput", &C::average},
        fw_Field{"useRegions", 6, "useRegionBoundaries", &C::useRegions},
        fw_Field{"regionBoundaries", 7, "regionBoundaries", &C::regionBoundaries},
        fw_Field{"includeFeatureBounds", 8, "includeFeatureBoundaries", &C::includeFeatureBounds},
        fw_Field{"averageDisplayedOnly", 9, "averageOnlyDisplayed", &C::averageDisplayedOnly},
        fw_Field{"computeAlgorithm", 10, "computeOrder", &C::computeAlgorithm},
        fw_Field{"averageCriteria", 11, "averagingThreshold", &C::averageCriteria},
        fw_Field{"xformType", 12, "transformationType", &C::xformType},
        fw_Field{"datumName", 13, "datumName", &C::datumName},
        fw_Field{"coordSystem", 14, "coordSystem", &C::coordSystem},
        fw_Field{"numericForm", 15, "numericForm", &C::numericForm},
        fw_Field{"complexAngle", 16, "complexAngle", &C::complexAngle},
        fw_Field{"featureAngle", 17, "featureAngle", &C::featureAngle},
        fw_Field{"dataType", 18, "dataType", &C::dataType},
        fw_Field{"displayDataType", 19, "displayDataType", &C::displayDataType},
        fw_Field{"outputPosition", 20, "outputPosition", &C::outputPosition},
        fw_Field{"displayOutputPosition", 21, "displayOutputPosition", &C::displayOutputPosition},
        fw_Field{"storageType", 22, "storageType", &C::storageType},
        fw_Field{"refinementType", 23, "refinementType", &C::refinementType},
        fw_Field{"refinementLabel", 24, "refinementLabel", &C::refinementLabel},
        fw_Field{"refinementIndex", 25, "refinementIndex", &C::refinementIndex},
        fw_Field{"numCatSpecs", 26, "numCatSpecs", &C::numCatSpecs},
        fw_Field{"diffLocs", 27, "diffLocs", &C::diffLocs},
        fw_Field{"catId", 28, "sectionPointCategoryId", &C::catId},
        fw_Field{"topId", 29, "sectionPointTopId", &C::topId},
        fw_Field{"botId", 30, "sectionPointBottomId", &C::botId},
        fw_Field{"catLabel", 31, "sectionPoint", &C::catLabel},
        fw_Field{"topLabel", 32, "sectionPointTopLabel", &C::topLabel},
        fw_Field{"botLabel", 33, "sectionPointBottomLabel", &C::botLabel},
    };
  }

  kfdC_OdbMeshRegionData() = default;
  explicit kfdC_OdbMeshRegionData(const cls_ReadVisitor& reader);
  virtual ~kfdC_OdbMeshRegionData() = default;
  virtual void AssertValid() const;
  unsigned DynTypeId() const { return TypeId(); }
  const cls_Uid& GetUid() const { return uid; }

  std::int32_t GetStepIdx() const { return stepIdx; }
  void SetStepIdx(std::int32_t v) { stepIdx = v; }
  std::int32_t GetFrameIdx() const { return frameIdx; }
  void SetFrameIdx(std::int32_t v) { frameIdx = v; }
  const cow_String& GetOdbFileName() const { return odbFileName; }
  void SetOdbFileName(const cow_String& v) { odbFileName = v; }
  const cow_String& GetVariable() const { return variable; }
  void SetVariable(const cow_String& v) { variable = v; }
  QuantityToPlotEnm GetQuantityToPlot() const { return quantityToPlot; }
  void SetQuantityToPlot(QuantityToPlotEnm v) { quantityToPlot = v; }
  bool GetAverage() const { return average; }
  void SetAverage(bool v) { average = v; }
  bool GetUseRegions() const { return useRegions; }
  void SetUseRegions(bool v) { useRegions = v; }
  RegionBoundariesEnm GetRegionBoundaries() const { return regionBoundaries; }
  void SetRegionBoundaries(RegionBoundariesEnm v) { regionBoundaries = v; }
  bool GetIncludeFeatureBounds() const { return includeFeatureBounds; }
  void SetIncludeFeatureBounds(bool v) { includeFeatureBounds = v; }
  bool GetAverageDisplayedOnly() const { return averageDisplayedOnly; }
  void SetAverageDisplayedOnly(bool v) { averageDisplayedOnly = v; }
  ComputeOrderEnm GetComputeAlgorithm() const { return computeAlgorithm; }
  void SetComputeAlgorithm(ComputeOrderEnm v) { computeAlgorithm = v; }
  double GetAverageCriteria() const { return averageCriteria; }
  void SetAverageCriteria(double v) { averageCriteria = v; }
  TransformationTypeEnm GetXformType() const { return xformType; }
  void SetXformType(TransformationTypeEnm v) { xformType = v; }
  const cow_String& GetDatumName() const { return datumName; }
  void SetDatumName(const cow_String& v) { datumName = v; }
  std::int32_t GetCoordSystem() const { return coordSystem; }
  void SetCoordSystem(std::int32_t v) { coordSystem = v; }
  NumericFormEnm GetNumericForm() const { return numericForm; }
  void SetNumericForm(NumericFormEnm v) { numericForm = v; }
  double GetComplexAngle() const { return complexAngle; }
  void SetComplexAngle(double v) { complexAngle = v; }
  double GetFeatureAngle() const { return featureAngle; }
  void SetFeatureAngle(double v) { featureAngle = v; }
  std::int32_t GetDataType() const { return dataType; }
  void SetDataType(std::int32_t v) { dataType = v; }
  std::int32_t GetDisplayDataType() const { return displayDataType; }
  void SetDisplayDataType(std::int32_t v) { displayDataType = v; }
  std::int32_t GetOutputPosition() const { return outputPosition; }
  void SetOutputPosition(std::int32_t v) { outputPosition = v; }
  std::int32_t GetDisplayOutputPosition() const { return displayOutputPosition; }
  void SetDisplayOutputPosition(std::int32_t v) { displayOutputPosition = v; }
  StorageTypeEnm GetStorageType() const { return storageType; }
  void SetStorageType(StorageTypeEnm v) { storageType = v; }
  RefinementTypeEnm GetRefinementType() const { return refinementType; }
  void SetRefinementType(RefinementTypeEnm v) { refinementType = v; }
  const cow_String& GetRefinementLabel() const { return refinementLabel; }
  void SetRefinementLabel(const cow_String& v) { refinementLabel = v; }
  std::int32_t GetRefinementIndex() const { return refinementIndex; }
  void SetRefinementIndex(std::int32_t v) { refinementIndex = v; }
  std::int32_t GetNumCatSpecs() const { return numCatSpecs; }
  void SetNumCatSpecs(std::int32_t v) { numCatSpecs = v; }
  bool GetDiffLocs() const { return diffLocs; }
  void SetDiffLocs(bool v) { diffLocs = v; }
  std::int32_t GetCatId() const { return catId; }
  void SetCatId(std::int32_t v) { catId = v; }
  std::int32_t GetTopId() const { return topId; }
  void SetTopId(std::int32_t v) { topId = v; }
  std::int32_t GetBotId() const { return botId; }
  void SetBotId(std::int32_t v) { botId = v; }
  const cow_String& GetCatLabel() const { return catLabel; }
  void SetCatLabel(const cow_String& v) { catLabel = v; }
  const cow_String& GetTopLabel() const { return topLabel; }
  void SetTopLabel(const cow_String& v) { topLabel = v; }
  const cow_String& GetBotLabel() const { return botLabel; }
  void SetBotLabel(const cow_String& v) { botLabel = v; }

 private:
  std::int32_t stepIdx = 0;
  std::int32_t frameIdx = 0;
  cow_String odbFileName;
  cow_String variable;
  QuantityToPlotEnm quantityToPlot = QuantityToPlotEnm::FIELD_OUTPUT;
  bool average = true;
  bool useRegions = true;
  RegionBoundariesEnm regionBoundaries = RegionBoundariesEnm::ODB_REGIONS;
  bool includeFeatureBounds = true;
  bool averageDisplayedOnly = true;
  ComputeOrderEnm computeAlgorithm = ComputeOrderEnm::EXTRAPOLATE_COMPUTE_AVERAGE;
  double averageCriteria = 75.0;
  TransformationTypeEnm xformType = TransformationTypeEnm::NODAL;
  cow_String datumName;
  std::int32_t coordSystem = 0;
  NumericFormEnm numericForm = NumericFormEnm::REAL;
  double complexAngle = 0.0;
  double featureAngle = 20.0;
  std::int32_t dataType = 0;
  std::int32_t displayDataType = 0;
  std::int32_t outputPosition = 0;
  std::int32_t displayOutputPosition = 0;
  StorageTypeEnm storageType = StorageTypeEnm::VOLUMETRIC;
  RefinementTypeEnm refinementType = RefinementTypeEnm::NO_REFINEMENT;
  cow_String refinementLabel;
  std::int32_t refinementIndex = 0;
  std::int32_t numCatSpecs = 0;
  bool diffLocs = false;
  std::int32_t catId = 0;
  std::int32_t topId = 0;
  std::int32_t botId = 0;
  cow_String catLabel;
  cow_String topLabel;
  cow_String botLabel;
  cls_Uid uid;
};

extern template class fw_PersistentClass<kfdC_OdbMeshRegionData, mem_Allocated>;

#pragma once
// An analytical field whose values are mapped from source data: point data (point by point in
// "xyzPointData", or on a grid in a plane) or the results of an earlier analysis ("odbMeshRegionData").
// A grid row holds the two in-plane coordinates and then the values; a point row the three
// coordinates and then the values. A value has 1, 3 or 6 components for a scalar, vector or tensor.
#include <array>
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kfd/kfdC_AnalyticalField.h"
#include "framework/fw_Field.h"
#include "kfd/kfdC_OdbMeshRegionData.h"
#include "platform/base/cow_2DArray.h"
#include "platform/base/cow_COW.h"
#include "platform/base/cow_List.h"
#include "platform/base/omu_PrimEnum.h"

class kfdC_MappedField : public fw_PersistentClass<kfdC_MappedField, kfdC_AnalyticalField> {
 public:
  using BaseClass = kfdC_AnalyticalField;
  using RootClass = kfdC_Field;
  // MESH maps from the results of an earlier analysis, POINT from point data.
  enum class regionTypeEnum : std::int32_t { MESH = 0, POINT = 1 };
  static constexpr omu_EnumLiteral kRegionTypeLiterals[] = {{"MESH", 0}, {"POINT", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(regionTypeEnum) { return kRegionTypeLiterals; }
  enum class fieldDataTypeEnum : std::int32_t { SCALAR = 0, VECTOR = 1, TENSOR = 2 };
  static constexpr omu_EnumLiteral kFieldDataTypeLiterals[] = {{"SCALAR", 0}, {"VECTOR", 1}, {"TENSOR", 2}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(fieldDataTypeEnum) { return kFieldDataTypeLiterals; }
  // The plane of grid point data: its first and second axis.
  enum class gridPointPlaneEnum : std::int32_t { PLANE12 = 0, PLANE23 = 1, PLANE13 = 2, PLANE21 = 3, PLANE32 = 4, PLANE31 = 5 };
  static constexpr omu_EnumLiteral kGridPointPlaneLiterals[] = {{"PLANE12", 0}, {"PLANE23", 1}, {"PLANE13", 2}, {"PLANE21", 3}, {"PLANE32", 4}, {"PLANE31", 5}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(gridPointPlaneEnum) { return kGridPointPlaneLiterals; }
  // Point data given point by point or on a grid; stored as the flag "isGridFormat".
  enum class pointDataFormatEnum : std::int32_t { XYZ = 0, GRID = 1 };
  static constexpr omu_EnumLiteral kPointDataFormatLiterals[] = {{"XYZ", 0}, {"GRID", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(pointDataFormatEnum) { return kPointDataFormatLiterals; }
  // Tolerances given as lengths or relative to the element size; stored as the flag "isRelTol".
  enum class searchTolTypeEnum : std::int32_t { ABSOLUTE = 0, RELATIVE = 1 };
  static constexpr omu_EnumLiteral kSearchTolTypeLiterals[] = {{"ABSOLUTE", 0}, {"RELATIVE", 1}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(searchTolTypeEnum) { return kSearchTolTypeLiterals; }
  static constexpr const char* kClassName = "kfdC_MappedField";
  static constexpr const char* kScriptName = "MappedField";
  static constexpr int kVersion = 2302;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 4); }
  using OdbSourceHandle = cow_COW<kfdC_OdbMeshRegionData, cow_Virtual<kfdC_OdbMeshRegionData>>;
  static constexpr const char* kLabel = "Mapped field";
  static const char* constructorCmd() { return kScriptName; }
  static const char* addGridPointDataCmd() { return "addGridPointData"; }
  static const char* removeGridPointDataCmd() { return "removeGridPointData"; }

  // Persistent fields in write order (field numbers record the order they were added in).
  static constexpr auto Fields() {
    using C = kfdC_MappedField;
    return std::tuple{
        fw_Field{"csys", 0, "csys", &C::csys},
        fw_Field{"csysType", 1, "csysType", &C::csysType},
        fw_Field{"csysPartName", 2, "csysPartName", &C::csysPartName},
        fw_Field{"regionType", 3, "regionType", &C::regionType},
        fw_Field{"fieldDataType", 4, "fieldDataType", &C::fieldDataType},
        fw_Field{"isPartLevelData", 13, "partLevelData", &C::isPartLevelData},
        fw_Field{"isGridFormat", 5, "isGridFormat", &C::isGridFormat},
        fw_Field{"gridPointPlane", 14, "gridPointPlane", &C::gridPointPlane},
        fw_Field{"gridCoordTable", 6, "gridCoordTable", &C::gridCoordTable},
        fw_Field{"gridFieldTable", 7, "gridFieldTable", &C::gridFieldTable},
        fw_Field{"numXInterval", 8, "numXInterval", &C::numXInterval},
        fw_Field{"numYInterval", 9, "numYInterval", &C::numYInterval},
        fw_Field{"numZInterval", 10, "numZInterval", &C::numZInterval},
        fw_Field{"xyzDataTable", 11, "xyzPointData", &C::xyzDataTable},
        fw_Field{"defMappedVal", 12, "defaultUnMappedValue", &C::defMappedVal},
        fw_Field{"mappingAlgorithm", 15, "mappingAlgorithm", &C::mappingAlgorithm},
        fw_Field{"isRelTol", 16, "isRelTol", &C::isRelTol},
        fw_Field{"boundarySearchTol", 17, "boundarySearchTol", &C::boundarySearchTol},
        fw_Field{"neighborSearchTol", 18, "neighborhoodSearchTol", &C::neighborSearchTol},
        fw_Field{"negNormalSearchTol", 19, "negativeNormalSearchTol", &C::negNormalSearchTol},
        fw_Field{"posNormalSearchTol", 20, "positiveNormalSearchTol", &C::posNormalSearchTol},
        fw_Field{"interpolationTol", 21, "interpolationTol", &C::interpolationTol},
        fw_Field{"odbMeshRegion", 22, "odbMeshRegionData", &C::odbMeshRegion},
        fw_Field{"scaleCoordinates", 23, "scaleCoordinates", &C::scaleCoordinates},
        fw_Field{"coordScale1", 24, "coordScale1", &C::coordScale1},
        fw_Field{"coordScale2", 25, "coordScale2", &C::coordScale2},
        fw_Field{"coordScale3", 26, "coordScale3", &C::coordScale3},
    };
  }

  kfdC_MappedField() = default;
  explicit kfdC_MappedField(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

  regionTypeEnum GetRegionType() const { return regionType; }
  void SetRegionType(regionTypeEnum v) { regionType = v; }
  fieldDataTypeEnum GetFieldDataType() const { return fieldDataType; }
  void SetFieldDataType(fieldDataTypeEnum v) { fieldDataType = v; }
  bool GetIsPartLevelData() const { return isPartLevelData; }
  void SetIsPartLevelData(bool v) { isPartLevelData = v; }
  bool GetIsGridFormat() const { return isGridFormat; }
  void SetIsGridFormat(bool v) { isGridFormat = v; }
  gridPointPlaneEnum GetGridPointPlane() const { return gridPointPlane; }
  void SetGridPointPlane(gridPointPlaneEnum v) { gridPointPlane = v; }
  const cow_2DArray<double>& GetGridCoordTable() const { return gridCoordTable; }
  void SetGridCoordTable(const cow_2DArray<double>& v) { gridCoordTable = v; }
  const cow_2DArray<double>& GetGridFieldTable() const { return gridFieldTable; }
  void SetGridFieldTable(const cow_2DArray<double>& v) { gridFieldTable = v; }
  std::int32_t GetNumXInterval() const { return numXInterval; }
  void SetNumXInterval(std::int32_t v) { numXInterval = v; }
  std::int32_t GetNumYInterval() const { return numYInterval; }
  void SetNumYInterval(std::int32_t v) { numYInterval = v; }
  std::int32_t GetNumZInterval() const { return numZInterval; }
  void SetNumZInterval(std::int32_t v) { numZInterval = v; }
  const cow_2DArray<double>& GetXyzDataTable() const { return xyzDataTable; }
  void SetXyzDataTable(const cow_2DArray<double>& v) { xyzDataTable = v; }
  double GetDefMappedVal() const { return defMappedVal; }
  void SetDefMappedVal(double v) { defMappedVal = v; }
  std::int32_t GetMappingAlgorithm() const { return mappingAlgorithm; }
  void SetMappingAlgorithm(std::int32_t v) { mappingAlgorithm = v; }
  bool GetIsRelTol() const { return isRelTol; }
  void SetIsRelTol(bool v) { isRelTol = v; }
  double GetBoundarySearchTol() const { return boundarySearchTol; }
  void SetBoundarySearchTol(double v) { boundarySearchTol = v; }
  double GetNeighborSearchTol() const { return neighborSearchTol; }
  void SetNeighborSearchTol(double v) { neighborSearchTol = v; }
  double GetNegNormalSearchTol() const { return negNormalSearchTol; }
  void SetNegNormalSearchTol(double v) { negNormalSearchTol = v; }
  double GetPosNormalSearchTol() const { return posNormalSearchTol; }
  void SetPosNormalSearchTol(double v) { posNormalSearchTol = v; }
  double GetInterpolationTol() const { return interpolationTol; }
  void SetInterpolationTol(double v) { interpolationTol = v; }
  const OdbSourceHandle& GetOdbMeshRegion() const { return odbMeshRegion; }
  bool GetScaleCoordinates() const { return scaleCoordinates; }
  void SetScaleCoordinates(bool v) { scaleCoordinates = v; }
  double GetCoordScale1() const { return coordScale1; }
  void SetCoordScale1(double v) { coordScale1 = v; }
  double GetCoordScale2() const { return coordScale2; }
  void SetCoordScale2(double v) { coordScale2 = v; }
  double GetCoordScale3() const { return coordScale3; }
  void SetCoordScale3(double v) { coordScale3 = v; }
  pointDataFormatEnum GetPointDataFormat() const { return isGridFormat ? pointDataFormatEnum::GRID : pointDataFormatEnum::XYZ; }
  void SetPointDataFormat(pointDataFormatEnum v) { isGridFormat = v == pointDataFormatEnum::GRID; }
  searchTolTypeEnum GetSearchTolType() const { return isRelTol ? searchTolTypeEnum::RELATIVE : searchTolTypeEnum::ABSOLUTE; }
  void SetSearchTolType(searchTolTypeEnum v) { isRelTol = v == searchTolTypeEnum::RELATIVE; }
  bool HasOdbMeshRegionData() const { return !odbMeshRegion.IsNull(); }
  // Throws when the field has no results source.
  const kfdC_OdbMeshRegionData& GetOdbMeshRegionData() const;
  void SetOdbMeshRegionData(const kfdC_OdbMeshRegionData& v) { odbMeshRegion = OdbSourceHandle(v); }
  void ClearOdbMeshRegionData() { odbMeshRegion = OdbSourceHandle(); }
  std::array<double, 3> GetCoordinateScalingFactors() const { return {coordScale1, coordScale2, coordScale3}; }
  void SetCoordinateScalingFactors(const std::array<double, 3>& v) {
    coordScale1 = v[0];
    coordScale2 = v[1];
    coordScale3 = v[2];
  }
  // The number of components of one value: 1, 3 or 6.
  std::size_t ValueWidth() const;
  // Grid point data as one table: the two in-plane coordinates, then the values.
  cow_2DArray<double> GetGridPointData() const;
  // Refuses (code 24) a table without room for the coordinates and at least one value.
  void SetGridPointData(const cow_2DArray<double>& rows);
  // Appends one grid point: its two in-plane coordinates, then its values.
  void addGridPointData(const cow_List<double>& row);
  // Removes the grid point at a row index.
  void removeGridPointData(std::int32_t index);
  // The axes (0 for X, 1 for Y, 2 for Z) of a grid point plane given by its key (code 23 for an
  // unknown key).
  static std::array<int, 2> GridPlaneAxes(std::int32_t planeKey);

 private:
  regionTypeEnum regionType = regionTypeEnum::POINT;
  fieldDataTypeEnum fieldDataType = fieldDataTypeEnum::SCALAR;
  bool isPartLevelData = false;
  bool isGridFormat = false;
  gridPointPlaneEnum gridPointPlane = gridPointPlaneEnum::PLANE12;
  cow_2DArray<double> gridCoordTable;
  cow_2DArray<double> gridFieldTable;
  std::int32_t numXInterval = 0;
  std::int32_t numYInterval = 0;
  std::int32_t numZInterval = 0;
  cow_2DArray<double> xyzDataTable;
  double defMappedVal = 0.0;
  std::int32_t mappingAlgorithm = 0;
  bool isRelTol = true;
  double boundarySearchTol = 0.05;
  double neighborSearchTol = 1.0;
  double negNormalSearchTol = 0.05;
  double posNormalSearchTol = 0.05;
  double interpolationTol = 0.05;
  OdbSourceHandle odbMeshRegion;
  bool scaleCoordinates = false;
  double coordScale1 = 1.0;
  double coordScale2 = 1.0;
  double coordScale3 = 1.0;
};

extern template class fw_PersistentClass<kfdC_MappedField, kfdC_AnalyticalField>;

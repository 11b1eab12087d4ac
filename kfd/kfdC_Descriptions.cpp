#include "kfd/kfdC_Descriptions.h"
#include "kfd/kfdC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKfdDescDataTable[] = {
    {"dataWidth", "Data width"},
    {"domain", "Domain"},
    {"data", "Data"},
};
constexpr int kKfdCodesDataTable[] = {7, 11, 12, 8};
constexpr cls_MemberDescription kKfdDescDiscreteField[] = {
    {"location", "Location"},
    {"fieldType", "Field type"},
    {"defaultValues", "Default values"},
    {"orientationType", "Orientation type"},
    {"partLevelOrientation", "Part level orientation"},
    {"analyticFieldName", "Analytic field name"},
    {"data", "Data"},
};
constexpr int kKfdCodesDiscreteField[] = {7, 14, 15, 16, 18, 17, 10, 13, 11, 12, 19, 21, 20};
constexpr cls_MemberDescription kKfdDescExpressionField[] = {
    {"csysPartName", "Csys part name"},
    {"csysType", "Csys type"},
    {"expression", "Expression"},
};
constexpr int kKfdCodesExpressionField[] = {0};
constexpr cls_MemberDescription kKfdDescMappedField[] = {
    {"csys", "The datum coordinate system of the point data (empty: the global system)"},
    {"csysType", "Kind of the coordinate system of the point data"},
    {"csysPartName", "The part whose coordinate system is meant, when it is a part's"},
    {"regionType", "Kind of region the field is mapped onto"},
    {"fieldDataType", "Whether the mapped values are scalars or vectors"},
    {"partLevelData", "Whether the data belong to a part rather than to the assembly"},
    {"pointDataFormat", "How the point data are given: scattered points or a grid"},
    {"gridPointPlane", "The plane of grid points"},
    {"gridPointData", "The grid of values (table: coordinates, then values)"},
    {"xyzPointData", "The scattered points (table: x, y, z, value)"},
    {"defaultUnMappedValue", "Value of points that no data reach"},
    {"mappingAlgorithm", "How values are mapped from the data onto the region"},
    {"searchTolType", "Whether the search tolerances are relative or absolute"},
    {"boundarySearchTol", "Search tolerance at the boundary"},
    {"neighborhoodSearchTol", "Search tolerance of the neighborhood"},
    {"negativeNormalSearchTol", "Search tolerance against the normal"},
    {"positiveNormalSearchTol", "Search tolerance along the normal"},
    {"interpolationTol", "Tolerance of the interpolation"},
    {"odbMeshRegionData", "The output-database region the data come from (optional)"},
    {"scaleCoordinates", "Whether the point coordinates are scaled"},
    {"coordinateScalingFactors", "Scale factors of the three coordinates (list of three numbers)"},
    {"numXInterval", "Number of grid intervals along x"},
    {"numYInterval", "Number of grid intervals along y"},
    {"numZInterval", "Number of grid intervals along z"},
};
constexpr int kKfdCodesMappedField[] = {22, 24, 25, 23};
constexpr cls_MemberDescription kKfdDescOdbMeshRegionData[] = {
    {"stepIndex", "Step index"},
    {"frameIndex", "Frame index"},
    {"odbFileName", "Odb file name"},
    {"variableLabel", "Variable label"},
    {"quantityToPlot", "Quantity to plot"},
    {"averageElementOutput", "Average element output"},
    {"useRegionBoundaries", "Use region boundaries"},
    {"regionBoundaries", "Region boundaries"},
    {"includeFeatureBoundaries", "Include feature boundaries"},
    {"averageOnlyDisplayed", "Average only displayed"},
    {"computeOrder", "Compute order"},
    {"averagingThreshold", "Averaging threshold"},
    {"transformationType", "Transformation type"},
    {"datumName", "Datum name"},
    {"coordSystem", "Coord system"},
    {"numericForm", "Numeric form"},
    {"complexAngle", "Complex angle"},
    {"featureAngle", "Feature angle"},
    {"dataType", "Data type"},
    {"displayDataType", "Display data type"},
    {"outputPosition", "Output position"},
    {"displayOutputPosition", "Display output position"},
    {"storageType", "Storage type"},
    {"refinementType", "Refinement type"},
    {"refinementLabel", "Refinement label"},
    {"refinementIndex", "Refinement index"},
    {"numCatSpecs", "Number of section point categories the results name"},
    {"diffLocs", "Diff locs"},
    {"sectionPointCategoryId", "Section point category id"},
    {"sectionPointTopId", "Section point top id"},
    {"sectionPointBottomId", "Section point bottom id"},
    {"sectionPoint", "Section point"},
    {"sectionPointTopLabel", "Section point top label"},
    {"sectionPointBottomLabel", "Section point bottom label"},
};
constexpr cls_ClassDescription kKfdDescriptions[] = {
    {"kfdC_AnalyticalField",
     "A field given analytically in a coordinate system: \"csys\" names a datum coordinate system "
     "(empty for the global system), \"csysPartName\" the part that holds it (empty for an "
     "assembly-level one), and \"csysType\" its kind.",
     {}},
    {"kfdC_DataTable",
     "The data of a discrete field: \"domain\" lists the labels of the nodes or elements, each "
     "optionally prefixed by its part instance (\"Part-1-1.12\"), and \"data\" holds "
     "\"dataWidth\" values per label, row after row.",
     kKfdDescDataTable, nullptr, kKfdCodesDataTable},
    {"kfdC_DiscreteField",
     "A field given as data per node or per element.",
     kKfdDescDiscreteField, nullptr, kKfdCodesDiscreteField},
    {"kfdC_ExpressionField",
     "An analytical field whose value is an expression in the coordinates of its system: X, Y, Z "
     "in a rectangular one, R, Th, Z in a cylindrical one, R, Th, P in a spherical one.",
     kKfdDescExpressionField, nullptr, kKfdCodesExpressionField},
    {"kfdC_Field",
     "A named spatial distribution that other model attributes refer to by name: the abstract "
     "root of the field family.",
     {}},
    {"kfdC_MappedField",
     "An analytical field whose values are mapped from source data: point data (point by point in "
     "\"xyzPointData\", or on a grid in a plane) or the results of an earlier analysis "
     "(\"odbMeshRegionData\").",
     kKfdDescMappedField, nullptr, kKfdCodesMappedField},
    {"kfdC_OdbMeshRegionData",
     "The source of a mapped field taken from the results of an earlier analysis: the output "
     "database, the step and frame, the variable and how its values are averaged, transformed and "
     "refined.",
     kKfdDescOdbMeshRegionData},
};
}  // namespace

std::span<const cls_ClassDescription> kfdC_DescriptionsTable() { return kKfdDescriptions; }

void kfdC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) { return kfdC_ErrorMessage(static_cast<kfdC_ErrorEnm>(code)); };
  cls_RegisterDescriptions("kfd", kfdC_DescriptionsTable(), messages);
}
void kfdC_UnregisterDescriptions() { cls_UnregisterDescriptions("kfd"); }

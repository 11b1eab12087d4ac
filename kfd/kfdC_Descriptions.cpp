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
    {"csys", "The datum coordinate system of its directions (empty: the global system)"},
    {"csysPartName", "Csys part name"},
    {"csysType", "Csys type"},
    {"expression", "Expression"},
};
constexpr int kKfdCodesExpressionField[] = {0};
constexpr cls_MemberDescription kKfdDescMappedField[] = {
    {"csys", "The datum coordinate system of its directions (empty: the global system)"},
    {"csysType", "Csys type"},
    {"csysPartName", "Csys part name"},
    {"regionType", "Region type"},
    {"fieldDataType", "Field data type"},
    {"partLevelData", "Part level data"},
    {"isGridFormat", "Is grid format"},
    {"gridPointPlane", "Grid point plane"},
    {"gridCoordTable", "Grid coord table"},
    {"gridFieldTable", "Grid field table"},
    {"numXInterval", "Num x interval"},
    {"numYInterval", "Num y interval"},
    {"numZInterval", "Num z interval"},
    {"xyzPointData", "Xyz point data"},
    {"defaultUnMappedValue", "Default un mapped value"},
    {"mappingAlgorithm", "Mapping algorithm"},
    {"isRelTol", "Is rel tol"},
    {"boundarySearchTol", "Boundary search tol"},
    {"neighborhoodSearchTol", "Neighborhood search tol"},
    {"negativeNormalSearchTol", "Negative normal search tol"},
    {"positiveNormalSearchTol", "Positive normal search tol"},
    {"interpolationTol", "Interpolation tol"},
    {"odbMeshRegionData", "Odb mesh region data"},
    {"scaleCoordinates", "Scale coordinates"},
    {"coordScale1", "Coord scale1"},
    {"coordScale2", "Coord scale2"},
    {"coordScale3", "Coord scale3"},
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
    {"numCatSpecs", "Num cat specs"},
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

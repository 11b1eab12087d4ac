#include "kfd/kfdC_Descriptions.h"

#include "kfd/kfdC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKfdDescDataTable[] = {
    {"dataWidth", "Number of values given per label (at least 1)"},
    {"domain",
     "Labels of the nodes or elements, each optionally prefixed by its part instance "
     "(\"Part-1-1.12\")"},
    {"data",
     "Values, dataWidth per label of domain, row after row (length dataWidth times the labels)"},
};
constexpr int kKfdCodesDataTable[] = {7, 11, 12};
constexpr cls_MemberDescription kKfdDescDiscreteField[] = {
    {"location",
     "Whether the values are given per node or per element (only NODES and ELEMENTS are accepted)"},
    {"fieldType",
     "Kind of values: a scalar, an orientation (six values per label) or a prescribed condition "
     "(one value, or a degree of freedom and its value)"},
    {"defaultValues",
     "Values of the labels the data do not list (one per value of a label; six, one per degree "
     "of freedom, for a prescribed condition on a degree of freedom)"},
    {"orientationType", "Kind of local system an orientation field defines at each label"},
    {"partLevelOrientation",
     "Whether an orientation field applies at the part level (its labels may then name "
     "no part instance)"},
    {"analyticFieldName", "Analytical field the data were made from (empty: none)"},
    {"data", "The labels and their values (see FieldDataTable)"},
};
constexpr int kKfdCodesDiscreteField[] = {7, 14, 15, 16, 18, 17, 10, 13, 11, 12, 19};
constexpr cls_MemberDescription kKfdDescExpressionField[] = {
    {"csysPartName", "The part whose coordinate system is meant, when it is a part's"},
    {"csysType",
     "Kind of the coordinate system, which fixes the variable names of the expression (INVALID "
     "is refused)"},
    {"expression",
     "Value of the field in the coordinates of its system: X, Y, Z (rectangular), R, Th, Z "
     "(cylindrical) or R, Th, P (spherical); not empty"},
};
constexpr int kKfdCodesExpressionField[] = {2, 0};
constexpr cls_MemberDescription kKfdDescMappedField[] = {
    {"csys", "The datum coordinate system of the point data (empty: the global system)"},
    {"csysType", "Kind of the coordinate system of the point data"},
    {"csysPartName", "The part whose coordinate system is meant, when it is a part's"},
    {"regionType", "Kind of region the field is mapped onto"},
    {"fieldDataType",
     "Kind of the mapped values: scalar (one value), vector (three) or tensor (six)"},
    {"partLevelData", "Whether the data belong to a part rather than to the assembly"},
    {"pointDataFormat", "How the point data are given: scattered points or a grid"},
    {"gridPointPlane", "Plane the grid of points lies in, by its two axes (PLANE12: axes 1 and 2)"},
    {"gridPointData",
     "The grid of values (table: the two in-plane coordinates, then the values; one row per grid "
     "point, (intervals + 1) along each axis of the plane)"},
    {"xyzPointData", "The scattered points (table: x, y, z, then the values; at least one row)"},
    {"defaultUnMappedValue", "Value of points that no data reach"},
    {"mappingAlgorithm", "How values are mapped from the data onto the region"},
    {"searchTolType", "Whether the search tolerances are relative or absolute"},
    {"boundarySearchTol", "Search tolerance at the boundary (above 0 when RELATIVE)"},
    {"neighborhoodSearchTol", "Search tolerance of the neighborhood (above 0 when RELATIVE)"},
    {"negativeNormalSearchTol", "Search tolerance against the normal (above 0 when RELATIVE)"},
    {"positiveNormalSearchTol", "Search tolerance along the normal (above 0 when RELATIVE)"},
    {"interpolationTol", "Tolerance of the interpolation (above 0 when RELATIVE)"},
    {"odbMeshRegionData", "The output-database region the data come from (optional)"},
    {"scaleCoordinates", "Whether the point coordinates are scaled"},
    {"coordinateScalingFactors", "Scale factors of the three coordinates (list of three numbers)"},
    {"numXInterval",
     "Number of grid intervals along x (at least 1 when x is an axis of the grid plane)"},
    {"numYInterval",
     "Number of grid intervals along y (at least 1 when y is an axis of the grid plane)"},
    {"numZInterval",
     "Number of grid intervals along z (at least 1 when z is an axis of the grid plane)"},
};
constexpr int kKfdCodesMappedField[] = {2, 22, 23, 24, 25};
constexpr cls_MemberDescription kKfdDescOdbMeshRegionData[] = {
    {"stepIndex", "Position of the step in the output database whose results are mapped"},
    {"frameIndex", "Position of the frame within that step"},
    {"odbFileName", "Output database file the results are read from"},
    {"variableLabel", "Label of the output variable that is mapped"},
    {"quantityToPlot", "Whether the field output itself or its discontinuities are read"},
    {"averageElementOutput", "Whether element output is averaged at the nodes"},
    {"useRegionBoundaries",
     "Whether averaging stops at the region boundaries chosen by regionBoundaries"},
    {"regionBoundaries",
     "Which boundaries averaging respects: those of the output regions, an element set or "
     "the display groups"},
    {"includeFeatureBoundaries",
     "Whether averaging also stops at feature edges sharper than featureAngle"},
    {"averageOnlyDisplayed", "Whether only displayed elements take part in averaging"},
    {"computeOrder",
     "Order of extrapolating to nodes, computing invariants or components and averaging (RAW_DATA: "
     "the values as stored)"},
    {"averagingThreshold",
     "Relative nodal difference, in percent, below which values are averaged"},
    {"transformationType",
     "How results are transformed: nodal, into the system named by datumName, angular or "
     "to the layup orientation"},
    {"datumName", "Coordinate system the results are transformed into (USER_SPECIFIED)"},
    {"coordSystem", "Id of the coordinate system the results are transformed into"},
    {"numericForm",
     "How complex results are reduced to real values (complexAngle for COMPLEX_MAG_AT_ANGLE)"},
    {"complexAngle",
     "Phase angle at which complex results are taken (degrees; COMPLEX_MAG_AT_ANGLE)"},
    {"featureAngle",
     "Angle between element faces above which an edge counts as a feature boundary (degrees)"},
    {"dataType", "Kind of data of the output variable, as the output database records it"},
    {"displayDataType", "Kind of data the variable is shown as after its refinement"},
    {"outputPosition",
     "Position of the output values in the elements, as the output database records it"},
    {"displayOutputPosition", "Position the values are taken to before they are mapped"},
    {"storageType", "Whether the results are read from surface or volumetric output"},
    {"refinementType",
     "Which part of the variable is mapped: the whole variable, an invariant or a component"},
    {"refinementLabel",
     "Label of the invariant or component that is mapped (INVARIANT, COMPONENT)"},
    {"refinementIndex",
     "Index of the invariant or component that is mapped (INVARIANT, COMPONENT)"},
    {"numCatSpecs", "Number of section point categories the results name"},
    {"diffLocs", "Whether the section points of the categories lie at different positions"},
    {"sectionPointCategoryId", "Id of the section point category whose results are read"},
    {"sectionPointTopId", "Id of the top section point of the category"},
    {"sectionPointBottomId", "Id of the bottom section point of the category"},
    {"sectionPoint", "Label of the section point category whose results are read"},
    {"sectionPointTopLabel", "Label of the top section point of the category"},
    {"sectionPointBottomLabel", "Label of the bottom section point of the category"},
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
    {"kfdC_DiscreteField", "A field given as data per node or per element.", kKfdDescDiscreteField,
     nullptr, kKfdCodesDiscreteField},
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

std::span<const cls_ClassDescription> kfdC_DescriptionsTable() {
  return kKfdDescriptions;
}

void kfdC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) {
    return kfdC_ErrorMessage(static_cast<kfdC_ErrorEnm>(code));
  };
  cls_RegisterDescriptions("kfd", kfdC_DescriptionsTable(), messages);
}
void kfdC_UnregisterDescriptions() {
  cls_UnregisterDescriptions("kfd");
}

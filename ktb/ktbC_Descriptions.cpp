#include "ktb/ktbC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKtbDescActivateElem[] = {
    {"eventSeries", "The name of the event series whose events activate the elements"},
    {"timeConstant",
     "Whether an element becomes active at once or over the time \"timeConstantValue\""},
    {"timeConstantValue", "The time over which an element becomes active, with SPECIFIED"},
};
constexpr cls_MemberDescription kKtbDescCompositeColTable[] = {
    {"label", "A free-text label of the table, shown beside its name"},
    {"columns", "The typed columns of the table, in order"},
};
constexpr cls_MemberDescription kKtbDescDataColumn[] = {
    {"id", "The number that identifies the column in its table (what \"getColumnById\" looks up)"},
    {"label", "The column's heading"},
    {"columnType",
     "The type of the values: INTEGER in \"column_int\", FLOAT in \"column_float\", STRING in "
     "\"column_str\""},
    {"column_float", "The values of a FLOAT column (empty for the other types)"},
    {"column_int", "The values of an INTEGER column (empty for the other types)"},
    {"column_str", "The values of a STRING column (empty for the other types)"},
};
constexpr cls_MemberDescription kKtbDescElemProgressiveActivation[] = {
    {"elset", "The element set whose elements are activated progressively"},
    {"deformation", "Whether activated elements take part in the deformation"},
    {"freeSurfaceType",
     "How the free surface of the active elements is tracked: from the exposed element facets, "
     "or not at all"},
    {"activations", "The activation records, each an event series with its time constant"},
};
constexpr cls_MemberDescription kKtbDescEventSeries[] = {
    {"eventSeriesType", "The name of the event series type that gives the layout of the rows"},
    {"sourceName", "The name of the source the events were read from"},
    {"createStepName", "The step in which the series is created"},
    {"timeSpan", "Whether the event times count from the step's start or from the analysis' start"},
    {"data",
     "The events (table: time, x, y, z, then the field values of the series type; one row per "
     "event)"},
    {"transformations", "The transformations the event positions pass through, in order"},
};
constexpr cls_MemberDescription kKtbDescEventSeriesType[] = {
    {"fieldNums", "The number of field values each event carries after its time and position"},
};
constexpr cls_MemberDescription kKtbDescParameterColumn[] = {
    {"name", "Its name"},
    {"paramDescription", "What the parameter means"},
    {"paramUnit", "The parameter's unit"},
    {"parameterType", "Whether the parameter's values are numbers, integers or strings"},
    {"paramDefaultVal_float", "The default as stored for a number parameter"},
    {"paramDefaultVal_int", "The default as stored for an integer parameter"},
    {"paramDefaultVal_str", "The default as stored for a string parameter"},
    {"paramAllowedVal_float", "The allowed values as stored for a number parameter"},
    {"paramAllowedVal_int", "The allowed values as stored for an integer parameter"},
    {"paramAllowedVal_str", "The allowed values as stored for a string parameter"},
    {"default", "The default value, of the parameter's type"},
    {"allowedValues", "The values the parameter may take (list, of the parameter's type)"},
};
constexpr cls_MemberDescription kKtbDescParameterTable[] = {
    {"label", "A free-text label of the table, shown beside its name"},
    {"parameters", "The parameter columns, by name"},
};
constexpr cls_MemberDescription kKtbDescPropertyTable[] = {
    {"properties", "The names of the properties, in the order of the data columns"},
    {"parameterTable",
     "The name of the parameter table (in the same collection) whose parameters index the data"},
    {"propertyTableDatas", "The data sets of the table, by name"},
};
constexpr cls_MemberDescription kKtbDescPropertyTableData[] = {
    {"label", "A free-text label of the data set, shown beside its name"},
    {"extrapolate",
     "Beyond the data: the end values held (CONSTANT), the end slopes continued (LINEAR), or no "
     "values (NONE)"},
    {"isTemp",
     "Whether the data depend on temperature (a temperature column follows the properties)"},
    {"numOfFieldVar", "Number of field-variable columns after the temperature column"},
    {"regularizeTolerance", "Tolerance with which irregular data are regularized"},
    {"regularizeType",
     "How the tolerance is measured: relative to the range of the data, or in the data's units"},
    {"table",
     "The data (table: the properties, the temperature when \"isTemp\", \"numOfFieldVar\" field "
     "variables, then the parameters; one row per data point)"},
};
constexpr cls_MemberDescription kKtbDescTableCollection[] = {
    {"parameterTables", "The parameter tables of the collection, by name"},
    {"propertyTables", "The property tables of the collection, by name"},
    {"dataTables", "The data tables of the collection, by name"},
};
constexpr cls_MemberDescription kKtbDescTransformation[] = {
    {"transformType",
     "What it does to the positions: nothing, a move by \"vector\", or a turn by \"angle\" about "
     "the axis through \"point\" along \"vector\""},
    {"vector", "The move of a translation, or the axis direction of a rotation (x, y, z)"},
    {"point", "A point on the axis of a rotation (x, y, z)"},
    {"angle", "The angle of a rotation (degrees)"},
};
constexpr cls_ClassDescription kKtbDescriptions[] = {
    {"ktbC_ActivateElem",
     "One activation record of a progressive element activation: the event series that drives it "
     "and how quickly an element becomes active.",
     kKtbDescActivateElem},
    {"ktbC_CompositeColTable",
     "A table of typed columns: a label and its columns in order.",
     kKtbDescCompositeColTable},
    {"ktbC_DataColumn",
     "One typed column of a data table, identified by its id: its values are kept in the list "
     "that belongs to its type; the lists of the other types stay empty.",
     kKtbDescDataColumn},
    {"ktbC_ElemProgressiveActivation",
     "Progressive activation of the elements of \"elset\": whether activated elements take part "
     "in the deformation, how the free surface is tracked, and the activation records.",
     kKtbDescElemProgressiveActivation},
    {"ktbC_EventSeries",
     "An event series: time-stamped events of the type named by \"eventSeriesType\", one row each "
     "in \"data\" (the time, the three coordinates, then the field values), read from "
     "\"sourceName\" and created in the step \"createStepName\"; its positions pass through "
     "\"transformations\" in order.",
     kKtbDescEventSeries},
    {"ktbC_EventSeriesType",
     "The type of an event series: each event carries its time, its position (three coordinates) "
     "and \"fieldNums\" field values.",
     kKtbDescEventSeriesType},
    {"ktbC_ParameterColumn",
     "One parameter of a parameter table: its name, description and unit, its type, its default "
     "value and the values it may take (none listed: any value of its type), each kept in the "
     "member of the parameter's type.",
     kKtbDescParameterColumn},
    {"ktbC_ParameterTable",
     "A table of parameter columns: the parameters that index the data of property tables.",
     kKtbDescParameterTable},
    {"ktbC_PropertyTable",
     "A property table: the names of its properties, the parameter table whose parameters index "
     "it (by name, in the same collection) and its data by name.",
     kKtbDescPropertyTable},
    {"ktbC_PropertyTableData",
     "The data of a property table: one row per data point, the property values first, then the "
     "temperature when \"isTemp\" is set, then \"numOfFieldVar\" field variables and the "
     "parameters.",
     kKtbDescPropertyTableData},
    {"ktbC_TableCollection",
     "A collection of tables: parameter tables, property tables and data tables, each by name.",
     kKtbDescTableCollection},
    {"ktbC_Transformation",
     "One transformation of the positions of an event series.",
     kKtbDescTransformation},
};
}  // namespace

std::span<const cls_ClassDescription> ktbC_DescriptionsTable() { return kKtbDescriptions; }

void ktbC_RegisterDescriptions() {
  cls_RegisterDescriptions("ktb", ktbC_DescriptionsTable());
}
void ktbC_UnregisterDescriptions() { cls_UnregisterDescriptions("ktb"); }

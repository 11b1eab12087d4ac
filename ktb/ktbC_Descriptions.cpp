#include "ktb/ktbC_Descriptions.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKtbDescActivateElem[] = {
    {"eventSeries", "Event series"},
    {"timeConstant", "Time constant"},
    {"timeConstantValue", "Time constant value"},
};
constexpr cls_MemberDescription kKtbDescCompositeColTable[] = {
    {"label", "Its label"},
    {"columns", "Columns"},
};
constexpr cls_MemberDescription kKtbDescDataColumn[] = {
    {"id", "Id"},
    {"label", "Its label"},
    {"columnType", "Column type"},
    {"column_float", "Column float"},
    {"column_int", "Column int"},
    {"column_str", "Column str"},
};
constexpr cls_MemberDescription kKtbDescElemProgressiveActivation[] = {
    {"elset", "Elset"},
    {"deformation", "Deformation"},
    {"freeSurfaceType", "Free surface type"},
    {"activations", "Activations"},
};
constexpr cls_MemberDescription kKtbDescEventSeries[] = {
    {"eventSeriesType", "Event series type"},
    {"sourceName", "Source name"},
    {"createStepName", "Create step name"},
    {"timeSpan", "Time span"},
    {"data", "Data"},
    {"transformations", "Transformations"},
};
constexpr cls_MemberDescription kKtbDescEventSeriesType[] = {
    {"fieldNums", "Field nums"},
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
    {"label", "Its label"},
    {"parameters", "Parameters"},
};
constexpr cls_MemberDescription kKtbDescPropertyTable[] = {
    {"properties", "Properties"},
    {"parameterTable", "Parameter table"},
    {"propertyTableDatas", "Property table datas"},
};
constexpr cls_MemberDescription kKtbDescPropertyTableData[] = {
    {"label", "Its label"},
    {"extrapolate", "Extrapolate"},
    {"isTemp", "Is temp"},
    {"numOfFieldVar", "Num of field var"},
    {"regularizeTolerance", "Regularize tolerance"},
    {"regularizeType", "Regularize type"},
    {"table", "Table"},
};
constexpr cls_MemberDescription kKtbDescTableCollection[] = {
    {"parameterTables", "Parameter tables"},
    {"propertyTables", "Property tables"},
    {"dataTables", "Data tables"},
};
constexpr cls_MemberDescription kKtbDescTransformation[] = {
    {"transformType", "Transform type"},
    {"vector", "Vector"},
    {"point", "Point"},
    {"angle", "Angle (degrees)"},
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

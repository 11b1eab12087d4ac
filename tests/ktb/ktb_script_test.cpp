// The table repositories as scripts see them: nested containers and positional lists addressed by
// scripting names, changes journaled per container, and a saved model read back.
#include <filesystem>
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "ktb/ktbC_TableCollContainer.h"
#include "platform/model/omu_ChangeHistory.h"
#include "tests/support/qmx_test.h"

namespace {

class KtbScript : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    Ok(R"({"op":"create","path":["Model-1"]})");
    Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1"],"type":"TableCollection"})");
    omu_ChangeHistory::Instance().Clear();
  }
  cmd_Json Ok(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_TRUE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r["result"];
  }
  cmd_Json Fails(const std::string& line) {
    cmd_Json r = s.ExecuteLine(line);
    EXPECT_FALSE(r["ok"].get<bool>()) << line << "\n -> " << r.dump();
    return r.contains("error") ? r["error"] : cmd_Json();
  }
  cmd_Session s;
};

TEST_F(KtbScript, TablesInsideACollectionAreMadeByTheirPaths) {
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","parameterTables","PT-1"],"type":"ParameterTable"})");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","parameterTables","PT-1","parameters",0],
          "type":"ParameterColumn","values":{"name":"layer","parameterType":"INTEGER","paramAllowedVal_int":[1,2,3]}})");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","parameterTables","PT-1","parameters",0],
          "type":"ParameterColumn","values":{"name":"material","parameterType":"STRING"}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","tableCollections","TC-1","parameterTables","PT-1","parameters",1,"name"]})"),
            "layer");
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"ktbC_TableCollContainer", "Modify", "TC-1"},
                                        {"ktbC_ParameterTableCont", "Insert", "PT-1"},
                                        {"ktbC_TableCollContainer", "Modify", "TC-1"},
                                        {"ktbC_ParameterTableCont", "Modify", "PT-1"},
                                        {"ktbC_ParameterColumnList", "Insert", "0"},
                                        {"ktbC_TableCollContainer", "Modify", "TC-1"},
                                        {"ktbC_ParameterTableCont", "Modify", "PT-1"},
                                        {"ktbC_ParameterColumnList", "Insert", "0"}}));

  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","propertyTables","K"],"type":"PropertyTable"})");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","propertyTables","K","propertyTableDatas","D-1"],
          "type":"PropertyTableData","values":{"extrapolate":"NONE","regularizeType":"ABSOLUTE","table":[[1,2]]}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","tableCollections","TC-1","propertyTables","K","propertyTableDatas","D-1","extrapolate"]})"),
            "NONE");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","dataTables","DT-1"],"type":"DataTable"})");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","dataTables","DT-1","columns",0],"type":"Column",
          "values":{"id":4,"columnType":"STRING","column_str":["a","b"]}})");
  EXPECT_EQ(Ok(R"({"op":"list","path":["Model-1","tableCollections","TC-1"]})"),
            cmd_Json::parse(R"(["parameterTables","propertyTables","dataTables"])"));

  // Wrong constructors and literals are refused and change nothing.
  const cmd_Json before = Ok(R"({"op":"get","path":["Model-1","tableCollections"]})");
  Fails(R"({"op":"create","path":["Model-1","tableCollections","TC-1","parameterTables","PT-2"],"type":"PropertyTable"})");
  EXPECT_EQ(Fails(R"({"op":"set","path":["Model-1","tableCollections","TC-1","dataTables","DT-1","columns",0,"columnType"],"value":"DOUBLE"})")["message"],
            "omu_PrimEnum(const cow_String&) - str not allowed: DOUBLE  Permissible: INTEGER, FLOAT, STRING");
  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","tableCollections","TC-1","dataTables","DT-1","columns",3],"type":"Column"})")["message"],
            "An element of columns can go at positions 0 to 1, not 3");
  EXPECT_EQ(Fails(R"({"op":"delete","path":["Model-1","tableCollections","TC-1","dataTables"]})")["message"],
            R"(the member "dataTables" of TableCollection always holds an object; it cannot be deleted)");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","tableCollections"]})"), before);
}

TEST_F(KtbScript, EventSeriesAndActivationsRoundTripThroughTheFile) {
  Ok(R"({"op":"create","path":["Model-1","eventSeriesTypes","Laser"],"type":"EventSeriesType","values":{"fieldNums":2}})");
  Ok(R"({"op":"create","path":["Model-1","eventSeriesDatas","Path-1"],"type":"EventSeriesData",
          "values":{"eventSeriesType":"Laser","timeSpan":"TOTAL_TIME","data":[[0,0,0,0,1,2]],
                    "transformations":[{"transformType":"ROTATE","vector":[0,0,1],"angle":90},{"transformType":"TRANSLATE"}]}})");
  Ok(R"({"op":"create","path":["Model-1","elementProgressiveActivations","EPA-1"],"type":"ElementProgressiveActivation",
          "values":{"elset":"Set-1","deformation":true,"freeSurfaceType":"NONE",
                    "activations":[{"eventSeries":"Path-1","timeConstant":"SPECIFIED","timeConstantValue":0.5}]}})");
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","dataTables","DT-1"],"type":"DataTable","values":{"label":"x"}})");
  const cmd_Json model = Ok(R"({"op":"get","path":["Model-1"]})");
  EXPECT_EQ(model["eventSeriesDatas"]["Path-1"]["transformations"][0]["transformType"], "ROTATE");
  const std::string dir = qmx_TempDir("ktb-script");
  const std::string file = dir + "/tables.odb";
  Ok(R"({"op":"save","file":")" + file + R"("})");
  Ok(R"({"op":"delete","path":["Model-1"]})");
  Ok(R"({"op":"open","file":")" + file + R"("})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1"]})"), model);
  Ok(R"({"op":"validate","path":["Model-1"]})");
}

// The default and the allowed values read and write as the column's own type, kept in the stored
// field of that type; a value of another type is refused and changes nothing.
TEST_F(KtbScript, AParameterDefaultAndAllowedValuesTakeTheParametersType) {
  Ok(R"({"op":"create","path":["Model-1","tableCollections","TC-1","parameterTables","PT-1"],"type":"ParameterTable"})");
  const std::string column = R"("Model-1","tableCollections","TC-1","parameterTables","PT-1","parameters",0)";
  struct Case {
    const char* type;
    const char* def;
    const char* allowed;
    const char* storedDefault;
    const char* storedAllowed;
  };
  const Case cases[] = {
      {"FLOAT", "2.5", "[0.5,2.5,4]", "paramDefaultVal_float", "paramAllowedVal_float"},
      {"INTEGER", "3", "[1,2,3]", "paramDefaultVal_int", "paramAllowedVal_int"},
      {"STRING", R"("IN718")", R"(["Ti6Al4V","IN718"])", "paramDefaultVal_str", "paramAllowedVal_str"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.type);
    Ok(R"({"op":"create","path":[)" + column + R"(],"type":"ParameterColumn","values":{"name":"p","parameterType":")" + c.type +
       R"(","default":)" + c.def + R"(,"allowedValues":)" + c.allowed + "}}");
    const cmd_Json got = Ok(R"({"op":"get","path":[)" + column + "]}");
    EXPECT_EQ(got["default"], cmd_Json::parse(c.def));
    EXPECT_EQ(got["allowedValues"], cmd_Json::parse(c.allowed));
    EXPECT_EQ(got[c.storedDefault], cmd_Json::parse(c.def));
    EXPECT_EQ(got[c.storedAllowed], cmd_Json::parse(c.allowed));
    Ok(R"({"op":"delete","path":[)" + column + "]}");
  }

  Ok(R"({"op":"create","path":[)" + column + R"(],"type":"ParameterColumn","values":{"name":"layer","parameterType":"INTEGER"}})");
  const cmd_Json before = Ok(R"({"op":"get","path":[)" + column + "]}");
  const char* refused[] = {R"({"default":"thick"})", R"({"default":2.5})", R"({"allowedValues":["a"]})", R"({"allowedValues":[1,1.5]})"};
  for (const char* values : refused) {
    SCOPED_TRACE(values);
    Fails(R"({"op":"set","path":[)" + column + R"(],"values":)" + values + "}");
    EXPECT_EQ(Ok(R"({"op":"get","path":[)" + column + "]}"), before);
  }
  EXPECT_EQ(Fails(R"({"op":"set","path":[)" + column + R"(,"default"],"value":"thick"})")["message"],
            "The member \"default\" takes an int, the type of an INTEGER parameter, not a string");
  // An integral number is an integer; the list of a string parameter takes texts only.
  Ok(R"({"op":"set","path":[)" + column + R"(,"default"],"value":4.0})");
  EXPECT_EQ(Ok(R"({"op":"get","path":[)" + column + R"(,"paramDefaultVal_int"]})"), 4);
  Ok(R"({"op":"set","path":[)" + column + R"(,"parameterType"],"value":"STRING"})");
  EXPECT_EQ(Fails(R"({"op":"set","path":[)" + column + R"(,"allowedValues"],"value":[1,2]})")["message"],
            "The member \"allowedValues\" takes a list of strings, the type of a STRING parameter, not a list of doubles");
  Ok(R"({"op":"set","path":[)" + column + R"(,"allowedValues"],"value":[]})");
  EXPECT_EQ(Ok(R"({"op":"get","path":[)" + column + R"(,"allowedValues"]})"), cmd_Json::array());
}

}  // namespace

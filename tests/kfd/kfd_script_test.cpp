// The field repositories as scripts and files see them: reachable by their scripting names, the
// composed members of mapped fields, validation with the failing path, and a file holding mapped
// field rows of an older layout (the other upgrade steps are checked on records).
#include <sqlite3.h>

#include <filesystem>
#include <string>

#include <nlohmann/json.hpp>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_Vfs.h"
#include "kfd/kfdC_AllFields.h"
#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_MappedField.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "tests/kfd/kfd_test.h"

namespace {

class KfdScript : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    Ok(R"({"op":"create","path":["Model-1"]})");
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
  std::string Dir(const char* name) {
    const std::string d = qmx_TempDir(name);
    std::filesystem::create_directories(d);
    return d;
  }
  cmd_Session s;
};

TEST_F(KfdScript, FieldsAreMadeAndValidatedByScriptingNames) {
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","AF-1"],"type":"ExpressionField","values":{"expression":"X + Y"}})");
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","AF-2"],"type":"ExpressionField","values":{"csysType":"SPHERICAL"}})");
  const cmd_Json e = Fails(R"({"op":"validate","path":["Model-1","analyticalFields"]})");
  EXPECT_EQ(e["message"], "An expression must be supplied.");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["Model-1","analyticalFields","AF-2"])"));
  EXPECT_EQ(e["file"], "QMXOdbKfdC.m/src/kfdC_assert");
  EXPECT_EQ(e["line"], 82);
  // The names an expression uses are the host's check, not the field's own rule.
  Ok(R"({"op":"set","path":["Model-1","analyticalFields","AF-2","expression"],"value":"R + X"})");
  Ok(R"({"op":"validate","path":["Model-1","analyticalFields"]})");

  // A discrete field is not an analytical one.
  Fails(R"({"op":"create","path":["Model-1","analyticalFields","DF-1"],"type":"DiscreteField"})");
  Ok(R"({"op":"create","path":["Model-1","discreteFields","DF-1"],"type":"DiscreteField",
          "values":{"data":{"domain":["1","2"],"data":[1,2]},"defaultValues":[0]}})");
  Ok(R"({"op":"validate","path":["Model-1","discreteFields"]})");
  EXPECT_EQ(Fails(R"({"op":"set","path":["Model-1","discreteFields","DF-1","location"],"value":"NODAL"})")["message"],
            "omu_PrimEnum(const cow_String&) - str not allowed: NODAL  Permissible: NODES, ELEMENTS, INTEGRATION_POINT, "
            "ELEMENT_NODES");
}

TEST_F(KfdScript, MappedFieldsShowTheirStoredFlagsAsLiteralsAndTheirFactorsAsATriple) {
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","MF-1"],"type":"MappedField",
          "values":{"pointDataFormat":"GRID","searchTolType":"ABSOLUTE","numXInterval":1,"numYInterval":1,
                    "gridPointData":[[0,0,1],[1,0,2],[0,1,3],[1,1,4]],"coordinateScalingFactors":[1,2,3]}})");
  Ok(R"({"op":"validate","path":["Model-1","analyticalFields","MF-1"]})");
  const cmd_Json f = Ok(R"({"op":"get","path":["Model-1","analyticalFields","MF-1"]})");
  EXPECT_EQ(f["pointDataFormat"], "GRID");
  EXPECT_EQ(f["searchTolType"], "ABSOLUTE");
  EXPECT_EQ(f["coordinateScalingFactors"], cmd_Json::parse("[1.0,2.0,3.0]"));
  EXPECT_EQ(f["gridPointData"], cmd_Json::parse("[[0.0,0.0,1.0],[1.0,0.0,2.0],[0.0,1.0,3.0],[1.0,1.0,4.0]]"));
  EXPECT_FALSE(f.contains("isGridFormat"));
  EXPECT_FALSE(f.contains("coordScale1"));

  const auto& fields = dynamic_cast<const kfdC_AnalyticalFieldContainer::Map&>(
      *s.Database().FindModel("Model-1")->FindRepository("analyticalFields"));
  const auto* mf = dynamic_cast<const kfdC_MappedField*>(fields.ConstGet("MF-1"));
  ASSERT_NE(mf, nullptr);
  EXPECT_TRUE(mf->GetIsGridFormat());
  EXPECT_FALSE(mf->GetIsRelTol());
  EXPECT_EQ(mf->GetCoordScale2(), 2.0);
  EXPECT_EQ(mf->GetGridCoordTable(), (cow_2DArray<double>{{0, 0}, {1, 0}, {0, 1}, {1, 1}}));

  struct Case {
    const char* values;
    const char* message;
  };
  const Case cases[] = {
      {R"({"pointDataFormat":"Grid"})", "omu_PrimEnum(const cow_String&) - str not allowed: Grid  Permissible: XYZ, GRID"},
      {R"({"searchTolType":2})", "omu_PrimEnum(ENUMTYPE) - Enum value not allowed: 2  Permissible: ABSOLUTE, RELATIVE"},
      {R"({"coordinateScalingFactors":[1,2]})", R"(The member "coordinateScalingFactors" of MappedField takes three numbers, not 2)"},
      {R"({"gridPointData":[[0,0],[1,1]]})", "Invalid source point data definition for GRID format."},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.values);
    EXPECT_EQ(Fails(std::string(R"({"op":"set","path":["Model-1","analyticalFields","MF-1"],"values":)") + c.values + "}")["message"],
              c.message);
  }
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","analyticalFields","MF-1"]})"), f);  // nothing changed

  // The results source is an optional member object.
  Ok(R"({"op":"set","path":["Model-1","analyticalFields","MF-1","odbMeshRegionData"],"type":"OdbMeshRegionData",
          "values":{"odbFileName":"Job-1.odb","variableLabel":"S","computeOrder":"RAW_DATA","regionBoundaries":"ELEMENT_SET"}})");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","analyticalFields","MF-1","odbMeshRegionData","regionBoundaries"]})"),
            "ELEMENT_SET");
}

void Edit(const std::string& path, const std::string& sql) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open_v2(path.c_str(), &db, SQLITE_OPEN_READWRITE, dbf_ChecksumVfs()), SQLITE_OK);
  char* err = nullptr;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &err), SQLITE_OK) << (err ? err : "") << " in " << sql;
  sqlite3_free(err);
  sqlite3_close(db);
}

TEST_F(KfdScript, AFileWithMappedFieldsOfTheLayoutOf1571IsUpgradedAsItIsOpened) {
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","MF-1"],"type":"MappedField",
          "values":{"xyzPointData":[[0,0,0,5]],"searchTolType":"ABSOLUTE","interpolationTol":0.75,"scaleCoordinates":true,
                    "coordinateScalingFactors":[2,2,2],"defaultUnMappedValue":-3}})");
  const std::string file = Dir("kfd-upgrade") + "/old.odb";
  dbf_Save(s.Database(), file);
  // The layout of 1571: none of the fields that 1589, 1592, 1632 and 2302 added.
  const std::vector<std::string> added = {"interpolationTol", "odbMeshRegion", "scaleCoordinates", "coordScale1",
                                          "coordScale2", "coordScale3"};
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName("kfdC_MappedField")->Attributes())
    if (std::find(added.begin(), added.end(), a.handle.Name().str()) == added.end()) attrs.push_back(a);
  Edit(file,
       "ALTER TABLE kfdC_MappedField DROP COLUMN interpolationTol;"
       "ALTER TABLE kfdC_MappedField DROP COLUMN \"odbMeshRegion#OID\";"
       "ALTER TABLE kfdC_MappedField DROP COLUMN \"odbMeshRegion#ClassID\";"
       "ALTER TABLE kfdC_MappedField DROP COLUMN scaleCoordinates;"
       "ALTER TABLE kfdC_MappedField DROP COLUMN coordScale1;"
       "ALTER TABLE kfdC_MappedField DROP COLUMN coordScale2;"
       "ALTER TABLE kfdC_MappedField DROP COLUMN coordScale3;"
       "DELETE FROM dbf_Fields WHERE class = 'kfdC_MappedField' AND name IN ('interpolationTol', 'odbMeshRegion',"
       " 'scaleCoordinates', 'coordScale1', 'coordScale2', 'coordScale3');"
       "UPDATE dbf_Catalog SET version = 1571, fieldHash = '" + dbf_FieldTableHash(attrs) +
           "' WHERE name = 'kfdC_MappedField';");
  const ddr_Database db = dbf_Open(file);
  const auto& fields = dynamic_cast<const kfdC_AnalyticalFieldContainer::Map&>(
      *db.FindModel("Model-1")->FindRepository("analyticalFields"));
  const auto* mf = dynamic_cast<const kfdC_MappedField*>(fields.ConstGet("MF-1"));
  ASSERT_NE(mf, nullptr);
  EXPECT_EQ(mf->GetInterpolationTol(), 0.05);
  EXPECT_FALSE(mf->HasOdbMeshRegionData());
  EXPECT_EQ(mf->GetScaleCoordinates(), false);
  EXPECT_EQ(mf->GetCoordinateScalingFactors(), (std::array<double, 3>{1.0, 1.0, 1.0}));
  // What the 1571 layout held is kept, the tolerance type included.
  EXPECT_EQ(mf->GetSearchTolType(), kfdC_MappedField::searchTolTypeEnum::ABSOLUTE);
  EXPECT_EQ(mf->GetDefMappedVal(), -3.0);
  EXPECT_EQ(mf->GetXyzDataTable(), (cow_2DArray<double>{{0, 0, 0, 5}}));
}

TEST_F(KfdScript, AllFieldsOfAModelByName) {
  Ok(R"({"op":"create","path":["Model-1","discreteFields","A-Discrete"],"type":"DiscreteField"})");
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","Z-Expression"],"type":"ExpressionField","values":{"expression":"X"}})");
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","M-Mapped"],"type":"MappedField"})");
  const ddr_Model& model = *s.Database().FindModel("Model-1");
  std::vector<std::string> names;
  for (const auto& [name, field] : kfdC_AllFields(model)) {
    names.push_back(name.str());
    EXPECT_EQ(kfdC_FindField(model, name), field);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"M-Mapped", "Z-Expression", "A-Discrete"}));
  EXPECT_NE(dynamic_cast<const kfdC_ExpressionField*>(kfdC_FindField(model, "Z-Expression")), nullptr);
  EXPECT_EQ(kfdC_FindField(model, "Nothing"), nullptr);
}

// The constructor variant makes a discrete field from an analytical one; the common bases answer to
// their scripting names but are not constructed themselves.
TEST_F(KfdScript, TheFromAnalyticVariantAndTheBasesByTheirScriptingNames) {
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","AF-1"],"type":"ExpressionField","values":{"expression":"X"}})");
  Ok(R"({"op":"create","path":["Model-1","discreteFields","DF-1"],"type":"DiscreteFieldFromAnalytic",
          "values":{"analyticFieldName":"AF-1","location":"ELEMENTS"}})");
  const cmd_Json made = Ok(R"({"op":"get","path":["Model-1","discreteFields","DF-1"]})");
  EXPECT_EQ(made["type"], "DiscreteField");
  EXPECT_EQ(made["analyticFieldName"], "AF-1");
  EXPECT_EQ(made["location"], "ELEMENTS");
  const kfdC_Field* f = kfdC_FindField(*s.Database().FindModel("Model-1"), "DF-1");
  ASSERT_NE(f, nullptr);
  const kfdC_DiscreteField expected = kfdC_DiscreteField::FromAnalytic("AF-1", kfdC_DiscreteField::locationEnum::ELEMENTS);
  EXPECT_EQ(static_cast<const kfdC_DiscreteField*>(f)->GetAnalyticFieldName(), expected.GetAnalyticFieldName());
  EXPECT_EQ(static_cast<const kfdC_DiscreteField*>(f)->GetLocation(), expected.GetLocation());
  // The variant is a discrete field: it cannot stand among the analytical ones.
  Fails(R"({"op":"create","path":["Model-1","analyticalFields","DF-2"],"type":"DiscreteFieldFromAnalytic"})");

  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","analyticalFields","AF-2"],"type":"AnalyticalField"})")["message"],
            "AnalyticalField cannot be constructed; name one of its kinds: ExpressionField, MappedField");
  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","discreteFields","DF-3"],"type":"Field"})")["message"],
            "Field cannot stand where DiscreteField is expected");
  const cls_ClassRegistrar& classes = cls_ClassRegistrar::Instance();
  EXPECT_EQ(classes.ByScriptName("Field"), classes.ByName("kfdC_Field"));
  EXPECT_EQ(classes.ByScriptName("AnalyticalField"), classes.ByName("kfdC_AnalyticalField"));
  EXPECT_EQ(classes.ByScriptName("DiscreteFieldFromAnalytic"), classes.ByName("kfdC_DiscreteField"));
}

}  // namespace

namespace {

// "allFields" shows both repositories by name to scripts, read-only: a name held by both shows
// the analytical field (what a lookup by name finds), and every change through it is refused
// without touching the model.
TEST_F(KfdScript, AllFieldsIsAReadOnlyViewOfBothRepositories) {
  Ok(R"({"op":"create","path":["Model-1","discreteFields","DF-1"],"type":"DiscreteField"})");
  Ok(R"({"op":"create","path":["Model-1","discreteFields","AF-1"],"type":"DiscreteField","values":{"location":"ELEMENTS"}})");
  Ok(R"({"op":"create","path":["Model-1","analyticalFields","AF-1"],"type":"ExpressionField","values":{"expression":"X"}})");
  const cmd_Json models = Ok(R"({"op":"list","path":["Model-1"]})");
  EXPECT_NE(std::find(models.begin(), models.end(), "allFields"), models.end());
  EXPECT_EQ(Ok(R"({"op":"list","path":["Model-1","allFields"]})"), cmd_Json::parse(R"(["AF-1","DF-1"])"));
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","allFields","AF-1","expression"]})"), "X");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1","allFields","DF-1"]})"),
            Ok(R"({"op":"get","path":["Model-1","discreteFields","DF-1"]})"));
  const cmd_Json all = Ok(R"({"op":"get","path":["Model-1","allFields"]})");
  EXPECT_EQ(all["AF-1"]["type"], "ExpressionField");
  EXPECT_EQ(all.size(), 2u);
  EXPECT_EQ(Fails(R"({"op":"get","path":["Model-1","allFields","Nothing"]})")["message"], R"(There is no "Nothing" in allFields)");

  const cmd_Json before = Ok(R"({"op":"get","path":["Model-1"]})");
  const std::string readOnly =
      R"("allFields" shows the fields read-only; change a field in "analyticalFields" or "discreteFields")";
  for (const char* line : {
           R"({"op":"set","path":["Model-1","allFields","AF-1","expression"],"value":"Y"})",
           R"({"op":"set","path":["Model-1","allFields","AF-1"],"values":{"expression":"Y"}})",
           R"({"op":"set","path":["Model-1","allFields","AF-1"],"type":"ExpressionField"})",
           R"({"op":"create","path":["Model-1","allFields","New"],"type":"ExpressionField"})",
           R"({"op":"create","path":["Model-1","allFields","New"],"type":"DiscreteField"})",
           R"({"op":"delete","path":["Model-1","allFields","DF-1"]})",
       }) {
    SCOPED_TRACE(line);
    EXPECT_EQ(Fails(line)["message"], readOnly);
  }
  EXPECT_EQ(Fails(R"({"op":"create","path":["Model-1","allFields","New"],"type":"Field"})")["message"],
            "Field cannot be constructed; name one of its kinds: ExpressionField, MappedField, DiscreteField, "
            "DiscreteFieldFromAnalytic");
  EXPECT_EQ(Ok(R"({"op":"get","path":["Model-1"]})"), before);

  // Validation through the view names the view's path and finds the field's own failure.
  Ok(R"({"op":"set","path":["Model-1","analyticalFields","AF-1","expression"],"value":""})");
  const cmd_Json e = Fails(R"({"op":"validate","path":["Model-1","allFields"]})");
  EXPECT_EQ(e["message"], "An expression must be supplied.");
  EXPECT_EQ(e["path"], cmd_Json::parse(R"(["Model-1","allFields","AF-1"])"));
  // A model without fields shows an empty view; a name nothing registers is still refused.
  Ok(R"({"op":"create","path":["Model-2"]})");
  EXPECT_EQ(Ok(R"({"op":"list","path":["Model-2","allFields"]})"), cmd_Json::array());
  const cmd_Json unknown = Fails(R"({"op":"list","path":["Model-2","allField"]})");
  EXPECT_EQ(unknown["member"], "allField");
  EXPECT_NE(std::find(unknown["candidates"].begin(), unknown["candidates"].end(), "allFields"), unknown["candidates"].end());
}

}  // namespace

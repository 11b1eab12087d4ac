// The field classes as stored: registration, records read back equal, retired
// layouts carried forward by their converters, and the field repositories in a saved model.
#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "command/cmd_Session.h"
#include "kfd/QMXOdbKfdC.h"
#include "kfd/kfdC_AnalyticalFieldContainer.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_FieldVersions.h"
#include "kfd/kfdC_MappedField.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "platform/persist/dbc_Converter.h"
#include "tests/kfd/kfd_test.h"

namespace {

class KfdPersistence : public ::testing::Test {
 protected:
  void SetUp() override { qmx_StartLibrary(); }
};

struct Stored {
  const char* name;
  unsigned row;
  int version;
};

TEST_F(KfdPersistence, ClassesAreRegisteredAtTheirRowsAndVersions) {
  const Stored classes[] = {
      {"kfdC_Field", 1, 700},          {"kfdC_AnalyticalField", 2, 700},
      {"kfdC_ExpressionField", 3, 810}, {"kfdC_MappedField", 4, 2302},
      {"kfdC_AnalyticalFieldContainer", 5, 810}, {"kfdC_DiscreteField", 6, 1104},
      {"kfdC_DiscreteFieldContainer", 7, 1104},  {"kfdC_DataTable", 8, 1000},
      {"kfdC_OdbMeshRegionData", 9, 1505},
  };
  for (const Stored& s : classes) {
    SCOPED_TRACE(s.name);
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(s.name);
    ASSERT_NE(md, nullptr);
    EXPECT_EQ(md->TypeId(), (858u << 16) | s.row);
    EXPECT_STREQ(kfdC_ArchEntry().Row(static_cast<int>(s.row)).name, s.name);
    EXPECT_EQ(md->Version(), s.version);
  }
}

kfdC_MappedField FilledMapped() {
  kfdC_MappedField f;
  f.SetCsys("Datum csys-2");
  f.SetCsysPartName("Part-1");
  f.SetCsysType(kfdC_AnalyticalField::CsysTypeEnm::CYLINDRICAL);
  f.SetFieldDataType(kfdC_MappedField::fieldDataTypeEnum::VECTOR);
  f.SetIsPartLevelData(true);
  f.SetGridPointPlane(kfdC_MappedField::gridPointPlaneEnum::PLANE31);
  f.SetXyzDataTable(cow_2DArray<double>{{0, 0, 0, 1, 2, 3}});
  f.SetDefMappedVal(-1.5);
  f.SetMappingAlgorithm(2);
  f.SetSearchTolType(kfdC_MappedField::searchTolTypeEnum::ABSOLUTE);
  f.SetBoundarySearchTol(0.25);
  f.SetNeighborSearchTol(2.5);
  f.SetNegNormalSearchTol(0.125);
  f.SetPosNormalSearchTol(0.375);
  f.SetInterpolationTol(0.5);
  f.SetScaleCoordinates(true);
  f.SetCoordinateScalingFactors({2.0, 3.0, 4.0});
  kfdC_OdbMeshRegionData odb;
  odb.SetOdbFileName("Job-1.odb");
  odb.SetStepIdx(2);
  odb.SetFrameIdx(-1);
  odb.SetVariable("NT11");
  odb.SetRegionBoundaries(kfdC_OdbMeshRegionData::RegionBoundariesEnm::DISPLAY_GROUPS);
  odb.SetXformType(kfdC_OdbMeshRegionData::TransformationTypeEnm::USER_SPECIFIED);
  odb.SetDatumName("Csys-9");
  f.SetOdbMeshRegionData(odb);
  return f;
}

TEST_F(KfdPersistence, RecordsReadBackEqualAndFlagsAreStoredAsFlags) {
  const kfdC_MappedField f = FilledMapped();
  cls_Record rec = cls_ToRecord(f);
  EXPECT_EQ(std::get<bool>(*rec.Find("isGridFormat")), false);
  EXPECT_EQ(std::get<bool>(*rec.Find("isRelTol")), false);
  EXPECT_EQ(std::get<double>(*rec.Find("coordScale2")), 3.0);
  EXPECT_EQ(std::get<cow_String>(*rec.Find("gridPointPlane")), "PLANE31");
  const kfdC_MappedField back{cls_RecordReader(rec)};
  EXPECT_TRUE(back == f);
  EXPECT_EQ(back.GetOdbMeshRegionData().GetVariable(), "NT11");
  EXPECT_EQ(back.GetOdbMeshRegionData().GetRegionBoundaries(), kfdC_OdbMeshRegionData::RegionBoundariesEnm::DISPLAY_GROUPS);
  EXPECT_EQ(std::get<cow_String>(*cls_ToRecord(back.GetOdbMeshRegionData()).Find("regionBoundaries")), "DISPLAY_GROUPS");

  // A stored literal the enumeration does not know is refused, not repaired.
  *rec.Find("gridPointPlane") = cow_String("PLANE33");
  auto e = qmx_Catch<nex_CmdError>([&] { kfdC_MappedField{cls_RecordReader(rec)}; });
  EXPECT_EQ(e.Message().rfind("omu_PrimEnum(const cow_String&) - str not allowed: PLANE33  Permissible: ", 0), 0u)
      << e.Message();

  // Fields of every kind come back as their own classes through the container.
  kfdC_AnalyticalFieldContainer fields;
  kfdC_ExpressionField ex;
  ex.SetExpression("R*Z");
  fields.Fields().Insert("AF-1", ex);
  fields.Fields().Insert("MF-1", f);
  const kfdC_AnalyticalFieldContainer again{cls_RecordReader(cls_ToRecord(fields))};
  EXPECT_TRUE(again == fields);
  EXPECT_NE(dynamic_cast<const kfdC_ExpressionField*>(again.Fields().ConstGet("AF-1")), nullptr);
  EXPECT_NE(dynamic_cast<const kfdC_MappedField*>(again.Fields().ConstGet("MF-1")), nullptr);
}

// A copy made through the root or through the abstract analytical level is of the object's own
// class, equal to it, and separate from it; the class's own Copy is typed as that class.
TEST_F(KfdPersistence, CopiesThroughEveryLevelAreOfTheMostDerivedClass) {
  static_assert(std::is_same_v<decltype(std::declval<const kfdC_MappedField&>().Copy()), kfdC_MappedField*>);
  static_assert(std::is_same_v<decltype(std::declval<const kfdC_AnalyticalField&>().Copy()), kfdC_AnalyticalField*>);
  kfdC_MappedField mapped = FilledMapped();
  kfdC_ExpressionField expression;
  expression.SetExpression("X+Y");
  kfdC_DiscreteField discrete;
  const std::vector<std::pair<const kfdC_Field*, const kfdC_AnalyticalField*>> cases = {
      {&mapped, &mapped}, {&expression, &expression}, {&discrete, nullptr}};
  for (const auto& [field, analytical] : cases) {
    SCOPED_TRACE(field->ClassTypeId());
    const std::unique_ptr<kfdC_Field> viaRoot(field->Copy());
    EXPECT_EQ(viaRoot->ClassTypeId(), field->ClassTypeId());
    EXPECT_TRUE(*viaRoot == *field);
    EXPECT_NE(viaRoot.get(), field);
    if (analytical) {
      const std::unique_ptr<kfdC_AnalyticalField> viaLevel(analytical->Copy());
      EXPECT_EQ(viaLevel->ClassTypeId(), field->ClassTypeId());
      EXPECT_TRUE(*viaLevel == *field);
    }
  }
  // the copy is separate: changing it leaves the original as it was
  const std::unique_ptr<kfdC_ExpressionField> copy(expression.Copy());
  copy->SetExpression("X*Y");
  EXPECT_EQ(expression.GetExpression(), "X+Y");
  EXPECT_FALSE(*copy == expression);
  EXPECT_EQ(copy->GetUid(), expression.GetUid());
}

// Removes the fields a layout did not have yet and marks the row as stored at that version.
void Retire(cls_Record& rec, const std::vector<std::string>& added) {
  for (const std::string& name : added) {
    auto& fields = rec.fields;
    auto it = std::find_if(fields.begin(), fields.end(), [&](const auto& f) { return f.first == name; });
    ASSERT_NE(it, fields.end()) << name;
    fields.erase(it);
  }
}

TEST_F(KfdPersistence, RetiredLayoutsFollowTheirChainsToToday) {
  const dbc_UpgradeDriver driver;
  {
    SCOPED_TRACE("mapped field from 1500");
    kfdC_MappedField f = FilledMapped();
    cls_Record rec = cls_ToRecord(f);
    Retire(rec, {"isPartLevelData", "gridPointPlane", "mappingAlgorithm", "isRelTol", "boundarySearchTol",
                 "neighborSearchTol", "negNormalSearchTol", "posNormalSearchTol", "interpolationTol", "odbMeshRegion",
                 "scaleCoordinates", "coordScale1", "coordScale2", "coordScale3"});
    driver.Upgrade("kfdC_MappedField", 1500, 2302, rec);
    const kfdC_MappedField up{cls_RecordReader(rec)};
    EXPECT_EQ(up.GetIsPartLevelData(), false);
    EXPECT_EQ(up.GetGridPointPlane(), kfdC_MappedField::gridPointPlaneEnum::PLANE12);
    EXPECT_EQ(up.GetMappingAlgorithm(), 0);
    EXPECT_EQ(up.GetSearchTolType(), kfdC_MappedField::searchTolTypeEnum::RELATIVE);
    EXPECT_EQ(up.GetBoundarySearchTol(), 0.05);
    EXPECT_EQ(up.GetNeighborSearchTol(), 1.0);
    EXPECT_EQ(up.GetNegNormalSearchTol(), 0.05);
    EXPECT_EQ(up.GetPosNormalSearchTol(), 0.05);
    EXPECT_EQ(up.GetInterpolationTol(), 0.05);
    EXPECT_FALSE(up.HasOdbMeshRegionData());
    EXPECT_EQ(up.GetScaleCoordinates(), false);
    EXPECT_EQ(up.GetCoordinateScalingFactors(), (std::array<double, 3>{1.0, 1.0, 1.0}));
    // What the old layout had is kept.
    EXPECT_EQ(up.GetCsys(), "Datum csys-2");
    EXPECT_EQ(up.GetDefMappedVal(), -1.5);
    EXPECT_EQ(up.GetXyzDataTable(), f.GetXyzDataTable());
    EXPECT_EQ(up.GetUid(), f.GetUid());
  }
  {
    SCOPED_TRACE("mapped field from 1632: only the scaling factors are new");
    kfdC_MappedField f = FilledMapped();
    cls_Record rec = cls_ToRecord(f);
    Retire(rec, {"coordScale1", "coordScale2", "coordScale3"});
    driver.Upgrade("kfdC_MappedField", 1632, 2302, rec);
    const kfdC_MappedField up{cls_RecordReader(rec)};
    EXPECT_EQ(up.GetScaleCoordinates(), true);
    EXPECT_EQ(up.GetSearchTolType(), kfdC_MappedField::searchTolTypeEnum::ABSOLUTE);
    EXPECT_EQ(up.GetCoordinateScalingFactors(), (std::array<double, 3>{1.0, 1.0, 1.0}));
  }
  {
    SCOPED_TRACE("discrete field from 1000");
    kfdC_DiscreteField f;
    f.SetFieldType(kfdC_DiscreteField::discreteFieldTypeEnum::ORIENTATION);
    f.SetOrientationType(kfdC_DiscreteField::OrientationTypeEnm::SPHERICAL);
    f.SetPartLevelOrientation(true);
    f.SetAnalyticFieldName("AF-1");
    f.SetDefaultValues(cow_List<double>(std::vector<double>{4.0}));
    cls_Record rec = cls_ToRecord(f);
    Retire(rec, {"fieldType", "orientationType", "partLevelOrientation", "analyticFieldName"});
    driver.Upgrade("kfdC_DiscreteField", 1000, 1104, rec);
    const kfdC_DiscreteField up{cls_RecordReader(rec)};
    EXPECT_EQ(up.GetFieldType(), kfdC_DiscreteField::discreteFieldTypeEnum::SCALAR);
    EXPECT_EQ(up.GetOrientationType(), kfdC_DiscreteField::OrientationTypeEnm::RECTANGULAR);
    EXPECT_EQ(up.GetPartLevelOrientation(), false);
    EXPECT_EQ(up.GetAnalyticFieldName(), "");
    EXPECT_EQ(up.GetDefaultValues()[0], 4.0);
  }
  {
    SCOPED_TRACE("discrete field from 1042");
    kfdC_DiscreteField f;
    f.SetPartLevelOrientation(true);
    f.SetAnalyticFieldName("AF-1");
    cls_Record rec = cls_ToRecord(f);
    Retire(rec, {"analyticFieldName"});
    driver.Upgrade("kfdC_DiscreteField", 1042, 1104, rec);
    const kfdC_DiscreteField up{cls_RecordReader(rec)};
    EXPECT_EQ(up.GetPartLevelOrientation(), true);
    EXPECT_EQ(up.GetAnalyticFieldName(), "");
  }
  {
    SCOPED_TRACE("expression field from 700");
    kfdC_ExpressionField f;
    f.SetExpression("X");
    f.SetCsysPartName("Part-2");
    cls_Record rec = cls_ToRecord(f);
    Retire(rec, {"csysPartName"});
    driver.Upgrade("kfdC_ExpressionField", 700, 810, rec);
    const kfdC_ExpressionField up{cls_RecordReader(rec)};
    EXPECT_EQ(up.GetCsysPartName(), "");
    EXPECT_EQ(up.GetExpression(), "X");
  }
  // Every step is registered: no version of the chains is left without a way forward.
  for (int v : {1500, 1505, 1509, 1526, 1571, 1589, 1592, 1632})
    EXPECT_TRUE(driver.HasPath("kfdC_MappedField", v, 2302)) << v;
  for (int v : {1000, 1027, 1029, 1042}) EXPECT_TRUE(driver.HasPath("kfdC_DiscreteField", v, 1104)) << v;
  EXPECT_FALSE(driver.HasPath("kfdC_MappedField", 1600, 2302));
}

TEST_F(KfdPersistence, ConvertersAreExportedUnderTheirNames) {
  cls_Record oldRec, newRec;
  const dbc_Row oldRow(oldRec);
  dbc_Row newRow(newRec);
  EXPECT_EQ(Upgrade_kfdC_MappedField_1632_2302(oldRow, newRow, 0), nullptr);
  EXPECT_EQ(newRow.GetDouble(rfm_FieldHandle("coordScale3")), 1.0);
  EXPECT_EQ(Upgrade_kfdC_MappedField_1509(oldRow, newRow, 0), nullptr);
  EXPECT_EQ(newRow.GetString(rfm_FieldHandle("gridPointPlane")), "PLANE12");
  EXPECT_EQ(Upgrade_kfdC_DiscreteField_1027(oldRow, newRow, 0), nullptr);
  EXPECT_EQ(newRow.GetString(rfm_FieldHandle("fieldType")), "SCALAR");
  EXPECT_EQ(Upgrade_kfdC_AnalyticalField_810(oldRow, newRow, 0), nullptr);
  EXPECT_EQ(newRow.GetString(rfm_FieldHandle("csysPartName")), "");
}

}  // namespace

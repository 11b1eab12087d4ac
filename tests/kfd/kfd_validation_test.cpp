// Validation of the fields: the error table letter for letter, the expression-variable check, the
// rules of discrete and mapped fields in their order, and the mapper switch.
#include <cstdlib>

#include "kfd/kfdC_CheckExpressionVars.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfd/kfdC_ExpressionField.h"
#include "kfd/kfdC_MappedField.h"
#include "tests/kfd/kfd_test.h"

namespace {

using Csys = kfdC_AnalyticalField::CsysTypeEnm;

const char* const kRect =
    "Missing or invalid parameter names in expression for a rectangular or global system.\n"
    "Valid parameter names are X, Y, and Z.";
const char* const kCyl =
    "Missing or invalid parameter names in expression for a cylindrical coordinate system.\n"
    "Valid parameter names are R, Th, and Z.";
const char* const kSph =
    "Missing or invalid parameter names in expression for a spherical coordinate system.\n"
    "Valid parameter names are R, Th, and P.";
const char* const kBadCsys = "Invalid reference to a coordinate system for an analytical field.";

TEST(KfdErrorTable, EveryCodeHasItsSentenceAndTheAssertItsPosition) {
  const char* const expected[] = {
      "An expression must be supplied.",
      "Unable to copy unknown field.",
      kBadCsys,
      kRect,
      kCyl,
      kSph,
      "An unknown error has occured in Python while evaluating an analytical field.",
      "Invalid width value specified for the discrete field.",
      "Invalid width value specified for the discrete field data row.",
      "Could not allocate sufficient memory for discrete field data.",
      "Discrete field width value does not match the associated TYPE parameter.",
      "Datatable data is not divisible by width in discrete field.",
      "Datatable data length does not match width * domain length.",
      "Length of defaultValues does not match dataWidth in discrete field.",
      "Discrete Fields are currently supported on Node or Elements only.",
      "Length of defaultValues must be six for discrete field for Prescribed Condition Fields with a DOF.",
      "Length of defaultValues must be one for discrete field for Prescribed Condition Fields without a DOF.",
      "The data width must be one for discrete field for Prescribed Condition Fields without a DOF.",
      "The data width must be two for discrete field for Prescribed Condition Fields with a DOF.",
      "Discrete Fields that define part level orientations may not contain any part instance information as part of the element ID.",
      "Given discrete field does not exist.",
      "Discrete fields may not contain part instance information when applied at the part level.",
      "Relative search tolerance values should be greater than zero.",
      "Unknown grid point plane with the passed in key value.",
      "Invalid source point data definition for GRID format.",
      "Invalid source point data definition for XYZ format.",
      "The section assignment refers to an incompatible element type.",
  };
  for (int code = 0; code < static_cast<int>(std::size(expected)); ++code) {
    SCOPED_TRACE(code);
    auto e = qmx_Catch<nex_PrimError>([&] { kfdC_Assert(false, static_cast<kfdC_ErrorEnm>(code)); });
    EXPECT_EQ(e.Message(), expected[code]);
    EXPECT_STREQ(e.File(), "QMXOdbKfdC.m/src/kfdC_assert");
    EXPECT_EQ(e.Line(), 82);
  }
  EXPECT_NO_THROW(kfdC_Assert(true, kfdC_NoExpression));
  for (int outside : {-1, 27, 1000}) {
    auto e = qmx_Catch<nex_PrimError>([&] { kfdC_Assert(false, static_cast<kfdC_ErrorEnm>(outside)); });
    EXPECT_EQ(e.Message(), "");
  }
}

kfdC_ExpressionField Expression(const char* text, Csys csys) {
  kfdC_ExpressionField f;
  f.SetExpression(text);
  f.SetCsysType(csys);
  return f;
}

TEST(KfdExpressionVars, NamesAreCheckedAgainstTheSystemBySubstring) {
  struct Case {
    const char* expression;
    dtu_DatumCsysType csys;
    const char* message;  // nullptr: passes
  };
  const Case cases[] = {
      {"X + Y", dtu_RectangularCsys, nullptr},
      {"2*Z", dtu_RectangularCsys, nullptr},
      {"1.0", dtu_RectangularCsys, kRect},           // none of X, Y, Z
      {"x + y", dtu_RectangularCsys, kRect},         // lower case is not a coordinate
      {"X + R", dtu_RectangularCsys, kRect},
      {"X*Th", dtu_RectangularCsys, kRect},
      {"X + Pressure", dtu_RectangularCsys, kRect},  // a P inside a name fails too
      {"R*Z", dtu_CylindricalCsys, nullptr},
      {"Th", dtu_CylindricalCsys, nullptr},
      {"R + Y", dtu_CylindricalCsys, kCyl},
      {"R + P", dtu_CylindricalCsys, kCyl},
      {"sin(t)", dtu_CylindricalCsys, kCyl},
      {"R*P", dtu_SphericalCsys, nullptr},
      {"R + X", dtu_SphericalCsys, kSph},
      {"Th*Z", dtu_SphericalCsys, kSph},
      {"X + Y", dtu_InvalidCsys, kBadCsys},
      {"", dtu_InvalidCsys, kBadCsys},
      {"anything at all", static_cast<dtu_DatumCsysType>(4), nullptr},
      {"", static_cast<dtu_DatumCsysType>(-1), nullptr},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.expression) + " in " + std::to_string(c.csys));
    const kfdC_ExpressionField f = Expression(c.expression, Csys::RECTANGULAR);
    if (!c.message) {
      EXPECT_NO_THROW(kfdC_CheckExpressionVars(f, c.csys));
      continue;
    }
    auto e = qmx_Catch<nex_PrimError>([&] { kfdC_CheckExpressionVars(f, c.csys); });
    EXPECT_EQ(e.Message(), c.message);
    EXPECT_EQ(e.Line(), 82);
  }
}

TEST(KfdExpressionField, BaseChecksThenTheEmptyExpressionAndNothingMore) {
  kfd_CheckCases<kfdC_ExpressionField>(
      [] { return Expression("X + Y", Csys::RECTANGULAR); },
      {
          {"empty expression never reaches the variable check", [](auto& f) { f.SetExpression(""); },
           "An expression must be supplied."},
          {"an invalid system comes before the empty expression",
           [](auto& f) {
             f.SetExpression("");
             f.SetCsysType(Csys::INVALID);
           },
           kBadCsys},
          // the names are the host's check (tabled above), not a rule of the field's own validation
          {"rectangular names in a cylindrical system", [](auto& f) { f.SetCsysType(Csys::CYLINDRICAL); }, ""},
          {"no coordinate name at all", [](auto& f) { f.SetExpression("1.0"); }, ""},
      });
  // A fresh field has no expression yet.
  auto e = qmx_Catch<nex_PrimError>([] { kfdC_ExpressionField().AssertValid(); });
  EXPECT_EQ(e.Message(), "An expression must be supplied.");
}

kfdC_DiscreteField Scalar() {
  kfdC_DiscreteField f;
  kfdC_DataTable t;
  t.SetDomain(cow_List<cow_String>(std::vector<cow_String>{"1", "2", "3"}));
  t.SetData(cow_List<double>(std::vector<double>{0.5, 1.5, 2.5}));
  f.SetData(t);
  return f;
}

template <class... D>
cow_List<double> Doubles(D... d) {
  return cow_List<double>(std::vector<double>{static_cast<double>(d)...});
}

void Shape(kfdC_DiscreteField& f, int width, std::size_t labels, std::size_t values) {
  kfdC_DataTable t = f.GetData();
  t.SetDataWidth(width);
  std::vector<cow_String> domain;
  for (std::size_t i = 0; i < labels; ++i) domain.push_back(std::to_string(i + 1));
  t.SetDomain(cow_List<cow_String>(domain));
  t.SetData(cow_List<double>(std::vector<double>(values, 1.0)));
  f.SetData(t);
}

using Type = kfdC_DiscreteField::discreteFieldTypeEnum;
using Loc = kfdC_DiscreteField::locationEnum;

TEST(KfdDiscreteField, RulesInTheirOrder) {
  const std::string width = "Invalid width value specified for the discrete field.";
  const std::string mismatch = "Discrete field width value does not match the associated TYPE parameter.";
  const std::string defaults = "Length of defaultValues does not match dataWidth in discrete field.";
  const std::string divisible = "Datatable data is not divisible by width in discrete field.";
  const std::string length = "Datatable data length does not match width * domain length.";
  const std::string location = "Discrete Fields are currently supported on Node or Elements only.";
  kfd_CheckCases<kfdC_DiscreteField>(
      Scalar,
      {
          {"zero width", [](auto& f) { Shape(f, 0, 3, 3); }, width},
          {"negative width before the location", [&](auto& f) {
             Shape(f, -2, 3, 3);
             f.SetLocation(Loc::INTEGRATION_POINT);
           },
           width},
          {"integration points", [](auto& f) { f.SetLocation(Loc::INTEGRATION_POINT); }, location},
          {"element nodes", [](auto& f) { f.SetLocation(Loc::ELEMENT_NODES); }, location},
          {"elements", [](auto& f) { f.SetLocation(Loc::ELEMENTS); }, ""},
          {"scalar of width 2", [](auto& f) { Shape(f, 2, 3, 6); }, mismatch},
          {"orientation of width 6",
           [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             f.SetDefaultValues(Doubles(1, 0, 0, 0, 1, 0));
             Shape(f, 6, 2, 12);
           },
           ""},
          {"orientation of width 3", [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             Shape(f, 3, 2, 6);
           },
           mismatch},
          {"orientation with one default", [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             Shape(f, 6, 2, 12);
           },
           defaults},
          {"two defaults for a scalar", [](auto& f) { f.SetDefaultValues(Doubles(1, 2)); }, defaults},
          {"defaults before the data length", [](auto& f) {
             f.SetDefaultValues(Doubles());
             Shape(f, 1, 3, 2);
           },
           defaults},
          {"data not divisible by the width",
           [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             f.SetDefaultValues(Doubles(1, 0, 0, 0, 1, 0));
             Shape(f, 6, 2, 13);
           },
           divisible},
          {"fewer rows than labels", [](auto& f) { Shape(f, 1, 3, 2); }, length},
          {"more rows than labels", [](auto& f) { Shape(f, 1, 3, 4); }, length},
          {"instance names at the assembly level", [](auto& f) {
             kfdC_DataTable t = f.GetData();
             t.SetDomain(cow_List<cow_String>(std::vector<cow_String>{"Part-1-1.1", "Part-1-1.2", "3"}));
             f.SetData(t);
           },
           ""},
      });
}

TEST(KfdDiscreteField, PrescribedConditionsAndPartLevelOrientation) {
  const std::string six = "Length of defaultValues must be six for discrete field for Prescribed Condition Fields with a DOF.";
  const std::string one = "Length of defaultValues must be one for discrete field for Prescribed Condition Fields without a DOF.";
  const std::string widthOne = "The data width must be one for discrete field for Prescribed Condition Fields without a DOF.";
  const std::string widthTwo = "The data width must be two for discrete field for Prescribed Condition Fields with a DOF.";
  auto pc = [](kfdC_DiscreteField& f, int width, std::size_t defaults) {
    f.SetFieldType(Type::PRESCRIBEDCONDITION_DOF);
    f.SetDefaultValues(cow_List<double>(std::vector<double>(defaults, 0.0)));
    Shape(f, width, 2, 2 * static_cast<std::size_t>(width < 1 ? 1 : width));
  };
  kfd_CheckCases<kfdC_DiscreteField>(
      Scalar,
      {
          {"with a dof: width 2, six defaults", [&](auto& f) { pc(f, 2, 6); }, ""},
          {"with a dof: width 2, one default", [&](auto& f) { pc(f, 2, 1); }, six},
          {"without a dof: width 1, one default", [&](auto& f) { pc(f, 1, 1); }, ""},
          {"without a dof: width 1, six defaults", [&](auto& f) { pc(f, 1, 6); }, one},
          {"six defaults and width 3", [&](auto& f) { pc(f, 3, 6); }, widthTwo},
          {"one default and width 3", [&](auto& f) { pc(f, 3, 1); }, widthOne},
          {"two defaults and width 4", [&](auto& f) { pc(f, 4, 2); }, widthOne},
          {"part level orientation without instances",
           [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             f.SetPartLevelOrientation(true);
             f.SetDefaultValues(Doubles(1, 0, 0, 0, 1, 0));
             Shape(f, 6, 1, 6);
           },
           ""},
          {"part level orientation with an instance",
           [](auto& f) {
             f.SetFieldType(Type::ORIENTATION);
             f.SetPartLevelOrientation(true);
             f.SetDefaultValues(Doubles(1, 0, 0, 0, 1, 0));
             Shape(f, 6, 1, 6);
             kfdC_DataTable t = f.GetData();
             t.SetDomain(cow_List<cow_String>(std::vector<cow_String>{"Part-1-1.7"}));
             f.SetData(t);
           },
           "Discrete Fields that define part level orientations may not contain any part instance information as "
           "part of the element ID."},
      });
}

TEST(KfdDiscreteField, RowsPartLevelUseAndLookup) {
  kfdC_DiscreteField f = Scalar();
  f.ModifyData().AddRow("4", Doubles(3.5));
  EXPECT_EQ(f.GetData().Rows(), 4u);
  EXPECT_NO_THROW(f.AssertValid());
  const kfdC_DiscreteField before = f;
  auto e = qmx_Catch<nex_PrimError>([&] { f.ModifyData().AddRow("5", Doubles(1, 2)); });
  EXPECT_EQ(e.Message(), "Invalid width value specified for the discrete field data row.");
  EXPECT_TRUE(f == before);

  EXPECT_NO_THROW(f.AssertPartLevelUse());
  f.ModifyData().AddRow("Part-1-1.9", Doubles(1));
  e = qmx_Catch<nex_PrimError>([&] { f.AssertPartLevelUse(); });
  EXPECT_EQ(e.Message(), "Discrete fields may not contain part instance information when applied at the part level.");

  kfdC_DiscreteFieldContainer fields;
  fields.Fields().Insert("DF-1", f);
  EXPECT_TRUE(kfdC_GetDiscreteField(fields, "DF-1") == f);
  e = qmx_Catch<nex_PrimError>([&] { kfdC_GetDiscreteField(fields, "DF-2"); });
  EXPECT_EQ(e.Message(), "Given discrete field does not exist.");

  const kfdC_DiscreteField made = kfdC_DiscreteField::FromAnalytic("AF-1", Loc::ELEMENTS);
  EXPECT_EQ(made.GetAnalyticFieldName(), "AF-1");
  EXPECT_EQ(made.GetLocation(), Loc::ELEMENTS);
}

using MF = kfdC_MappedField;

MF PointCloud() {
  MF f;
  f.SetXyzDataTable(cow_2DArray<double>{{0, 0, 0, 1.0}, {1, 0, 0, 2.0}});
  return f;
}

// A grid of 2 by 1 intervals in the 12 plane: 6 points.
void Grid(MF& f) {
  f.SetPointDataFormat(MF::pointDataFormatEnum::GRID);
  f.SetNumXInterval(2);
  f.SetNumYInterval(1);
  f.SetGridPointData(cow_2DArray<double>{{0, 0, 1}, {1, 0, 2}, {2, 0, 3}, {0, 1, 4}, {1, 1, 5}, {2, 1, 6}});
}

TEST(KfdMappedField, TolerancesThenThePointData) {
  const std::string tol = "Relative search tolerance values should be greater than zero.";
  const std::string grid = "Invalid source point data definition for GRID format.";
  const std::string xyz = "Invalid source point data definition for XYZ format.";
  kfd_CheckCases<MF>(
      PointCloud,
      {
          {"no point data", [](auto& f) { f.SetXyzDataTable(cow_2DArray<double>()); }, xyz},
          {"a vector needs six columns", [](auto& f) { f.SetFieldDataType(MF::fieldDataTypeEnum::VECTOR); }, xyz},
          {"six columns for a vector",
           [](auto& f) {
             f.SetFieldDataType(MF::fieldDataTypeEnum::VECTOR);
             f.SetXyzDataTable(cow_2DArray<double>{{0, 0, 0, 1, 2, 3}});
           },
           ""},
          {"zero relative boundary tolerance", [](auto& f) { f.SetBoundarySearchTol(0); }, tol},
          {"negative relative interpolation tolerance before the data",
           [](auto& f) {
             f.SetInterpolationTol(-1);
             f.SetXyzDataTable(cow_2DArray<double>());
           },
           tol},
          {"zero absolute tolerance",
           [](auto& f) {
             f.SetSearchTolType(MF::searchTolTypeEnum::ABSOLUTE);
             f.SetNegNormalSearchTol(0);
           },
           ""},
          {"an invalid system first",
           [](auto& f) {
             f.SetCsysType(kfdC_AnalyticalField::CsysTypeEnm::INVALID);
             f.SetBoundarySearchTol(0);
           },
           kBadCsys},
          {"a grid", [](auto& f) { Grid(f); }, ""},
          {"a grid missing a point", [](auto& f) {
             Grid(f);
             f.removeGridPointData(5);
           },
           grid},
          {"a grid with the wrong intervals", [](auto& f) {
             Grid(f);
             f.SetNumYInterval(2);
           },
           grid},
          {"a grid in another plane", [](auto& f) {
             Grid(f);
             f.SetGridPointPlane(MF::gridPointPlaneEnum::PLANE23);
           },
           grid},
          {"the same grid in the 13 plane", [](auto& f) {
             Grid(f);
             f.SetGridPointPlane(MF::gridPointPlaneEnum::PLANE13);
             f.SetNumZInterval(1);
           },
           ""},
          {"results as the source", [](auto& f) {
             f.SetRegionType(MF::regionTypeEnum::MESH);
             f.SetXyzDataTable(cow_2DArray<double>());
           },
           ""},
      });
}

TEST(KfdMappedField, GridPointsAreAddedAndRemovedByRow) {
  MF f;
  f.SetPointDataFormat(MF::pointDataFormatEnum::GRID);
  f.addGridPointData(Doubles(0, 0, 1));
  f.addGridPointData(Doubles(1, 0, 2));
  EXPECT_EQ(f.GetGridPointData(), (cow_2DArray<double>{{0, 0, 1}, {1, 0, 2}}));
  EXPECT_EQ(f.GetGridCoordTable(), (cow_2DArray<double>{{0, 0}, {1, 0}}));
  EXPECT_EQ(f.GetGridFieldTable(), (cow_2DArray<double>{{1}, {2}}));
  const MF before = f;
  for (auto bad : {Doubles(0, 1), Doubles(0, 1, 2, 3)}) {
    auto e = qmx_Catch<nex_PrimError>([&] { f.addGridPointData(bad); });
    EXPECT_EQ(e.Message(), "Invalid source point data definition for GRID format.");
  }
  for (int index : {-1, 2}) {
    auto e = qmx_Catch<nex_PrimError>([&] { f.removeGridPointData(index); });
    EXPECT_EQ(e.Message(), "Invalid source point data definition for GRID format.");
  }
  EXPECT_TRUE(f == before);
  f.removeGridPointData(0);
  EXPECT_EQ(f.GetGridPointData(), (cow_2DArray<double>{{1, 0, 2}}));
  f.removeGridPointData(0);
  EXPECT_EQ(f.GetGridPointData().Rows(), 0u);

  EXPECT_EQ(MF::GridPlaneAxes(5), (std::array<int, 2>{2, 0}));
  for (int key : {-1, 6}) {
    auto e = qmx_Catch<nex_PrimError>([&] { MF::GridPlaneAxes(key); });
    EXPECT_EQ(e.Message(), "Unknown grid point plane with the passed in key value.");
  }
}

TEST(KfdMapper, TheOlderMapperIsChosenByTheEnvironment) {
  ::unsetenv("TSR_OLD_MAPPER");
  EXPECT_TRUE(kfdC_UseMTKMapper());
  ::setenv("TSR_OLD_MAPPER", "", 1);
  EXPECT_FALSE(kfdC_UseMTKMapper());
  ::setenv("TSR_OLD_MAPPER", "0", 1);
  EXPECT_FALSE(kfdC_UseMTKMapper());
  ::unsetenv("TSR_OLD_MAPPER");
  EXPECT_TRUE(kfdC_UseMTKMapper());
}

}  // namespace

// The table and event series classes: the architecture table and type ids, literal tables, column
// lookup, and the shortcuts through nested containers.
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "ktb/QMXOdbKtbC.h"
#include "ktb/ktbC_CompositeColTable.h"
#include "ktb/ktbC_CompositeColTableContShortcut.h"
#include "ktb/ktbC_EPAWrapper.h"
#include "ktb/ktbC_ESTWrapper.h"
#include "ktb/ktbC_ESWrapper.h"
#include "ktb/ktbC_ElemProgActivationContShortcut.h"
#include "ktb/ktbC_EventSeriesContShortcut.h"
#include "ktb/ktbC_EventSeriesTypeContShortcut.h"
#include "ktb/ktbC_ParameterTableContShortcut.h"
#include "ktb/ktbC_PropertyTableContShortcut.h"
#include "ktb/ktbC_PropertyTableDataContShortcut.h"
#include "ktb/ktbC_TCWrapper.h"
#include "ktb/ktbC_TableCollContainerShortcut.h"
#include "ktb/ktbC_Transformation.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/typ_ArchCompTable.h"
#include "platform/model/ddr_Model.h"
#include "platform/model/omu_ChangeHistory.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/support/qmx_test.h"

namespace {

struct Named {
  const char* name;
  unsigned typeId;
};
#define KTB_NAMED(C) Named{C::kClassName, C::TypeId()}

TEST(KtbArchitecture, SeventyFiveRowsAndEveryClassAtTheRowOfItsTypeId) {
  qmx_StartLibrary();
  const typ_ArchCompEntry entry = ktbC_ArchEntry();
  ASSERT_EQ(entry.Count(), 75);
  EXPECT_EQ(entry.Row(0).kind, 0);
  EXPECT_EQ(entry.Row(0).name, nullptr);
  const Named classes[] = {
      KTB_NAMED(ktbC_TableCollection), KTB_NAMED(ktbC_CompositeColTable), KTB_NAMED(ktbC_DataColumn),
      KTB_NAMED(ktbC_ParameterTable), KTB_NAMED(ktbC_ParameterColumn), KTB_NAMED(ktbC_PropertyTable),
      KTB_NAMED(ktbC_PropertyTableData), KTB_NAMED(ktbC_EventSeriesType), KTB_NAMED(ktbC_EventSeries),
      KTB_NAMED(ktbC_ElemProgressiveActivation), KTB_NAMED(ktbC_ActivateElem), KTB_NAMED(ktbC_Transformation),
      KTB_NAMED(ktbC_TableCollContainer), KTB_NAMED(ktbC_CompositeColTableCont), KTB_NAMED(ktbC_ParameterTableCont),
      KTB_NAMED(ktbC_PropertyTableCont), KTB_NAMED(ktbC_PropertyTableDataCont), KTB_NAMED(ktbC_EventSeriesTypeCont),
      KTB_NAMED(ktbC_EventSeriesCont), KTB_NAMED(ktbC_ElemProgActivationCont), KTB_NAMED(ktbC_DataColumnList),
      KTB_NAMED(ktbC_ParameterColumnList), KTB_NAMED(ktbC_TCWrapper), KTB_NAMED(ktbC_ESTWrapper),
      KTB_NAMED(ktbC_ESWrapper), KTB_NAMED(ktbC_EPAWrapper),
      KTB_NAMED(ktbC_TableCollectionIMPLSC), KTB_NAMED(ktbC_TableCollectionShortcut),
      KTB_NAMED(ktbC_TableCollectionInTableCollContainerShortcut), KTB_NAMED(ktbC_TableCollContainerIMPLSC),
      KTB_NAMED(ktbC_TableCollContainerShortcut), KTB_NAMED(ktbC_TableCollContainerInModelShortcut),
      KTB_NAMED(ktbC_EventSeriesTypeInEventSeriesTypeContShortcut), KTB_NAMED(ktbC_EventSeriesTypeContInModelShortcut),
      KTB_NAMED(ktbC_EventSeriesInEventSeriesContShortcut), KTB_NAMED(ktbC_EventSeriesContInModelShortcut),
      KTB_NAMED(ktbC_ElemProgressiveActivationInElemProgActivationContShortcut),
      KTB_NAMED(ktbC_ParameterTableInParameterTableContShortcut),
      KTB_NAMED(ktbC_ParameterTableContInTableCollectionShortcut),
      KTB_NAMED(ktbC_PropertyTableContInTableCollectionShortcut),
      KTB_NAMED(ktbC_CompositeColTableContInTableCollectionShortcut),
      KTB_NAMED(ktbC_PropertyTableDataInPropertyTableDataContShortcut),
      KTB_NAMED(ktbC_PropertyTableDataContInPropertyTableShortcut), KTB_NAMED(ktbC_PropertyTableDataShortcut),
  };
  for (const Named& c : classes) {
    SCOPED_TRACE(c.name);
    const int row = entry.RowOf(c.name);
    ASSERT_GT(row, 0);
    EXPECT_EQ(c.typeId, (772u << 16) | static_cast<unsigned>(row));
    EXPECT_EQ(entry.Row(row).kind, 7);
    // Registered classes carry the same type id in their metadata.
    if (const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(c.name)) {
      EXPECT_EQ(md->TypeId(), c.typeId);
    }
  }
  // Every row names a distinct class of the module.
  std::set<std::string> names;
  for (int i = 1; i < entry.Count(); ++i) {
    ASSERT_NE(entry.Row(i).name, nullptr);
    EXPECT_EQ(std::string(entry.Row(i).name).rfind("ktbC_", 0), 0u);
    EXPECT_TRUE(names.insert(entry.Row(i).name).second) << entry.Row(i).name;
  }
  // An element-in-container shortcut points at its element's IMPLSC row.
  EXPECT_EQ(entry.Row(entry.RowOf("ktbC_EventSeriesInEventSeriesContShortcut")).first,
            entry.RowOf("ktbC_EventSeriesIMPLSC"));
  EXPECT_EQ(entry.Row(entry.RowOf("ktbC_EventSeriesInEventSeriesContShortcut")).second, 772);
}

TEST(KtbEnumerations, LiteralsAndValuesAsUsersWriteThem) {
  struct Case {
    const omu_EnumLiteral* table;
    std::vector<std::pair<std::string, int>> literals;
  };
  const Case cases[] = {
      {ktbC_DataColumn::kColTypeLiterals, {{"INTEGER", 0}, {"FLOAT", 1}, {"STRING", 2}}},
      {ktbC_ParameterColumn::kParameterTypeLiterals, {{"INTEGER", 0}, {"FLOAT", 1}, {"STRING", 2}}},
      {ktbC_EventSeries::kTimeSpanLiterals, {{"STEP_TIME", 0}, {"TOTAL_TIME", 1}}},
      {ktbC_EventSeries::kTransformLiterals, {{"NONE", 0}, {"TRANSLATE", 1}, {"ROTATE", 2}}},
      {ktbC_PropertyTableData::kExtrapolateTypeLiterals, {{"CONSTANT", 0}, {"LINEAR", 1}, {"NONE", 2}}},
      {ktbC_PropertyTableData::kRegularizeTypeLiterals, {{"RELATIVE", 0}, {"ABSOLUTE", 1}}},
      {ktbC_ElemProgressiveActivation::kFreeSurfaceLiterals, {{"FACET", 0}, {"NONE", 1}}},
      {ktbC_ActivateElem::kTimeConstantLiterals, {{"INSTANTANEOUS", 0}, {"SPECIFIED", 1}}},
  };
  for (const Case& c : cases) {
    std::vector<std::pair<std::string, int>> got;
    for (const omu_EnumLiteral* l = c.table; l->text; ++l) got.emplace_back(l->text, static_cast<int>(l->value));
    EXPECT_EQ(got, c.literals);
  }
  // The transformation takes its kind from the event series' enumeration.
  static_assert(std::is_same_v<ktbC_Transformation::TransformEnm, ktbC_EventSeries::TransformEnm>);
}

ktbC_DataColumn Column(std::int32_t id, const char* label) {
  ktbC_DataColumn c;
  c.SetColId(id);
  c.SetColLabel(label);
  return c;
}

TEST(KtbDataTable, ColumnsAreFoundByTheirId) {
  qmx_StartLibrary();
  ktbC_CompositeColTable t;
  EXPECT_EQ(t.getColumnById(0), nullptr);
  t.ModifyColumns().Append(Column(7, "time"));
  t.ModifyColumns().Append(Column(3, "first"));
  t.ModifyColumns().Append(Column(3, "second"));
  ASSERT_NE(t.getColumnById(7), nullptr);
  EXPECT_EQ(t.getColumnById(7)->GetColLabel(), "time");
  EXPECT_EQ(t.getColumnById(3)->GetColLabel(), "first");  // the first of equal ids
  EXPECT_EQ(t.getColumnById(4), nullptr);
  EXPECT_EQ(t.getColumnById(-7), nullptr);

  ktbC_DataColumn ints = Column(1, "n");
  ints.SetColType(ktbC_DataColumn::colTypeEnm::INTEGER);
  ints.SetColumn_int(cow_List<std::int32_t>(std::vector<std::int32_t>{4, 5, 6}));
  ints.SetColumn_float(cow_List<double>(std::vector<double>{1.5}));
  EXPECT_EQ(ints.Size(), 3u);  // the list of the column's own type
  t.ModifyColumns().Insert(0, ints);
  const ktbC_CompositeColTable back{cls_RecordReader(cls_ToRecord(t))};
  EXPECT_TRUE(back == t);
  EXPECT_EQ(back.getColumnById(1)->GetColumn_int()[2], 6);
  EXPECT_EQ(back.GetColumns().Size(), 4u);
}

class KtbShortcut : public ::testing::Test {
 protected:
  void SetUp() override {
    qmx_StartLibrary();
    ktbC_TableCollection tc;
    ktbC_PropertyTable pt;
    ktbC_PropertyTableData data;
    data.SetLabel("steel");
    pt.ModifyPropertyTableDataContainer().Insert("D-1", data);
    tc.ModifyPropertyTableContainer().Insert("Conductivity", pt);
    Collections().Insert("TC-1", tc);
    omu_ChangeHistory::Instance().Clear();
  }
  ktbC_TableCollContainer& Collections() {
    return dynamic_cast<ktbC_TableCollContainer&>(*model.ModifyRepository("tableCollections"));
  }
  ddr_Model model;
};

ktbC_PropertyTableDataShortcut DataShortcut(const char* collection, const char* table, const char* data) {
  const ktbC_TableCollectionShortcut tc{ktbC_TableCollectionInTableCollContainerShortcut(cow_String(collection))};
  const ktbC_PropertyTableContShortcut tables{ktbC_PropertyTableContInTableCollectionShortcut(tc)};
  const ktbC_PropertyTableShortcut pt{ktbC_PropertyTableInPropertyTableContShortcut(tables, cow_String(table))};
  const ktbC_PropertyTableDataContShortcut datas{ktbC_PropertyTableDataContInPropertyTableShortcut(pt)};
  return ktbC_PropertyTableDataShortcut(ktbC_PropertyTableDataInPropertyTableDataContShortcut(datas, cow_String(data)));
}

TEST_F(KtbShortcut, ReachesDataThroughTheNestedContainersAndSeparatesOnModification) {
  const ktbC_PropertyTableDataShortcut sc = DataShortcut("TC-1", "Conductivity", "D-1");
  EXPECT_EQ(sc.Path(), (std::vector<cow_String>{"tableCollections", "TC-1", "propertyTables", "Conductivity",
                                                "propertyTableDatas", "D-1"}));
  const ddr_Model before = model;
  ASSERT_NE(sc.ConstGet(model), nullptr);
  EXPECT_EQ(sc.ConstGet(model)->GetLabel(), "steel");
  EXPECT_TRUE(omu_ChangeHistory::Instance().Entries().empty());

  sc.Get(model).SetIsTemp(true);
  EXPECT_TRUE(sc.ConstGet(model)->GetIsTemp());
  EXPECT_FALSE(sc.ConstGet(before)->GetIsTemp());  // the copy kept its own data
  EXPECT_EQ(omu_ChangeHistory::Instance().Entries(),
            (std::vector<omu_PrimTuple>{{"ktbC_TableCollContainer", "Modify", "TC-1"},
                                        {"ktbC_PropertyTableCont", "Modify", "Conductivity"},
                                        {"ktbC_PropertyTableDataCont", "Modify", "D-1"}}));

  // Stored and read back, the shortcut addresses the same object.
  const cls_Record rec = cls_ToRecord(sc);
  const ktbC_PropertyTableDataShortcut again = ktbC_PropertyTableDataShortcut::Ctor(cls_RecordReader(rec));
  EXPECT_EQ(again.Path(), sc.Path());
  EXPECT_EQ(again.ConstGet(model), sc.ConstGet(model));

  EXPECT_EQ(DataShortcut("TC-1", "Conductivity", "D-2").ConstGet(model), nullptr);
  EXPECT_EQ(DataShortcut("TC-2", "Conductivity", "D-1").ConstGet(model), nullptr);
  EXPECT_THROW(DataShortcut("TC-1", "Density", "D-1").Get(model), nex_CmdError);
}

TEST_F(KtbShortcut, ModelLevelContainersByTheirScriptingNames) {
  EXPECT_EQ(ktbC_EventSeriesContInModelShortcut().Path(), (std::vector<cow_String>{"eventSeriesDatas"}));
  EXPECT_EQ(ktbC_EventSeriesTypeContInModelShortcut().Path(), (std::vector<cow_String>{"eventSeriesTypes"}));
  EXPECT_EQ(ktbC_ElemProgActivationContInModelShortcut().Path(),
            (std::vector<cow_String>{"elementProgressiveActivations"}));
  EXPECT_NE(ktbC_EventSeriesContInModelShortcut().ConstGet(model), nullptr);
  const ktbC_EventSeriesShortcut es{ktbC_EventSeriesInEventSeriesContShortcut(cow_String("Path-1"))};
  EXPECT_EQ(es.ConstGet(model), nullptr);
  EXPECT_THROW(ktbC_EventSeriesInEventSeriesContShortcut(cow_String("Path-1")).Get(model), nex_CmdError);
}

}  // namespace

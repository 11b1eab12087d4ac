// Files written at older versions: rows of every retired layout of the module are carried to
// today's layout as the file is opened, the renamed classes of 453 and 507 included, and a
// missing source row stops the upgrade with its message.
#include <algorithm>
#include <cstdio>

#include "dbfile/dbf_File.h"
#include "dbfile/dbf_Format.h"
#include "dbfile/dbf_TableBlob.h"
#include "kbe/kbeC_Legacy.h"
#include "kbe/kbeC_Rename.h"
#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Record.h"
#include "tests/kbe/kbe_fixtures.h"

namespace {

using Table = cow_2DArray<double>;
using Ints = cow_List<std::int32_t>;

class KbeUpgrade : public ::testing::Test {
 protected:
  void SetUp() override {
    kbe_Start();
    dir_ = qmx_TempDir("kbe-upgrade");
  }
  std::string Path(const std::string& name) const { return dir_ + "/" + name; }
  std::string dir_;
};

// The stored field table of a class without the named fields, as an older layout had it.
std::string HashWithout(const char* className, const std::vector<std::string>& dropped) {
  std::vector<cls_Attribute> attrs;
  for (const cls_Attribute& a : cls_ClassRegistrar::Instance().ByName(className)->Attributes())
    if (std::find(dropped.begin(), dropped.end(), a.handle.Name().str()) == dropped.end()) attrs.push_back(a);
  return dbf_FieldTableHash(attrs);
}

// Rewrites the rows of a class into the layout of `version`: the fields added since are dropped.
void MakeOld(const std::string& file, const char* cls, int version, const std::vector<std::string>& dropped) {
  std::string sql;
  for (const std::string& f : dropped) {
    const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(cls);
    bool object = false;
    for (const cls_Attribute& a : md->Attributes())
      if (a.handle.Name().str() == f) object = a.type == cls_AttrObject;
    if (object)
      sql += "ALTER TABLE " + std::string(cls) + " DROP COLUMN \"" + f + "#OID\"; ALTER TABLE " + cls + " DROP COLUMN \"" + f + "#ClassID\";";
    else
      sql += "ALTER TABLE " + std::string(cls) + " DROP COLUMN \"" + f + "\";";
    sql += "DELETE FROM dbf_Fields WHERE class = '" + std::string(cls) + "' AND name = '" + f + "';";
  }
  sql += "UPDATE dbf_Catalog SET version = " + std::to_string(version) + ", fieldHash = '" + HashWithout(cls, dropped) +
         "' WHERE name = '" + cls + "';";
  kbe_Edit(file, sql);
}

template <class T>
T& Option(kbeC_ConnectorSection& s, std::size_t i) {
  return dynamic_cast<T&>(s.ModifyBehaviorOption(i));
}

// The terms of both derived components of the filled section without their options.
void ClearTermOptions(kbeC_ConnectorSection& s) {
  auto clear = [](kbeC_DerivedComponent& d) {
    auto terms = d.GetCdcTerms();
    terms.Get(0).Get().ClearOptions();
    d.SetCdcTerms(terms);
  };
  clear(Option<kbeC_ConnectorFriction>(s, 3).ModifyDerivedComponent());
  auto& p = Option<kbeC_ConnectorPlasticity>(s, 2);
  auto list = p.GetConnectorPotentials();
  clear(list.Get(1).Get().ModifyDerivedComponent());
  p.SetConnectorPotentials(list);
}

TEST_F(KbeUpgrade, EveryStepOfTodaysClasses) {
  struct Case {
    const char* cls;
    int version;
    std::vector<std::string> dropped;
    std::function<void(kbeC_ConnectorSection&)> before;  // fields the step does not keep
    std::function<void(kbeC_ConnectorSection&)> after;   // what the steps give them
  };
  using Fr = kbeC_ConnectorFriction;
  const std::vector<Case> cases = {
      {"kbeC_ConnectorOptions", 1022, {"useBehRegSettings", "useBehExtSettings"},
       &ClearTermOptions,
       [](kbeC_ConnectorSection& s) {
         for (kbeC_ConnectorOptions* o : {&Option<kbeC_ConnectorElasticity>(s, 0).ModifyOptions(), &Option<Fr>(s, 3).ModifyOptions(),
                                          &Option<kbeC_ConnectorDamage>(s, 4).ModifyInitiationOptions(),
                                          &Option<kbeC_ConnectorPlasticity>(s, 2).ModifyIsotropicOptions()}) {
           o->SetUseBehRegSettings(false);
           o->SetUseBehExtSettings(false);
         }
       }},
      {"kbeC_ConnectorElasticity", 811, {"frequencyDependency"},
       [](kbeC_ConnectorSection& s) { Option<kbeC_ConnectorElasticity>(s, 0).SetFrequencyDependency(true); },
       [](kbeC_ConnectorSection& s) { Option<kbeC_ConnectorElasticity>(s, 0).SetFrequencyDependency(false); }},
      {"kbeC_ConnectorDamping", 811, {"frequencyDependency", "connDampType"},
       [](kbeC_ConnectorSection&) {},
       [](kbeC_ConnectorSection& s) {
         Option<kbeC_ConnectorDamping>(s, 1).SetFrequencyDependency(false);
         Option<kbeC_ConnectorDamping>(s, 1).SetConnDampType(kbeC_ConnectorDamping::ConnDampTypeEnum::VISCOUS);
       }},
      {"kbeC_ConnectorDamping", 1022, {"connDampType"},
       [](kbeC_ConnectorSection&) {},
       [](kbeC_ConnectorSection& s) { Option<kbeC_ConnectorDamping>(s, 1).SetConnDampType(kbeC_ConnectorDamping::ConnDampTypeEnum::VISCOUS); }},
      {"kbeC_ConnectorDamage", 811, {"useAffected", "affectedComponents", "degradation"},
       [](kbeC_ConnectorSection&) {},
       [](kbeC_ConnectorSection& s) {
         auto& d = Option<kbeC_ConnectorDamage>(s, 4);
         d.SetUseAffected(false);
         d.SetAffectedComponents(Ints{});
         d.SetDegradation(kbeC_ConnectorDamage::DegradationEnm::MAXIMUM);
       }},
      {"kbeC_ConnectorDamage", 817, {"degradation"},
       [](kbeC_ConnectorSection&) {},
       [](kbeC_ConnectorSection& s) { Option<kbeC_ConnectorDamage>(s, 4).SetDegradation(kbeC_ConnectorDamage::DegradationEnm::MAXIMUM); }},
      {"kbeC_ConnectorFriction", 811, {"contForceStyle", "derivedComponent", "contactForces", "tangentialBehavior"},
       [](kbeC_ConnectorSection& s) {
         auto& f = Option<Fr>(s, 3);
         f.ClearDerivedComponent();
         f.SetContactForces(kbeC_ContactForceList{});
         f.ClearTangentialBehavior();
       },
       [](kbeC_ConnectorSection& s) { Option<Fr>(s, 3).SetContactForceStyle(Fr::ContactForceStyleEnm::COMPONENT_NUMBER); }},
      {"kbeC_ConnectorFriction", 836, {"tangentialBehavior"},
       [](kbeC_ConnectorSection& s) { Option<Fr>(s, 3).ClearTangentialBehavior(); },
       [](kbeC_ConnectorSection&) {}},
      {"kbeC_ConnectorPlasticity", 811, {"isotropicOptions", "kinematicOptions"},
       [](kbeC_ConnectorSection& s) { Option<kbeC_ConnectorPlasticity>(s, 2).ClearIsotropicOptions(); },
       [](kbeC_ConnectorSection&) {}},
      {"kbeC_ConnectorPotential", 811, {"componentStyle", "derivedComponent"},
       [](kbeC_ConnectorSection& s) {
         // a derived-style potential without its derived component, so that no row is orphaned
         auto& p = Option<kbeC_ConnectorPlasticity>(s, 2);
         cow_List<cow_COW<kbeC_ConnectorPotential>> list = p.GetConnectorPotentials();
         list.Get(1).Get().ClearDerivedComponent();
         p.SetConnectorPotentials(list);
       },
       [](kbeC_ConnectorSection& s) {
         auto& p = Option<kbeC_ConnectorPlasticity>(s, 2);
         cow_List<cow_COW<kbeC_ConnectorPotential>> list = p.GetConnectorPotentials();
         list.Get(1).Get().SetComponentStyle(kbeC_ConnectorPotential::ComponentStyleEnm::COMPONENT_NUMBER);
         p.SetConnectorPotentials(list);
       }},
      {"kbeC_CDCTerm", 836, {"options"}, &ClearTermOptions, [](kbeC_ConnectorSection&) {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.cls) + " " + std::to_string(c.version));
    kbeC_ConnectorSection section = kbe_FilledSection();
    c.before(section);
    ddr_Database db;
    db.CreateModel("Model-1");
    kbe_Sections(db).Insert("S", section);
    const std::string file = Path(std::string(c.cls) + "-" + std::to_string(c.version) + ".odb");
    dbf_Save(db, file);
    MakeOld(file, c.cls, c.version, c.dropped);
    ddr_Database expected = db;
    c.after(kbe_Sections(expected).Get("S"));
    ddr_Database upgraded = dbf_Open(file);
    EXPECT_TRUE(upgraded == expected);
    dbf_Upgrade(file, Path("now.odb"));
    EXPECT_TRUE(dbf_Open(Path("now.odb")) == expected);
  }
}

// --- files of 453 and 507 -----------------------------------------------------------------------

struct OldField {
  std::string name;
  int type;
};

std::string Hex(const std::string& bytes) {
  std::string out = "X'";
  char buf[3];
  for (unsigned char b : bytes) {
    std::snprintf(buf, sizeof buf, "%02x", b);
    out += buf;
  }
  return out + "'";
}

std::string Blob(const Table& t) {
  std::string bytes;
  dbf_EncodeTable(t, bytes);
  return Hex(bytes);
}

std::string Uid(int n) {
  char buf[40];
  std::snprintf(buf, sizeof buf, "'%032x'", n);
  return buf;
}

cls_Uid UidOf(int n) { return cls_Uid(0, static_cast<std::uint64_t>(n)); }

// A table of an old class with its catalog entry, stored field table and rows (values as SQL).
std::string OldTable(const char* cls, unsigned row, int version, const std::vector<OldField>& fields,
                     const std::vector<std::vector<std::string>>& rows) {
  std::string sql = "DROP TABLE IF EXISTS \"" + std::string(cls) + "\"; DELETE FROM dbf_Catalog WHERE name = '" + cls +
                    "'; DELETE FROM dbf_Fields WHERE class = '" + cls + "';";
  std::string cols = "\"OID\" INTEGER PRIMARY KEY, \"UID\" TEXT NOT NULL";
  std::vector<cls_Attribute> attrs;
  int number = 0;
  for (const OldField& f : fields) {
    if (f.type == cls_AttrObject) cols += ", \"" + f.name + "#OID\" INTEGER, \"" + f.name + "#ClassID\" INTEGER";
    else cols += ", \"" + f.name + "\"";
    const int collection = f.type == cls_AttrDoubleTable ? cls_Array2D
                           : (f.type == cls_AttrIntList || f.type == cls_AttrObjectList) ? cls_List1D : cls_Single;
    attrs.push_back(cls_Attribute{cls_FieldHandle(number, f.name.c_str()), f.type, 1, collection});
    sql += "INSERT INTO dbf_Fields VALUES ('" + std::string(cls) + "', " + std::to_string(number) + ", '" + f.name + "', " +
           std::to_string(number) + ", " + std::to_string(f.type) + ", '" + cls_AttrTypeName(f.type) + "', 1, " +
           std::to_string(collection) + ");";
    ++number;
  }
  sql += "CREATE TABLE \"" + std::string(cls) + "\" (" + cols + ");";
  for (const auto& r : rows) {
    sql += "INSERT INTO \"" + std::string(cls) + "\" VALUES (";
    for (std::size_t i = 0; i < r.size(); ++i) sql += (i ? ", " : "") + r[i];
    sql += ");";
  }
  sql += "INSERT INTO dbf_Catalog VALUES ('" + std::string(cls) + "', " + std::to_string((680u << 16) | row) + ", " +
         std::to_string(version) + ", '" + dbf_FieldTableHash(attrs) + "', " + std::to_string(rows.size()) + ");";
  return sql;
}

std::string Id(unsigned row) { return std::to_string((680u << 16) | row); }

constexpr int I = cls_AttrInt, D = cls_AttrDouble, B = cls_AttrBool, E = cls_AttrEnum, T = cls_AttrDoubleTable,
              IL = cls_AttrIntList, O = cls_AttrObject, OL = cls_AttrObjectList;

// A model whose section "Old" holds, in this order, a damage (507), an elasticity, a damping, a
// plasticity (507), a friction (453), a failure, a lock and a stop, all in the layouts of 453
// and 507 on their shared base rows.
std::string OldFileSql() {
  const std::string base = "kbeC_ConnectorBehaviorOption";
  std::string sql;
  // Option base rows 1..8: the components of each behavior.
  sql += OldTable(base.c_str(), 1, 453, {{"components", IL}},
                  {{"1", Uid(101), "'[1,2]'"}, {"2", Uid(102), "'[1]'"}, {"3", Uid(103), "'[4]'"}, {"4", Uid(104), "'[2]'"},
                   {"5", Uid(105), "'[]'"}, {"6", Uid(106), "'[3]'"}, {"7", Uid(107), "'[5,6]'"}, {"8", Uid(108), "'[6]'"}});
  sql += OldTable("kbeC_Tabular", 69, 453, {{"temperatureDependency", B}, {"dependencies", I}, {"table", T}},
                  {{"1", Uid(201), "0", "0", Blob(Table{{0.2, 0.4}})},             // damage initiation
                   {"2", Uid(202), "1", "1", Blob(Table{{0, 0, 20, 0}, {0.5, 1, 20, 0}})},  // damage evolution
                   {"3", Uid(203), "0", "0", Blob(Table{{1000}})},                   // elasticity
                   {"4", Uid(204), "1", "0", Blob(Table{{0.3, 20}})},                // damping
                   {"5", Uid(205), "0", "0", Blob(Table{{150, 0}})},                 // plasticity isotropic
                   {"6", Uid(206), "0", "0", Blob(Table{{5}})}});                     // friction
  sql += OldTable("kbeC_MotionDiscontinuity", 68, 453, {{"##BaseClassOID", I}, {"minMotion", D}, {"maxMotion", D}, {"minForce", D}, {"maxForce", D}},
                  {{"1", Uid(301), "6", "-1", "1", "1.7976931348623157e308", "1.7976931348623157e308"},
                   {"2", Uid(302), "7", "1.7976931348623157e308", "1.7976931348623157e308", "-5", "5"},
                   {"3", Uid(303), "8", "-0.5", "0.5", "-9", "9"}});
  sql += OldTable("kbeC_Potential", 66, 507,
                  {{"componentNumber", I}, {"sign", E}, {"scaleFactor", D}, {"positiveExponent", D}, {"shiftFactor", D}, {"hFunction", E}},
                  {{"1", Uid(401), "1", "'NEGATIVE'", "2", "1", "0", "'MACAULEY'"},
                   {"2", Uid(402), "2", "'POSITIVE'", "1", "2", "0.5", "'ABS'"},
                   {"3", Uid(403), "3", "'POSITIVE'", "1", "1", "0", "'IDENTITY'"}});
  sql += OldTable("kbeC_PotentialContainer", 70, 507, {{"operator", cls_AttrString}, {"exponent", D}, {"potentials", OL}},
                  {{"1", Uid(501), "'MAXIMUM'", "3", "'[[1," + Id(66) + "],[2," + Id(66) + "]]'"},
                   {"2", Uid(502), "'SUM'", "2", "'[[3," + Id(66) + "]]'"}});
  sql += OldTable("kbeC_Damage", 59, 507,
                  {{"##BaseClassOID", I}, {"coupling", E}, {"criterion", E}, {"initiationTable", O}, {"evolution", B},
                   {"evolutionType", E}, {"softening", E}, {"evolutionTable", O}, {"initiationPotentials", O}, {"evolutionPotentials", O}},
                  {{"1", Uid(1), "1", "'COUPLED'", "'MOTION'", "1", Id(69), "1", "'ENERGY_TYPE'", "'TABULAR'", "2", Id(69), "1", Id(70),
                    "NULL", "NULL"}});
  sql += OldTable("kbeC_Elasticity", 61, 453,
                  {{"##BaseClassOID", I}, {"behavior", E}, {"coupling", E}, {"independentComponents", IL}, {"table", O}},
                  {{"1", Uid(2), "2", "'LINEAR'", "'UNCOUPLED'", "'[]'", "3", Id(69)}});
  sql += OldTable("kbeC_Damping", 60, 453,
                  {{"##BaseClassOID", I}, {"behavior", E}, {"coupling", E}, {"independentComponents", IL}, {"table", O}},
                  {{"1", Uid(3), "3", "'LINEAR'", "'UNCOUPLED'", "'[]'", "4", Id(69)}});
  sql += OldTable("kbeC_Plasticity", 65, 507,
                  {{"##BaseClassOID", I}, {"coupling", E}, {"isotropic", B}, {"isotropicType", E}, {"isotropicTable", O},
                   {"kinematic", B}, {"kinematicType", E}, {"kinematicTable", O}, {"potentials", O}},
                  {{"1", Uid(4), "4", "'COUPLED'", "1", "'TABULAR'", "5", Id(69), "0", "'HALF_CYCLE'", "NULL", "NULL", "2", Id(70)}});
  sql += OldTable("kbeC_Friction", 63, 453,
                  {{"##BaseClassOID", I}, {"slipStyle", E}, {"tangentDirection", I}, {"stickStiffness", D}, {"componentType", E},
                   {"independentComponents", IL}, {"contactForceComponent", I}, {"table", O}},
                  {{"1", Uid(5), "5", "'COMPUTE'", "3", "1000", "'NO_INDEP_COMPS'", "'[]'", "2", "6", Id(69)}});
  sql += OldTable("kbeC_Failure", 62, 453, {{"##BaseClassOID", I}, {"releaseComponent", I}},
                  {{"1", Uid(6), "1", "2147483647"}});
  sql += OldTable("kbeC_Lock", 64, 453, {{"##BaseClassOID", I}, {"lockingComponent", I}}, {{"1", Uid(7), "2", "5"}});
  sql += OldTable("kbeC_Stops", 67, 453, {{"##BaseClassOID", I}}, {{"1", Uid(8), "3"}});
  sql += "UPDATE kbeC_ConnectorSection SET behaviorOptions = '[[1," + Id(59) + "],[1," + Id(61) + "],[1," + Id(60) +
         "],[1," + Id(65) + "],[1," + Id(63) + "],[1," + Id(62) + "],[1," + Id(64) + "],[1," + Id(67) + "]]';";
  return sql;
}

// An object of today's class with the uid of the row it was renamed from.
template <class C>
C WithUid(const C& obj, int uid) {
  cls_Record rec = cls_ToRecord(obj);
  rec.uid = UidOf(uid);
  return C(cls_RecordReader(rec));
}

kbeC_ConnectorPotential Pot(int uid, int component, kbeC_ConnectorPotential::SignEnm sign, double scale, double exponent,
                            double shift, kbeC_ConnectorPotential::HFunctionEnm h) {
  kbeC_ConnectorPotential p;
  p.SetComponentNumber(component);
  p.SetSign(sign);
  p.SetScaleFactor(scale);
  p.SetPositiveExponent(exponent);
  p.SetShiftFactor(shift);
  p.SetHFunction(h);
  return WithUid(p, uid);
}

kbeC_ConnectorSection ExpectedFromOld() {
  using P = kbeC_ConnectorPotential;
  kbeC_ConnectorSection s;
  kbeC_ConnectorDamage g;
  g.SetComponents(Ints{1, 2});
  g.SetCoupling(kbeC_ConnectorDamage::CouplingEnm::COUPLED);
  g.SetCriterion(kbeC_ConnectorDamage::CriterionEnm::MOTION);
  g.SetInitiationTable(Table{{0.2, 0.4}});
  g.SetInitiationPotentialOperator(kbeC_ConnectorDamage::InitiationPotentialOperatorEnm::MAXIMUM);
  g.SetInitiationPotentialExponent(3);
  g.AppendInitiationPotential(Pot(401, 1, P::SignEnm::NEGATIVE, 2, 1, 0, P::HFunctionEnm::MACAULEY));
  g.AppendInitiationPotential(Pot(402, 2, P::SignEnm::POSITIVE, 1, 2, 0.5, P::HFunctionEnm::ABS));
  g.SetEvolution(true);
  g.SetEvolutionType(kbeC_ConnectorDamage::EvolutionTypeEnm::ENERGY_TYPE);
  g.SetSoftening(kbeC_ConnectorDamage::SofteningEnm::TABULAR);
  g.SetEvolutionTemperature(true);
  g.SetEvolutionDependencies(1);
  g.SetEvolutionTable(Table{{0, 0, 20, 0}, {0.5, 1, 20, 0}});
  s.AppendBehaviorOption(WithUid(g, 1));

  kbeC_ConnectorElasticity e;
  e.SetComponents(Ints{1});
  e.SetTable(Table{{1000}});
  s.AppendBehaviorOption(WithUid(e, 2));

  kbeC_ConnectorDamping d;
  d.SetComponents(Ints{4});
  d.SetTemperatureDependency(true);
  d.SetTable(Table{{0.3, 20}});
  s.AppendBehaviorOption(WithUid(d, 3));

  kbeC_ConnectorPlasticity p;
  p.SetComponents(Ints{2});
  p.SetCoupling(kbeC_ConnectorPlasticity::CouplingEnm::COUPLED);
  p.SetIsotropicTable(Table{{150, 0}});
  p.AppendConnectorPotential(Pot(403, 3, P::SignEnm::POSITIVE, 1, 1, 0, P::HFunctionEnm::IDENTITY));
  s.AppendBehaviorOption(WithUid(p, 4));

  kbeC_ConnectorFriction f;
  f.SetSlipStyle(kbeC_ConnectorFriction::SlipStyleEnm::COMPUTE);
  f.SetTangentDirection(3);
  f.SetStickStiffness(1000);
  f.SetUseContactForceComponent(true);
  f.SetContactForceComponent(2);
  f.SetTable(Table{{5}});
  s.AppendBehaviorOption(WithUid(f, 5));

  kbeC_ConnectorFailure fl;
  fl.SetComponents(Ints{3});
  fl.SetMinMotion(-1);
  fl.SetMaxMotion(1);
  s.AppendBehaviorOption(WithUid(fl, 6));

  kbeC_ConnectorLock l;
  l.SetComponents(Ints{5, 6});
  l.SetLockingComponent(5);
  l.SetMinForce(-5);
  l.SetMaxForce(5);
  s.AppendBehaviorOption(WithUid(l, 7));

  kbeC_ConnectorStop st;
  st.SetComponents(Ints{6});
  st.SetMinMotion(-0.5);
  st.SetMaxMotion(0.5);
  s.AppendBehaviorOption(WithUid(st, 8));
  return s;
}

TEST_F(KbeUpgrade, ClassesOf453And507AreRenamedAndCarriedToTodaysLayout) {
  ddr_Database db;
  db.CreateModel("Model-1");
  kbe_Sections(db).Insert("Old", kbeC_ConnectorSection());
  const std::string file = Path("old.odb");
  dbf_Save(db, file);
  kbe_Edit(file, OldFileSql());

  ddr_Database expected = db;
  kbeC_ConnectorSection want = ExpectedFromOld();
  kbeC_ConnectorSection& got = kbe_Sections(expected).Get("Old");
  got.SetBehaviorOptions(want.GetBehaviorOptions());

  EXPECT_TRUE(dbf_Open(file) == expected);
  // Written again, the file holds today's classes only.
  dbf_Upgrade(file, Path("now.odb"));
  EXPECT_TRUE(dbf_Open(Path("now.odb")) == expected);
  EXPECT_EQ(kbe_Query(Path("now.odb"), "SELECT count(*) FROM dbf_Catalog WHERE name IN ('kbeC_Damage', 'kbeC_Tabular')"), "0");
  EXPECT_EQ(kbe_Query(Path("now.odb"), "SELECT iniPotOperator FROM kbeC_ConnectorDamage"), "INITIATION_MAXIMUM");
}

TEST_F(KbeUpgrade, AMissingSourceRowStopsTheUpgradeWithItsMessage) {
  struct Case {
    const char* what;
    std::string edit;
    std::string message;
  };
  const std::vector<Case> cases = {
      {"the base row of a damage", "UPDATE kbeC_Damage SET \"##BaseClassOID\" = 99;",
       "rename_kbeC_Damage failed: inputTable for kbeC_ConnectorBehaviorOption can't be NULL"},
      {"the discontinuity of a lock", "UPDATE kbeC_Lock SET \"##BaseClassOID\" = 99;",
       "rename_kbeC_Lock failed: inputTable for kbeC_MotionDiscontinuity can't be NULL"},
      {"the base row column of a stop", "ALTER TABLE kbeC_Stops DROP COLUMN \"##BaseClassOID\";"
                                        "DELETE FROM dbf_Fields WHERE class = 'kbeC_Stops';",
       "rename_kbeC_Stops failed: inputTable for kbeC_Stops can't be NULL"},
      {"a table of a damping", "UPDATE kbeC_Damping SET \"table#OID\" = 99;",
       "rename_kbeC_Damping failed: inputTable can't be NULL"},
      {"the potential container of a plasticity", "UPDATE kbeC_Plasticity SET \"potentials#OID\" = 99;",
       "rename_kbeC_Plasticity failed: inputTable can't be NULL"},
      {"an operator of a potential container", "UPDATE kbeC_PotentialContainer SET operator = 'PRODUCT' WHERE OID = 2;",
       "rename_kbeC_Plasticity failed: inputMdlPropertyTable can't be NULL"},
      {"an operator of no literal", "UPDATE kbeC_PotentialContainer SET operator = 'sum' WHERE OID = 1;",
       "rename_kbeC_Damage failed: inputMdlPropertyTable can't be NULL"},
      {"a potential of a class the file does not know",
       "UPDATE kbeC_PotentialContainer SET potentials = '[[3,12345]]' WHERE OID = 2;",
       "rename_kbeC_Plasticity failed: outputTable can't be NULL"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    ddr_Database db;
    db.CreateModel("Model-1");
    kbe_Sections(db).Insert("Old", kbeC_ConnectorSection());
    const std::string file = Path("bad.odb");
    std::remove(file.c_str());
    dbf_Save(db, file);
    kbe_Edit(file, OldFileSql() + c.edit);
    if (c.edit.find("DROP COLUMN") != std::string::npos) {
      // the stop's stored field table without the column
      kbe_Edit(file, "UPDATE dbf_Catalog SET fieldHash = '" + dbf_FieldTableHash({}) + "' WHERE name = 'kbeC_Stops';");
    }
    auto e = qmx_Catch<nex_CmdError>([&] { dbf_Open(file); });
    EXPECT_EQ(e.Message(), "Cannot open the model database \"" + file + "\": " + c.message);
  }
}

TEST_F(KbeUpgrade, ABaseRowOnItsOwnIsRefused) {
  cls_Record rec;
  rec.Set("components", std::vector<std::int32_t>{1});
  cls_Record out = rec;
  dbc_Row in(rec);
  dbc_Row o(out);
  auto e = qmx_Catch<nex_CmdError>([&] { Upgrade_kbeC_ConnectorBehaviorOption_453(in, o, 0); });
  EXPECT_EQ(e.Message(), "inputTable for connector_behavior_options cannot be empty in upgrade of derived objects");
}

}  // namespace

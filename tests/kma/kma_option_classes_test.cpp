// Every option class the library offers, set by its scripting names inside one material, read
// back by script, and carried through the file; then the rules of the option classes with their
// exact messages.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <functional>
#include <string>
#include <vector>

#include "command/cmd_Session.h"
#include "dbfile/dbf_File.h"
#include "kma/kmaC_ConcreteDamagedPlasticity.h"
#include "kma/kmaC_Creep.h"
#include "kma/kmaC_Damping.h"
#include "kma/kmaC_Depvar.h"
#include "kma/kmaC_Eos.h"
#include "kma/kmaC_DruckerPrager.h"
#include "kma/kmaC_Hyperfoam.h"
#include "kma/kmaC_LowDensityFoam.h"
#include "kma/kmaC_MagneticPermeability.h"
#include "kma/kmaC_MohrCoulomb.h"
#include "kma/kmaC_PorousMetalPlasticity.h"
#include "kma/kmaC_ThicknessBehavior.h"
#include "kma/kmaC_Hyperelastic.h"
#include "kma/kmaC_MaterialInMaterialContainerShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialOptionShortcut.h"
#include "kma/kmaC_MaterialOptionInMaterialShortcut.h"
#include "kma/kmaC_InelasticHeatFraction.h"
#include "kma/kmaC_JouleHeatFraction.h"
#include "kma/kmaC_Ornl.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_RateDependent.h"
#include "kma/kmaC_TensileFailure.h"
#include "kma/kmaC_Viscoelastic.h"
#include "platform/model/ddr_Database.h"
#include "tests/kma/kmaT_Support.h"
#include "tests/support/qmx_test.h"

namespace {

struct ScriptCase {
  std::vector<std::string> slot;  // below the material
  const char* type;               // scripting constructor
  const char* values;             // JSON object
  const char* member;             // read back by script
  const char* expected;           // JSON value
  const char* className;          // one row of this class in the file
};

// One entry per offered option class; the values differ from the defaults where they can.
const ScriptCase kCases[] = {
    {{"plastic"}, "Plastic", R"({"hardening":"ISOTROPIC","table":[[250,0],[300,0.1]]})", "hardening", R"("ISOTROPIC")", "kmaC_Plastic"},
    {{"plastic", "rateDependent"}, "RateDependent", R"({"type":"JOHNSON_COOK","table":[[0.01,1]]})", "type", R"("JOHNSON_COOK")", "kmaC_RateDependent"},
    {{"plastic", "potential"}, "Potential", R"({"dependencies":1,"table":[[1,1,1,0.9,1,1,0]]})", "dependencies", "1", "kmaC_Potential"},
    {{"plastic", "cyclicHardening"}, "CyclicHardening", R"({"parameters":true,"table":[[250,100,5]]})", "parameters", "true", "kmaC_CyclicHardening"},
    {{"plastic", "ornl"}, "Ornl", R"({"saturationRateParameter":0.5,"resetHardening":true})", "saturationRateParameter", "0.5", "kmaC_Ornl"},
    {{"plastic", "cycledPlastic"}, "CycledPlastic", R"({"temperatureDependency":true,"table":[[260,0,20]]})", "temperatureDependency", "true", "kmaC_CycledPlastic"},
    {{"plastic", "annealTemperature"}, "AnnealTemperature", R"({"table":[[900]]})", "dependencies", "0", "kmaC_AnnealTemperature"},
    {{"plastic", "tensileFailure"}, "TensileFailure", R"({"shear":"BRITTLE","elementDeletion":false,"table":[[400]]})", "shear", R"("BRITTLE")", "kmaC_TensileFailure"},
    {{"density"}, "Density", R"({"distributionType":"DISCRETE_FIELD","fieldName":"rho","table":[[7.85e-9]]})", "distributionType", R"("DISCRETE_FIELD")", "kmaC_Density"},
    {{"expansion"}, "Expansion", R"({"type":"ORTHOTROPIC","zero":20,"table":[[1.2e-5,1.1e-5,1e-5]]})", "zero", "20.0", "kmaC_Expansion"},
    {{"conductivity"}, "Conductivity", R"({"type":"ANISOTROPIC","table":[[45,1,1,45,1,45]]})", "type", R"("ANISOTROPIC")", "kmaC_Conductivity"},
    {{"specificHeat"}, "SpecificHeat", R"({"law":"CONSTANTPRESSURE","table":[[4.6e8]]})", "law", R"("CONSTANTPRESSURE")", "kmaC_SpecificHeat"},
    {{"hyperelastic"}, "Hyperelastic", R"({"type":"MOONEY_RIVLIN","testData":false,"table":[[0.5,0.1,0.01]]})", "type", R"("MOONEY_RIVLIN")", "kmaC_Hyperelastic"},
    {{"creep"}, "Creep", R"({"law":"TIME","time":"CREEP","table":[[1e-10,3,-0.5]]})", "time", R"("CREEP")", "kmaC_Creep"},
    {{"viscoelastic"}, "Viscoelastic", R"({"domain":"FREQUENCY","frequency":"TABULAR","nmax":5,"table":[[0.1,0,0.2,0,1]]})", "nmax", "5", "kmaC_Viscoelastic"},
    {{"concreteDamagedPlasticity"}, "ConcreteDamagedPlasticity", R"({"table":[[38,0.1,1.16,0.667,0]]})", "dependencies", "0", "kmaC_ConcreteDamagedPlasticity"},
    {{"foam"}, "Foam", R"({"hardening":"ISOTROPIC","table":[[1.1,0.1]]})", "hardening", R"("ISOTROPIC")", "kmaC_Foam"},
    {{"eos"}, "Eos", R"({"type":"JWL","detonationEnergy":4.2e6,"table":[[6930,3.7e11,3.2e9,4.15,0.95,0.3]]})", "detonationEnergy", "4200000.0", "kmaC_Eos"},
    {{"eos", "eosShear"}, "EosShear", R"({"type":"ELASTIC","table":[[8e4]]})", "type", R"("ELASTIC")", "kmaC_EosShear"},
    {{"damping"}, "Damping", R"({"alpha":0.5,"beta":1e-4,"structural":0.02})", "structural", "0.02", "kmaC_Damping"},
    {{"depvar"}, "Depvar", R"({"n":12,"deleteVar":12})", "deleteVar", "12", "kmaC_Depvar"},
    {{"inelasticHeatFraction"}, "InelasticHeatFraction", R"({"fraction":0.95})", "fraction", "0.95", "kmaC_InelasticHeatFraction"},
    {{"jouleHeatFraction"}, "JouleHeatFraction", R"({"fraction":0.8})", "fraction", "0.8", "kmaC_JouleHeatFraction"},
    {{"latentHeat"}, "LatentHeat", R"({"table":[[2.7e11,1400,1450]]})", "table", R"([[2.7e11,1400.0,1450.0]])", "kmaC_LatentHeat"},
    {{"userMaterial"}, "UserMaterial", R"({"type":"THERMOMECHANICAL","unsymm":true,"mechanicalConstants":{"table":[[1,2,3]]}})", "type", R"("THERMOMECHANICAL")", "kmaC_UserMaterial"},
    {{"userOutputVariables"}, "UserOutputVariables", R"({"n":3})", "n", "3", "kmaC_UserOutputVariables"},
    {{"heatGeneration"}, "HeatGeneration", R"({})", nullptr, nullptr, "kmaC_HeatGeneration"},
    {{"gel"}, "Gel", R"({"table":[[0.1,0.3,0.01,0.5]]})", "table", R"([[0.1,0.3,0.01,0.5]])", "kmaC_Gel"},
    {{"dielectric"}, "Dielectric", R"({"frequencyDependency":true,"table":[[8.85e-12,50]]})", "frequencyDependency", "true", "kmaC_Dielectric"},
    {{"electricalConductivity"}, "ElectricalConductivity", R"({"type":"ORTHOTROPIC","table":[[5.8e7,5.8e7,5.8e7]]})", "type", R"("ORTHOTROPIC")", "kmaC_ElectricalConductivity"},
    {{"piezoelectric"}, "Piezoelectric", R"({"type":"STRAIN","table":[[1,2,3]]})", "type", R"("STRAIN")", "kmaC_Piezoelectric"},
    {{"diffusivity"}, "Diffusivity", R"({"law":"FICK","table":[[1e-9]]})", "law", R"("FICK")", "kmaC_Diffusivity"},
    {{"solubility"}, "Solubility", R"({"dependencies":2,"table":[[0.3,0,1,2]]})", "dependencies", "2", "kmaC_Solubility"},
    {{"regularization"}, "Regularization", R"({"rtol":0.05,"strainRateRegularization":"LINEAR"})", "strainRateRegularization", R"("LINEAR")", "kmaC_Regularization"},
    {{"viscosity"}, "Viscosity", R"({"temperatureDependency":true,"table":[[1e-3,20]]})", "type", R"("NEWTONIAN")", "kmaC_Viscosity"},
    {{"hypoelastic"}, "Hypoelastic", R"({"user":true})", "user", "true", "kmaC_Hypoelastic"},
    {{"shear"}, "Shear", R"({"type":"VISCOUS","table":[[1e-3]]})", "type", R"("VISCOUS")", "kmaC_Shear"},
    {{"porousBulkModuli"}, "PorousBulkModuli", R"({"table":[[3.6e10,2.2e9]]})", "temperatureDependency", "false", "kmaC_PorousBulkModuli"},
    {{"membraneElastic"}, "MembraneElastic", R"({"table":[[1000,800,0.3]]})", "dependencies", "0", "kmaC_MembraneElastic"},
    {{"transShearElastic"}, "TransShearElastic", R"({"table":[[500,500,400]]})", "dependencies", "0", "kmaC_TransShearElastic"},
    {{"acousticMedium"}, "AcousticMedium", R"({"volumetricDrag":true,"table":[[2.2e9]]})", "volumetricDrag", "true", "kmaC_AcousticMedium"},
    {{"brittleCracking"}, "BrittleCracking", R"({"type":"GFI","table":[[3,0.1]]})", "type", R"("GFI")", "kmaC_BrittleCracking"},
    {{"brittleCracking", "shearRetention"}, "ShearRetention", R"({"type":"POWER_LAW","table":[[0.001,2]]})", "type", R"("POWER_LAW")", "kmaC_ShearRetention"},
    {{"capPlasticity"}, "CapPlasticity", R"({"table":[[10,30,0.3,0,0.01,1]]})", "dependencies", "0", "kmaC_CapPlasticity"},
    {{"capPlasticity", "capCreepCohesion"}, "CapCreepCohesion", R"({"law":"SINGHM","time":"CREEP","table":[[1e-6,2,0.5]]})", "time", R"("CREEP")", "kmaC_CapCreepCohesion"},
    {{"capPlasticity", "capCreepConsolidation"}, "CapCreepConsolidation", R"({"law":"TIME","table":[[1e-7,1,-0.2]]})", "law", R"("TIME")", "kmaC_CapCreepConsolidation"},
    {{"capPlasticity", "capCreep"}, "CapCreep", R"({"law":"USER"})", "law", R"("USER")", "kmaC_CapCreep"},
    {{"castIronPlasticity"}, "CastIronPlasticity", R"({"table":[[0.04]]})", "temperatureDependency", "false", "kmaC_CastIronPlasticity"},
    {{"clayPlasticity"}, "ClayPlasticity", R"({"hardening":"TABULAR","table":[[1,1,1]]})", "hardening", R"("TABULAR")", "kmaC_ClayPlasticity"},
    {{"concrete"}, "Concrete", R"({"table":[[20,0]]})", "dependencies", "0", "kmaC_Concrete"},
    {{"deformationPlasticity"}, "DeformationPlasticity", R"({"table":[[2e5,0.3,250,5,1]]})", "dependencies", "0", "kmaC_DeformationPlasticity"},
    {{"druckerPrager"}, "DruckerPrager", R"({"shearCriterion":"HYPERBOLIC","eccentricity":0.2,"table":[[30,1,10]]})", "shearCriterion", R"("HYPERBOLIC")", "kmaC_DruckerPrager"},
    {{"druckerPrager", "druckerPragerCreep"}, "DruckerPragerCreep", R"({"law":"STRAIN","dependencies":1,"table":[[1e-8,2,-0.3,20]]})", "dependencies", "1", "kmaC_DruckerPragerCreep"},
    {{"fluidLeakoff"}, "FluidLeakoff", R"({"type":"USER"})", "type", R"("USER")", "kmaC_FluidLeakoff"},
    {{"gapFlow"}, "GapFlow", R"({"type":"POWER_LAW","kmax":1e3,"table":[[1,0.5]]})", "kmax", "1000.0", "kmaC_GapFlow"},
    {{"gapConductance"}, "GapConductance", R"({"pressureDependency":true,"table":[[100,1]]})", "pressureDependency", "true", "kmaC_GapConductance"},
    {{"gapConvection"}, "GapConvection", R"({"table":[[5]]})", "dependencies", "0", "kmaC_GapConvection"},
    {{"gapRadiation"}, "GapRadiation", R"({"table":[[0.8,0.9]]})", "dependencies", "0", "kmaC_GapRadiation"},
    {{"hyperfoam"}, "Hyperfoam", R"({"n":2,"poisson":0.1,"table":[[0.2,8,0.01,-2]]})", "n", "2", "kmaC_Hyperfoam"},
    {{"lowDensityFoam"}, "LowDensityFoam", R"({"elementRemoval":true,"maxAllowablePrincipalStress":2.5})", "maxAllowablePrincipalStress", "2.5", "kmaC_LowDensityFoam"},
    {{"magneticPermeability"}, "MagneticPermeability", R"({"nonlinearBH":true,"table":[[0,0],[0.5,100],[1.2,1000]]})", "nonlinearBH", "true", "kmaC_MagneticPermeability"},
    {{"mohrCoulomb"}, "MohrCoulomb", R"({"deviatoricEccentricity":0.8,"useTensionCutoff":true,"table":[[30,5]]})", "deviatoricEccentricity", "0.8", "kmaC_MohrCoulomb"},
    {{"moistureSwelling"}, "MoistureSwelling", R"({"table":[[0.01,0.5]]})", "table", R"([[0.01,0.5]])", "kmaC_MoistureSwelling"},
    {{"permeability"}, "Permeability", R"({"specificWeight":9810,"table":[[1e-7,0.3]]})", "specificWeight", "9810.0", "kmaC_Permeability"},
    {{"poreFluidExpansion"}, "PoreFluidExpansion", R"({"zero":20,"table":[[2e-4]]})", "zero", "20.0", "kmaC_PoreFluidExpansion"},
    {{"porousElastic"}, "PorousElastic", R"({"shear":"G","table":[[0.02,100]]})", "shear", R"("G")", "kmaC_PorousElastic"},
    {{"porousMetalPlasticity"}, "PorousMetalPlasticity", R"({"relativeDensity":0.95,"table":[[1.5,1,2.25]]})", "relativeDensity", "0.95", "kmaC_PorousMetalPlasticity"},
    {{"sorption"}, "Sorption", R"({"lawAbsorption":"LOG","table":[[1,2,3]]})", "lawAbsorption", R"("LOG")", "kmaC_Sorption"},
    {{"swelling"}, "Swelling", R"({"table":[[1e-6]]})", "dependencies", "0", "kmaC_Swelling"},
    {{"userDefinedField"}, "UserDefinedField", R"({})", nullptr, nullptr, "kmaC_UserDefinedField"},
    {{"softRockPlasticity"}, "SoftRockPlasticity", R"({"table":[[1,2,3]]})", "dependencies", "0", "kmaC_SoftRockPlasticity"},
    {{"superElasticity"}, "SuperElasticity", R"({"nonassociated":true,"table":[[3e4,0.33,0.05,0.1]]})", "nonassociated", "true", "kmaC_SuperElasticity"},
    {{"plasticityCorrection"}, "PlasticityCorrection", R"({"table":[[1,2]]})", "dependencies", "0", "kmaC_PlasticityCorrection"},
    {{"thicknessBehavior"}, "ThicknessBehavior", R"({"units":"FORCE","contactArea":12.5,"table":[[10,0.1]]})", "contactArea", "12.5", "kmaC_ThicknessBehavior"},
    {{"viscous"}, "Viscous", R"({"law":"TIME","table":[[1e-10,3,-0.5,0.5]]})", "law", R"("TIME")", "kmaC_Viscous"},
    {{"ductileDamageInitiation"}, "DamageInitiation", R"({"position":"NODES","direction":"TMORI","table":[[0.3,0.33,0]]})", "position", R"("NODES")", "kmaC_DamageInitiation"},
    {{"electrolyte"}, "Electrolyte", R"({"table":[[1,2]]})", "dependencies", "0", "kmaC_Electrolyte"},
};

cmd_Json Ok(cmd_Session& s, const cmd_Json& command) {
  cmd_Json r = s.Execute(command);
  EXPECT_TRUE(r.value("ok", false)) << command.dump() << " -> " << r.dump();
  return r.contains("result") ? r["result"] : cmd_Json();
}

cmd_Json PathTo(const std::vector<std::string>& slot) {
  cmd_Json path = {"M", "materials", "All"};
  for (const auto& p : slot) path.push_back(p);
  return path;
}

TEST(KmaOptionClasses, EveryOfferedClassIsSetByScriptAndRoundTripsThroughTheFile) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, {{"op", "create"}, {"path", {"M"}}});
  Ok(s, {{"op", "create"}, {"path", {"M", "materials", "All"}}, {"type", "Material"}});
  for (const ScriptCase& c : kCases) {
    SCOPED_TRACE(c.type);
    Ok(s, {{"op", "set"}, {"path", PathTo(c.slot)}, {"type", c.type}, {"values", cmd_Json::parse(c.values)}});
    if (!c.member) continue;
    cmd_Json path = PathTo(c.slot);
    path.push_back(c.member);
    EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", path}}), cmd_Json::parse(c.expected));
  }
  Ok(s, {{"op", "validate"}, {"path", {"M", "materials", "All"}}});

  const std::string file = qmx_TempDir("kma-classes") + "/all.odb";
  dbf_Save(s.Database(), file);
  const ddr_Database back = dbf_Open(file);
  EXPECT_TRUE(back == s.Database());
  for (const ScriptCase& c : kCases) {
    SCOPED_TRACE(c.className);
    EXPECT_EQ(kmaT_Query(file, std::string("SELECT count(*) FROM ") + c.className), std::vector<std::string>{"1"});
  }
}

// A data table is given and shown as its rows; the object form stays accepted, and is shown
// whenever the table allows an empty first row, so that nothing is lost in a dump.
TEST(KmaOptionClasses, ADataTableIsScriptedAsItsRows) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, {{"op", "create"}, {"path", {"M"}}});
  Ok(s, {{"op", "create"}, {"path", {"M", "materials", "A"}}, {"type", "Material"}});
  const cmd_Json elastic = {"M", "materials", "A", "elastic"};
  const cmd_Json table = {"M", "materials", "A", "elastic", "table"};
  Ok(s, {{"op", "set"}, {"path", elastic}, {"type", "Elastic"}, {"values", cmd_Json::parse(R"({"table":[[210000,0.3]]})")}});
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", table}}), cmd_Json::parse("[[210000.0,0.3]]"));
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", elastic}})["table"], cmd_Json::parse("[[210000.0,0.3]]"));

  Ok(s, {{"op", "set"}, {"path", table}, {"value", cmd_Json::parse("[[70000,0.33],[69000,0.33]]")}});
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", table}}), cmd_Json::parse("[[70000.0,0.33],[69000.0,0.33]]"));

  Ok(s, {{"op", "set"}, {"path", table}, {"value", cmd_Json::parse(R"({"table":[[0,0],[1,0.3]],"allowEmptyFirstRow":true})")}});
  const cmd_Json whole = cmd_Json::parse(R"({"table":[[0.0,0.0],[1.0,0.3]],"allowEmptyFirstRow":true})");
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", table}}), whole);
  // The shown form goes back in unchanged.
  Ok(s, {{"op", "set"}, {"path", table}, {"value", whole}});
  EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", table}}), whole);

  const struct {
    const char* value;
    const char* message;
  } bad[] = {
      {R"("rows")", "The member \"table\" of Elastic takes an object, a table (an array of rows of numbers) or null, not the string \"rows\""},
      {"[[1,2],[3]]", "The member \"table\" of kmaC_MaterialTable takes a table whose rows have equal lengths; row 1 has 1 values where row 0 has 2"},
      {R"([[1,"x"]])", "The member \"table\" of kmaC_MaterialTable takes a table (an array of rows of numbers), not the string \"x\" at row 0, column 1"},
  };
  for (const auto& b : bad) {
    SCOPED_TRACE(b.value);
    const cmd_Json r = s.Execute({{"op", "set"}, {"path", table}, {"value", cmd_Json::parse(b.value)}});
    ASSERT_FALSE(r.value("ok", true)) << r.dump();
    EXPECT_EQ(r["error"]["message"], b.message);
    EXPECT_EQ(Ok(s, {{"op", "get"}, {"path", table}}), whole);
  }
}

TEST(KmaOptionClasses, ASubOptionOfAnotherClassOrAnUnknownSubOptionIsRefused) {
  kmaT_Start();
  cmd_Session s;
  Ok(s, {{"op", "create"}, {"path", {"M"}}});
  Ok(s, {{"op", "create"}, {"path", {"M", "materials", "A"}}, {"type", "Material"}});
  Ok(s, {{"op", "set"}, {"path", {"M", "materials", "A", "plastic"}}, {"type", "Plastic"}});
  cmd_Json r = s.Execute({{"op", "set"}, {"path", {"M", "materials", "A", "plastic", "ornl"}}, {"type", "Potential"}});
  EXPECT_FALSE(r.value("ok", true));
  r = s.Execute({{"op", "get"}, {"path", {"M", "materials", "A", "plastic", "ornl"}}});
  EXPECT_EQ(r["result"], cmd_Json(nullptr));
}

struct RuleCase {
  const char* what;
  std::function<void()> fn;
  const char* message;  // empty: passes
};

template <class T, class F>
std::function<void()> Check(F edit) {
  return [edit] { T o; edit(o); o.AssertValid(); };
}

kmaC_MaterialTable Row(std::initializer_list<double> cells) { return kmaC_MaterialTable(cow_2DArray<double>({cells})); }

TEST(KmaOptionClasses, RulesFailWithTheirMessages) {
  kmaT_Start();
  const RuleCase cases[] = {
      {"rate dependence dependencies", Check<kmaC_RateDependent>([](auto& o) { o.SetDependencies(-1); }),
       "Number of dependencies specified is less than the minimum."},
      {"rate dependence zero row", Check<kmaC_RateDependent>([](auto& o) { o.SetTable(Row({0, 0})); }),
       "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."},
      {"ornl negative saturation", Check<kmaC_Ornl>([](auto& o) { o.SetSaturationRateParameter(-0.1); }),
       "Hardening rate given is less than the minimum."},
      {"ornl zero saturation", Check<kmaC_Ornl>([](auto& o) { o.SetSaturationRateParameter(0.0); }), ""},
      {"tensile failure dependencies", Check<kmaC_TensileFailure>([](auto& o) { o.SetDependencies(-2); }),
       "Number of dependencies specified is less than the minimum."},
      {"hyperelastic unknown without test data", Check<kmaC_Hyperelastic>([](auto& o) { o.SetTestData(false); }),
       "Invalid hyperelastic strain energy potential type."},
      {"hyperelastic default", Check<kmaC_Hyperelastic>([](auto&) {}), ""},
      {"hyperelastic n 0", Check<kmaC_Hyperelastic>([](auto& o) { o.SetN(0); }), "Value for n is less than the minimum."},
      {"hyperelastic n 7", Check<kmaC_Hyperelastic>([](auto& o) { o.SetN(7); }), "Value for n is greater than the maximum."},
      {"hyperelastic n 6", Check<kmaC_Hyperelastic>([](auto& o) { o.SetN(6); }), ""},
      {"polynomial of order 3 from test data",
       Check<kmaC_Hyperelastic>([](auto& o) { o.SetType(kmaC_Hyperelastic::TypeEnm::POLYNOMIAL); o.SetN(3); }),
       "The order n of the polynomial strain energy potential\ncan only take the values 1 or 2\nif the TEST DATA suboption is used."},
      {"polynomial of order 2 from test data",
       Check<kmaC_Hyperelastic>([](auto& o) { o.SetType(kmaC_Hyperelastic::TypeEnm::POLYNOMIAL); o.SetN(2); }), ""},
      {"poisson below -1", Check<kmaC_Hyperelastic>([](auto& o) { o.SetPoissonRatio(-1.01); }),
       "The poisson's ratio given is less than the minimum."},
      {"poisson above 0.5", Check<kmaC_Hyperelastic>([](auto& o) { o.SetPoissonRatio(0.51); }),
       "The poisson's ratio given is greater than the maximum."},
      {"poisson 0.5", Check<kmaC_Hyperelastic>([](auto& o) { o.SetPoissonRatio(0.5); }), ""},
      {"eos negative detonation energy", Check<kmaC_Eos>([](auto& o) { o.SetDetonationEnergy(-1.0); }), "Detonation energy should be non-negative."},
      {"viscoelastic nmax 0", Check<kmaC_Viscoelastic>([](auto& o) { o.SetNmax(0); }), "Value for nmax is less than the minimum."},
      {"viscoelastic nmax 14", Check<kmaC_Viscoelastic>([](auto& o) { o.SetNmax(14); }), "Value for nmax is more than the maximum."},
      {"volumetric preload with traction",
       Check<kmaC_Viscoelastic>([](auto& o) {
         o.SetType(kmaC_Viscoelastic::TypeEnm::TRACTION);
         o.SetPreload(kmaC_Viscoelastic::PreloadEnm::UNIAXIAL_VOLUMETRIC);
       }),
       "Volumetric preload cannot be used with traction."},
      {"uniaxial preload with traction",
       Check<kmaC_Viscoelastic>([](auto& o) {
         o.SetType(kmaC_Viscoelastic::TypeEnm::TRACTION);
         o.SetPreload(kmaC_Viscoelastic::PreloadEnm::UNIAXIAL);
       }),
       ""},
      {"concrete negative eccentricity", Check<kmaC_ConcreteDamagedPlasticity>([](auto& o) { o.SetTable(Row({38, -0.1, 1.16, 0.667, 0})); }),
       "Eccentricity given is less than the minimum."},
      {"concrete K 0.5", Check<kmaC_ConcreteDamagedPlasticity>([](auto& o) { o.SetTable(Row({38, 0.1, 1.16, 0.5, 0})); }),
       "The KAPPA given is less than the minimum."},
      {"concrete K 1.01", Check<kmaC_ConcreteDamagedPlasticity>([](auto& o) { o.SetTable(Row({38, 0.1, 1.16, 1.01, 0})); }),
       "The KAPPA given is greater than the maximum."},
      {"concrete K 1", Check<kmaC_ConcreteDamagedPlasticity>([](auto& o) { o.SetTable(Row({38, 0.1, 1.16, 1.0, 0})); }), ""},
      {"creep of a user law skips the table", Check<kmaC_Creep>([](auto& o) { o.SetLaw(kmaC_Creep::LawEnm::USER); o.SetTable(Row({0, 0})); }), ""},
      {"damping negative beta", Check<kmaC_Damping>([](auto& o) { o.SetBeta(-1e-6); }), "The value of beta should be greater than or equal to zero."},
      {"depvar negative delete", Check<kmaC_Depvar>([](auto& o) { o.SetDeleteVar(-1); }), "Delete number is less than the minimum."},
      {"depvar delete beyond n", Check<kmaC_Depvar>([](auto& o) { o.SetN(3); o.SetDeleteVar(4); }), "Invalid state variable number."},
      {"inelastic heat fraction above 1", Check<kmaC_InelasticHeatFraction>([](auto& o) { o.SetFraction(1.0001); }),
       "Fraction is greater than the maximum."},
      {"joule heat fraction 1", Check<kmaC_JouleHeatFraction>([](auto& o) { o.SetFraction(1.0); }), ""},
      {"hyperfoam n 7", Check<kmaC_Hyperfoam>([](auto& o) { o.SetN(7); }), "Value for n is greater than the maximum."},
      {"hyperfoam poisson 0.6", Check<kmaC_Hyperfoam>([](auto& o) { o.SetPoisson(0.6); }), "The poisson's ratio given is greater than the maximum."},
      {"element removal without a stress", Check<kmaC_LowDensityFoam>([](auto& o) { o.SetElementRemoval(true); }),
       "The value of maximum allowable principal tensile stress should be greater than zero."},
      {"stress without element removal", Check<kmaC_LowDensityFoam>([](auto& o) { o.SetMaxAllowablePrincipalStress(-1.0); }), ""},
      {"anisotropic B-H curve", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetNonlinearBH(true);
         o.SetType(kmaC_MagneticPermeability::TypeEnm::ANISOTROPIC);
       }),
       "Anisotropic material type is inappropriate for nonlinear BH material."},
      {"frequency dependent B-H curve", Check<kmaC_MagneticPermeability>([](auto& o) { o.SetNonlinearBH(true); o.SetFrequencyDependency(true); }),
       "Frequency dependency is not applicable for nonlinear BH material."},
      {"B-H curve of one point", Check<kmaC_MagneticPermeability>([](auto& o) { o.SetNonlinearBH(true); o.SetTable(Row({0.0, 0.0})); }),
       "Table should contain at least two data rows."},
      {"B-H curve off the origin", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetNonlinearBH(true);
         o.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{0.0, 10.0}, {1.0, 100.0}})));
       }),
       "First two cells of the first table row should be (0.,0.)"},
      {"B-H curve of one column", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetNonlinearBH(true);
         o.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{0.0}, {1.0}})));
       }),
       "First two cells of the first table row should be (0.,0.)"},
      {"B-H curve from the origin", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetNonlinearBH(true);
         o.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{0.0, 0.0}, {0.5, 100.0}})));
       }),
       ""},
      {"B-H curve with a zero row after the origin", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetNonlinearBH(true);
         o.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{0.0, 0.0}, {0.0, 0.0}})));
       }),
       "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."},
      {"zero first row without a B-H curve", Check<kmaC_MagneticPermeability>([](auto& o) {
         o.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{0.0, 0.0}, {0.5, 100.0}})));
       }),
       "Tabular data for at least one option or suboption\nhas either blank or zero valued row(s)."},
      {"deviatoric eccentricity 0.5", Check<kmaC_MohrCoulomb>([](auto& o) { o.SetDeviatoricEccentricity(0.5); }),
       "invalid flow potential eccentricity in the deviatoric plane."},
      {"deviatoric eccentricity 0.51", Check<kmaC_MohrCoulomb>([](auto& o) { o.SetDeviatoricEccentricity(0.51); }), ""},
      {"meridional eccentricity negative", Check<kmaC_MohrCoulomb>([](auto& o) { o.SetMeridionalEccentricity(-0.1); }),
       "Eccentricity given is less than the minimum."},
      {"drucker prager eccentricity negative", Check<kmaC_DruckerPrager>([](auto& o) { o.SetEccentricity(-0.01); }),
       "Eccentricity given is less than the minimum."},
      {"gasket area in stress units", Check<kmaC_ThicknessBehavior>([](auto& o) { o.SetContactArea(2.0); }),
       "Gasket contact area may only be defined when gasket thickness behavior has units of force."},
      {"gasket tensile stiffness 0", Check<kmaC_ThicknessBehavior>([](auto& o) { o.SetTensileStiffnessFactor(0.0); }),
       "Tensile tiffness factor must be greater than zero."},
      {"relative density above 1", Check<kmaC_PorousMetalPlasticity>([](auto& o) { o.SetRelativeDensity(1.01); }),
       "Fraction is greater than the maximum."},
  };
  for (const RuleCase& c : cases) {
    SCOPED_TRACE(c.what);
    if (std::string(c.message).empty()) EXPECT_NO_THROW(c.fn());
    else kmaT_ExpectFailure(c.fn, c.message);
  }
}

TEST(KmaOptionClasses, AnUnknownSubOptionIsRefusedWithItsOwnersMessage) {
  kmaT_Start();
  struct Case {
    const char* slot;
    const char* type;
    const char* message;
    const char* sub = "notASubOption";
  };
  const Case cases[] = {
      // The name of another owner's sub-option, or of a member, is no sub-option of this owner.
      {"capPlasticity", "CapPlasticity", "Unknown material option name for cap plasticity", "druckerPragerCreep"},
      {"capPlasticity", "CapPlasticity", "Unknown material option name for cap plasticity", "table"},
      {"druckerPrager", "DruckerPrager", "Unknown material option name for drucker prager", "capCreep"},
      {"eos", "Eos", "Unknown material option name in eos", "shear"},
      {"elastic", "Elastic", "Unknown material option name for elastic", "failStrength"},
      {"elastic", "Elastic", "Unknown material option name for elastic", "moduli"},
      {"plastic", "Plastic", "Unknown material option name for plastic", "failStress"},
      {"brittleCracking", "BrittleCracking", "Unknown material option name for brittle cracking", "eosShear"},
      {"hyperelastic", "Hyperelastic", "Unknown material option name for hyperelastic"},
      {"creep", "Creep", "Unknown material option name for creep"},
      {"viscoelastic", "Viscoelastic", "Unknown material option name for viscoelastic"},
      {"concreteDamagedPlasticity", "ConcreteDamagedPlasticity", "Unknown material option name for Concrete Damaged Plasticity"},
      {"foam", "Foam", "Unknown material option name for foam"},
      {"eos", "Eos", "Unknown material option name in eos"},
      {"brittleCracking", "BrittleCracking", "Unknown material option name for brittle cracking"},
      {"capPlasticity", "CapPlasticity", "Unknown material option name for cap plasticity"},
      {"clayPlasticity", "ClayPlasticity", "Unknown material option name for clay plasticity"},
      {"concrete", "Concrete", "Unknown material option name for concrete"},
      {"castIronPlasticity", "CastIronPlasticity", "Unknown material option name for cast iron plasticity"},
      {"druckerPrager", "DruckerPrager", "Unknown material option name for drucker prager"},
      {"hyperfoam", "Hyperfoam", "Unknown material option name for hyperfoam"},
      {"lowDensityFoam", "LowDensityFoam", "Unknown material option name for low-density foam"},
      {"mohrCoulomb", "MohrCoulomb", "Unknown material option name for Mohr Coulomb plasticity"},
      {"moistureSwelling", "MoistureSwelling", "Unknown material option name for moisture swelling"},
      {"permeability", "Permeability", "Unknown material option name for permeability"},
      {"porousMetalPlasticity", "PorousMetalPlasticity", "Unknown material option name for porous metal plasticity"},
      {"swelling", "Swelling", "Unknown material option name for swelling"},
      {"thicknessBehavior", "ThicknessBehavior", "Unknown material option name for thickness behavior"},
      {"diffusivity", "Diffusivity", "Unknown material option name for diffusivity"},
      {"density", "Density", "Material option has no suboptions"},
      {"ductileDamageInitiation", "DamageInitiation", "Material option has no suboptions"},
  };
  cmd_Session s;
  Ok(s, {{"op", "create"}, {"path", {"M"}}});
  Ok(s, {{"op", "create"}, {"path", {"M", "materials", "A"}}, {"type", "Material"}});
  for (const Case& c : cases) Ok(s, {{"op", "set"}, {"path", {"M", "materials", "A", c.slot}}, {"type", c.type}});
  const ddr_Model& model = *s.Database().ModifyModel("M");
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.slot) + " " + c.sub);
    const kmaC_MaterialOptionShortcut owner =
        kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("A"), c.slot);
    ASSERT_NE(owner.ConstGet(model), nullptr);
    const kmaC_MaterialOptionShortcut sub = kmaC_MaterialOptionInMaterialOptionShortcut(owner, c.sub);
    EXPECT_EQ(qmx_Catch<nex_CmdError>([&] { sub.ConstGet(model); }).Message(), c.message);
  }
  // A known sub-option name that is empty names nothing.
  const kmaC_MaterialOptionShortcut eos =
      kmaC_MaterialOptionInMaterialShortcut(kmaC_MaterialInMaterialContainerShortcut("A"), "eos");
  EXPECT_EQ(kmaC_MaterialOptionInMaterialOptionShortcut(eos, "eosShear").ConstGet(model), nullptr);
}

}  // namespace

#include "kma/kmaC_Advice.h"

#include <cstdint>
#include <charconv>
#include <string>
#include <vector>

#include "command/cmd_Advice.h"
#include "kma/kmaC_Conductivity.h"
#include "kma/kmaC_DamageInitiation.h"
#include "kma/kmaC_DamageInitiationFit.h"
#include "kma/kmaC_Density.h"
#include "kma/kmaC_Elastic.h"
#include "kma/kmaC_Expansion.h"
#include "kma/kmaC_Material.h"
#include "kma/kmaC_Plastic.h"
#include "kma/kmaC_assert.h"
#include "platform/base/QMXBasException.h"

namespace {

constexpr const char* kKmaAdviceOwner = "kma";

// The shortest text that reads back as the same number (7.8e-09, 0.05, 210000).
std::string kmaAdvice_Number(double v) {
  char buf[32];
  const auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

std::string kmaAdvice_Row(std::size_t r) { return "row " + std::to_string(r + 1); }

// A tabular option's data columns come first, then temperature when the data depend on it, then
// one column per field variable. Rows are ordered by these columns, the last most significant
// (the order the table's Sort gives), and no two rows share them.
struct kmaAdvice_Layout {
  std::vector<std::string> keyNames;  // the key columns, from the first of them on
  std::size_t firstKey = 0;
};

kmaAdvice_Layout kmaAdvice_Keys(std::size_t dataColumns, bool temperature, std::int32_t fields,
                                std::vector<std::string> curveKeys = {}) {
  kmaAdvice_Layout l;
  l.firstKey = dataColumns - curveKeys.size();
  l.keyNames = std::move(curveKeys);
  if (temperature) l.keyNames.push_back("temperature");
  for (std::int32_t f = 1; f <= fields; ++f) l.keyNames.push_back("field " + std::to_string(f));
  return l;
}

std::string kmaAdvice_Names(const std::vector<std::string>& names) {
  std::string out;
  for (std::size_t i = 0; i < names.size(); ++i) out += (i ? (i + 1 == names.size() ? " and " : ", ") : "") + names[i];
  return out;
}

// The table's width against what the option's layout needs; then the order of its key columns.
// Returns whether the width fits (the caller looks at the cells only then).
bool kmaAdvice_Table(cmd_AdviceContext& ctx, const char* option, const cow_2DArray<double>& t, std::size_t constants,
                     bool temperature, std::int32_t fields, std::vector<std::string> curveKeys = {}) {
  if (t.Columns() == 0) return false;
  const std::size_t deps = (temperature ? 1 : 0) + static_cast<std::size_t>(fields > 0 ? fields : 0);
  const std::size_t want = constants + deps;
  if (t.Columns() != want) {
    ctx.Warn("table", "table-width",
             "The " + std::string(option) + " table has " + std::to_string(t.Columns()) + " columns; expected " +
                 std::to_string(want) + " (" + std::to_string(constants) + " of data" +
                 (deps ? ", then " + std::to_string(deps) + " of temperature and field dependencies" : std::string()) +
                 ")");
    return false;
  }
  const kmaAdvice_Layout l = kmaAdvice_Keys(constants, temperature, fields > 0 ? fields : 0, std::move(curveKeys));
  for (std::size_t r = 1; r < t.Rows(); ++r) {
    if (l.keyNames.empty()) {
      ctx.Warn("table", "table-duplicate-key",
               "The " + std::string(option) + " table has " + std::to_string(t.Rows()) +
                   " rows but no temperature or field dependency; expected one row");
      return true;
    }
    std::size_t c = t.Columns();
    while (c-- > l.firstKey) {
      if (t(r, c) == t(r - 1, c)) continue;
      if (t(r, c) < t(r - 1, c)) {
        ctx.Warn("table", "table-key-order",
                 "In the " + std::string(option) + " table, " + kmaAdvice_Row(r) + " has " +
                     l.keyNames[c - l.firstKey] + " " + kmaAdvice_Number(t(r, c)) + " after " +
                     kmaAdvice_Number(t(r - 1, c)) + " in " + kmaAdvice_Row(r - 1) +
                     "; expected the rows in increasing order of " + kmaAdvice_Names(l.keyNames) +
                     ", the last the slowest to change");
        return true;
      }
      break;
    }
    if (c == static_cast<std::size_t>(-1) || c < l.firstKey) {
      ctx.Warn("table", "table-duplicate-key",
               "In the " + std::string(option) + " table, " + kmaAdvice_Row(r - 1) + " and " + kmaAdvice_Row(r) +
                   " have the same " + kmaAdvice_Names(l.keyNames) + "; expected one row for each");
      return true;
    }
  }
  return true;
}

// The first row whose column c fails `ok`, as a warning.
template <class Ok>
void kmaAdvice_Column(cmd_AdviceContext& ctx, const cow_2DArray<double>& t, std::size_t c, std::string_view code,
                      const std::string& what, const char* expected, Ok ok) {
  for (std::size_t r = 0; r < t.Rows(); ++r) {
    if (ok(t(r, c))) continue;
    ctx.Warn("table", code, "The " + what + " in " + kmaAdvice_Row(r) + " is " + kmaAdvice_Number(t(r, c)) + "; expected " + expected);
    return;
  }
}

bool kmaAdvice_Positive(double v) { return v > 0.0; }

// ---- elastic

// The data columns of each symmetry type whose count is settled; 0 for the others.
std::size_t kmaAdvice_ElasticConstants(kmaC_Elastic::TypeEnm type) {
  using T = kmaC_Elastic::TypeEnm;
  switch (type) {
    case T::ISOTROPIC: return 2;          // E, nu
    case T::ORTHOTROPIC: return 9;        // D1111 ... D2323
    case T::ANISOTROPIC: return 21;       // D1111 ... D2323
    case T::ENGINEERING_CONSTANTS: return 9;  // E1 E2 E3 nu12 nu13 nu23 G12 G13 G23
    case T::LAMINA: return 6;             // E1 E2 nu12 G12 G13 G23
    case T::TRACTION: return 3;           // Enn Ess Ett
    case T::COUPLED_TRACTION: return 6;   // Enn Ess Ett Ens Ent Est
    case T::SHEAR: return 1;              // G
    case T::TRANSVERSELY_ISOTROPIC: return 5;  // five independent constants, whatever their order
    // A short-fiber or bilamina table's columns depend on the homogenization or the tension and
    // compression split the analysis applies: no count to hold it to.
    default: return 0;
  }
}

void kmaAdvice_Elastic(const kmaC_Elastic& e, cmd_AdviceContext& ctx) {
  const cow_2DArray<double>& t = e.GetTable().GetTable();
  const std::size_t n = kmaAdvice_ElasticConstants(e.GetType());
  if (n == 0 || !kmaAdvice_Table(ctx, "elastic", t, n, e.GetTemperatureDependency(), e.GetDependencies())) return;
  using T = kmaC_Elastic::TypeEnm;
  std::vector<std::pair<std::size_t, const char*>> moduli;
  switch (e.GetType()) {
    case T::ISOTROPIC: moduli = {{0, "Young's modulus"}}; break;
    case T::ORTHOTROPIC: moduli = {{0, "D1111"}, {2, "D2222"}, {5, "D3333"}, {6, "D1212"}, {7, "D1313"}, {8, "D2323"}}; break;
    case T::ANISOTROPIC: moduli = {{0, "D1111"}, {2, "D2222"}, {5, "D3333"}, {9, "D1212"}, {14, "D1313"}, {20, "D2323"}}; break;
    case T::ENGINEERING_CONSTANTS: moduli = {{0, "E1"}, {1, "E2"}, {2, "E3"}, {6, "G12"}, {7, "G13"}, {8, "G23"}}; break;
    case T::LAMINA: moduli = {{0, "E1"}, {1, "E2"}, {3, "G12"}, {4, "G13"}, {5, "G23"}}; break;
    case T::TRACTION:
    case T::COUPLED_TRACTION: moduli = {{0, "Enn"}, {1, "Ess"}, {2, "Ett"}}; break;
    case T::SHEAR: moduli = {{0, "shear modulus"}}; break;
    default: break;
  }
  for (const auto& [c, name] : moduli)
    kmaAdvice_Column(ctx, t, c, "elastic-modulus-sign", name, "a positive modulus", kmaAdvice_Positive);
  if (e.GetType() == T::ISOTROPIC)
    kmaAdvice_Column(ctx, t, 1, "elastic-poisson-range", "Poisson's ratio", "a value above -1 and below 0.5",
                     [](double nu) { return nu > -1.0 && nu < 0.5; });
}

// ---- other options

void kmaAdvice_Density(const kmaC_Density& d, cmd_AdviceContext& ctx) {
  // A density distributed by a field names it in the repository of its kind; a uniform one names
  // none, whatever the member still holds.
  using D = kmaC_Density::DistributionTypeEnm;
  if (d.GetDistributionType() == D::ANALYTICAL_FIELD) ctx.Reference({}, "fieldName", "analyticalFields", d.GetFieldName());
  if (d.GetDistributionType() == D::DISCRETE_FIELD) ctx.Reference({}, "fieldName", "discreteFields", d.GetFieldName());
  const cow_2DArray<double>& t = d.GetTable().GetTable();
  if (!kmaAdvice_Table(ctx, "density", t, 1, d.GetTemperatureDependency(), d.GetDependencies())) return;
  kmaAdvice_Column(ctx, t, 0, "density-sign", "density", "a positive mass density", kmaAdvice_Positive);
}

void kmaAdvice_Expansion(const kmaC_Expansion& x, cmd_AdviceContext& ctx) {
  if (x.GetType() != kmaC_Expansion::TypeEnm::ISOTROPIC || x.GetUserSubroutine()) return;
  const cow_2DArray<double>& t = x.GetTable().GetTable();
  if (!kmaAdvice_Table(ctx, "expansion", t, 1, x.GetTemperatureDependency(), x.GetDependencies())) return;
  kmaAdvice_Column(ctx, t, 0, "expansion-sign", "expansion coefficient",
                   "a coefficient that is not negative (few materials shrink when heated)",
                   [](double a) { return a >= 0.0; });
}

void kmaAdvice_Conductivity(const kmaC_Conductivity& k, cmd_AdviceContext& ctx) {
  using T = kmaC_Conductivity::TypeEnm;
  const cow_2DArray<double>& t = k.GetTable().GetTable();
  std::vector<std::size_t> diagonal;
  std::size_t n = 0;
  switch (k.GetType()) {
    case T::ISOTROPIC: n = 1, diagonal = {0}; break;
    case T::ORTHOTROPIC: n = 3, diagonal = {0, 1, 2}; break;
    case T::ANISOTROPIC: n = 6, diagonal = {0, 2, 5}; break;
  }
  if (!kmaAdvice_Table(ctx, "conductivity", t, n, k.GetTemperatureDependency(), k.GetDependencies())) return;
  for (std::size_t c : diagonal)
    kmaAdvice_Column(ctx, t, c, "conductivity-sign", "conductivity", "a positive conductivity", kmaAdvice_Positive);
}

void kmaAdvice_Plastic(const kmaC_Plastic& p, cmd_AdviceContext& ctx) {
  if (p.GetHardening() != kmaC_Plastic::HardeningEnm::ISOTROPIC) return;
  const cow_2DArray<double>& t = p.GetTable().GetTable();
  std::vector<std::string> curve = {"plastic strain"};
  if (p.GetRate()) curve.push_back("strain rate");
  if (!kmaAdvice_Table(ctx, "plastic", t, 1 + curve.size(), p.GetTemperatureDependency(), p.GetDependencies(), curve))
    return;
  kmaAdvice_Column(ctx, t, 0, "plastic-yield-sign", "yield stress", "a positive yield stress", kmaAdvice_Positive);
}

// ---- damage initiations in their material

constexpr const char* kKmaAdviceInitiationSlots[] = {
    "ductileDamageInitiation", "fldDamageInitiation",  "flsdDamageInitiation",  "johnsonCookDamageInitiation",
    "maxeDamageInitiation",    "maxsDamageInitiation", "maxpeDamageInitiation", "maxpsDamageInitiation",
    "mkDamageInitiation",      "msfldDamageInitiation", "quadeDamageInitiation", "quadsDamageInitiation",
    "shearDamageInitiation",   "hashinDamageInitiation", "laRC05DamageInitiation", "hosfordCoulombDamageInitiation"};

// How an initiation fits its criterion and its material (no part of the material's validation),
// each failing rule as a warning with its own code and the module's message.
void kmaAdvice_Material(const kmaC_Material& m, cmd_AdviceContext& ctx) {
  const bool hasPlasticity = m.GetOption("plastic") || m.GetOption("druckerPrager") || m.GetOption("foam");
  struct Code {
    kmaC_ErrorEnm error;
    const char* code;
    const char* member;
  };
  static constexpr Code kCodes[] = {
      {kmaC_DamageEvolutionRequired, "damage-evolution-required", "DamageEvolutionList"},
      {kmaC_InitiationNeedsPlasticity, "damage-needs-plasticity", ""},
      {kmaC_FailureIndexTooLarge, "damage-failure-index", "DamageEvolutionList"},
      {kmaC_TooManyDamageEvolutions, "damage-evolution-count", "DamageEvolutionList"},
  };
  for (const char* slot : kKmaAdviceInitiationSlots) {
    const auto* di = static_cast<const kmaC_DamageInitiation*>(m.GetOption(slot));
    if (!di) continue;
    try {
      kmaC_AssertDamageInitiationFitsSlot(*di, slot, hasPlasticity);
    } catch (const QMXBasException& e) {
      for (const Code& c : kCodes)
        if (e.Message() == kmaC_ErrorMessage(c.error)) ctx.WarnAt({slot}, c.member, c.code, e.Message());
    }
  }
}

}  // namespace

void kmaC_RegisterAdvice() {
  cmd_RegisterAdvisorOf<kmaC_Material, kmaAdvice_Material>(kKmaAdviceOwner);
  cmd_RegisterAdvisorOf<kmaC_Elastic, kmaAdvice_Elastic>(kKmaAdviceOwner);
  cmd_RegisterAdvisorOf<kmaC_Density, kmaAdvice_Density>(kKmaAdviceOwner);
  cmd_RegisterAdvisorOf<kmaC_Expansion, kmaAdvice_Expansion>(kKmaAdviceOwner);
  cmd_RegisterAdvisorOf<kmaC_Conductivity, kmaAdvice_Conductivity>(kKmaAdviceOwner);
  cmd_RegisterAdvisorOf<kmaC_Plastic, kmaAdvice_Plastic>(kKmaAdviceOwner);
  cmd_RegisterReference(kKmaAdviceOwner, "kmaC_FieldConstituent", "material", "materials");
  cmd_RegisterReference(kKmaAdviceOwner, "kmaC_MeanFieldHomogenization", "constituents", "fieldConstituents");
}

void kmaC_UnregisterAdvice() { cmd_UnregisterAdvisors(kKmaAdviceOwner); }

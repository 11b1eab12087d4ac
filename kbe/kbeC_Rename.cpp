#include "kbe/kbeC_Rename.h"

#include <string>
#include <vector>

#include "kbe/kbeC_CDCTerm.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "kbe/kbeC_ConnectorDamage.h"
#include "kbe/kbeC_ConnectorDamping.h"
#include "kbe/kbeC_ConnectorElasticity.h"
#include "kbe/kbeC_ConnectorFailure.h"
#include "kbe/kbeC_ConnectorFriction.h"
#include "kbe/kbeC_ConnectorLock.h"
#include "kbe/kbeC_ConnectorPlasticity.h"
#include "kbe/kbeC_ConnectorPotential.h"
#include "kbe/kbeC_ConnectorStop.h"
#include "platform/base/nex_Exception.h"

namespace {
constexpr int kRenamedAt = 811;

using RowPtr = std::shared_ptr<const cls_Record>;

// One renaming of one row: the old row, the new row and the other stored rows, with the
// refusals named after the conversion.
class Renaming {
 public:
  Renaming(const char* function, const char* oldClass, const char* newLabel, const dbc_Row& in, dbc_Row& out)
      : function_(function), oldClass_(oldClass), newLabel_(newLabel), in_(in), out_(out) {
    if (!in.Source() || in.Record().fields.empty())
      Fail(std::string("inputTable for ") + oldClass_ + " can't be NULL");
    if (!out.Source()) Fail(std::string("TempTable for ") + newLabel_ + "(version 811) can't be NULL");
  }

  [[noreturn]] void Fail(const std::string& what) const { nex_ThrowCmd(std::string(function_) + " failed: " + what); }

  // A field of the old row (or of a row it rests on); refuses a row that lacks it.
  const cls_Value& Field(const cls_Record& row, const char* name, const char* rowClass) const {
    const cls_Value* v = row.Find(name);
    if (!v) Fail(std::string("inputTable for ") + rowClass + " can't be NULL");
    return *v;
  }
  const cls_Value& Old(const char* name) const { return Field(in_.Record(), name, oldClass_); }
  bool Has(const char* name) const { return in_.Record().Find(name) != nullptr; }

  // The base row that "##BaseClassOID" of `row` names, of the stored class `baseClass`.
  RowPtr Base(const cls_Record& row, const char* rowClass, const char* baseClass) const {
    auto oid = std::get_if<std::int32_t>(&Field(row, "##BaseClassOID", rowClass));
    RowPtr base = oid ? in_.Source()->FetchByName(baseClass, *oid) : nullptr;
    if (!base) Fail(std::string("inputTable for ") + baseClass + " can't be NULL");
    return base;
  }
  // The option base of the old row: directly, or through its motion discontinuity.
  RowPtr OptionBase() const { return Base(in_.Record(), oldClass_, "kbeC_ConnectorBehaviorOption"); }
  RowPtr Discontinuity() const { return Base(in_.Record(), oldClass_, "kbeC_MotionDiscontinuity"); }

  // The row an object field of the old row refers to; null for no object.
  RowPtr Referred(const char* field) const {
    const std::string f(field);
    const cls_Value& oid = Old((f + "#OID").c_str());
    const cls_Value& cls = Old((f + "#ClassID").c_str());
    if (std::holds_alternative<std::monostate>(oid)) return nullptr;
    RowPtr row;
    if (auto o = std::get_if<std::int32_t>(&oid))
      if (auto c = std::get_if<std::int32_t>(&cls)) row = in_.Source()->Fetch(static_cast<std::uint32_t>(*c), *o);
    if (!row) Fail("inputTable can't be NULL");
    return row;
  }

  void Set(const char* name, cls_Value v) { out_.Set(rfm_FieldHandle(name, -1), std::move(v)); }
  void Copy(const char* from, const char* to) { Set(to, Old(from)); }
  void Copy(const char* name) { Copy(name, name); }

  // The components of the option base.
  void Components() {
    RowPtr base = OptionBase();
    Set("components", Field(*base, "components", "kbeC_ConnectorBehaviorOption"));
  }
  // A table row's three parts into the new row's members (absent table: no dependencies, no data).
  void Table(const char* field, const char* table, const char* temperature, const char* dependencies) {
    RowPtr t = Referred(field);
    if (!t) {
      Set(table, cow_2DArray<double>());
      if (temperature) Set(temperature, false);
      if (dependencies) Set(dependencies, std::int32_t{0});
      return;
    }
    Set(table, Field(*t, "table", "kbeC_Tabular"));
    if (temperature) Set(temperature, Field(*t, "temperatureDependency", "kbeC_Tabular"));
    if (dependencies) Set(dependencies, Field(*t, "dependencies", "kbeC_Tabular"));
  }
  // A potential container into operator, exponent, the list of potentials and its last id; the
  // container's operator (SUM or MAXIMUM) is written as the given literals. A 453 row has no
  // potentials: the defaults then. A missing container row is a missing input row; a container
  // whose operator or exponent cannot be read is a missing property row; a potential of a class
  // the file does not know cannot be written into the new list.
  void Potentials(const char* field, const char* op, const char* exponent, const char* list, const char* lastId,
                  const char* sumLiteral, const char* maximumLiteral) {
    RowPtr c = Has((std::string(field) + "#OID").c_str()) ? Referred(field) : nullptr;
    std::vector<cls_RecordPtr> potentials;
    cow_String stored = "SUM";
    double power = 2.0;
    if (c) {
      const cls_Value* storedOp = c->Find("operator");
      const cls_Value* storedPower = c->Find("exponent");
      const cow_String* opText = storedOp ? std::get_if<cow_String>(storedOp) : nullptr;
      const double* powerValue = storedPower ? std::get_if<double>(storedPower) : nullptr;
      if (!opText || !powerValue || (*opText != "SUM" && *opText != "MAXIMUM")) Fail("inputMdlPropertyTable can't be NULL");
      stored = *opText;
      power = *powerValue;
      auto oids = std::get_if<std::vector<std::int32_t>>(&Field(*c, "potentials#OID", "kbeC_PotentialContainer"));
      auto ids = std::get_if<std::vector<std::int32_t>>(&Field(*c, "potentials#ClassID", "kbeC_PotentialContainer"));
      if (!oids || !ids || oids->size() != ids->size()) Fail("outputTable can't be NULL");
      for (std::size_t i = 0; i < oids->size(); ++i) {
        const auto id = static_cast<std::uint32_t>((*ids)[i]);
        if (out_.Source()->ClassName(id).empty()) Fail("outputTable can't be NULL");
        potentials.push_back(out_.Source()->Reference(id, (*oids)[i]));
      }
    }
    Set(op, cow_String(stored == "SUM" ? sumLiteral : maximumLiteral));
    Set(exponent, power);
    Set(lastId, static_cast<std::int32_t>(potentials.size()));
    Set(list, std::move(potentials));
  }
  // The limits of the motion discontinuity.
  void Limits(bool forces) {
    RowPtr d = Discontinuity();
    RowPtr base = Base(*d, "kbeC_MotionDiscontinuity", "kbeC_ConnectorBehaviorOption");
    Set("components", Field(*base, "components", "kbeC_ConnectorBehaviorOption"));
    Set("minMotion", Field(*d, "minMotion", "kbeC_MotionDiscontinuity"));
    Set("maxMotion", Field(*d, "maxMotion", "kbeC_MotionDiscontinuity"));
    if (!forces) return;  // stops have motion limits only
    Set("minForce", Field(*d, "minForce", "kbeC_MotionDiscontinuity"));
    Set("maxForce", Field(*d, "maxForce", "kbeC_MotionDiscontinuity"));
  }

 private:
  const char* function_;
  const char* oldClass_;
  const char* newLabel_;
  const dbc_Row& in_;
  dbc_Row& out_;
};

// Elasticity and damping of 453 share one layout.
void SpringLike(Renaming& r) {
  r.Components();
  r.Copy("behavior");
  r.Copy("coupling");
  r.Copy("independentComponents");
  r.Table("table", "table", "temperatureDependency", "dependencies");
  r.Set("options", cls_Value());
}
}  // namespace

void* rename_kbeC_Elasticity(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Elasticity", "kbeC_Elasticity", "ConnectorElasticity", oldRow, newRow);
  SpringLike(r);
  return nullptr;
}

void* rename_kbeC_Damping(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Damping", "kbeC_Damping", "ConnectorDamping", oldRow, newRow);
  SpringLike(r);
  return nullptr;
}

void* rename_kbeC_Plasticity(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Plasticity", "kbeC_Plasticity", "ConnectorPlasticity", oldRow, newRow);
  r.Components();
  r.Copy("coupling");
  r.Copy("isotropic");
  r.Copy("isotropicType");
  r.Table("isotropicTable", "isotropicTable", "isotropicTemperature", "isotropicDependencies");
  r.Copy("kinematic");
  r.Copy("kinematicType");
  r.Table("kinematicTable", "kinematicTable", "kinematicTemperature", "kinematicDependencies");
  r.Potentials("potentials", "forcePotentialOperator", "forcePotentialExponent", "potentials", "lastId", "SUM", "MAXIMUM");
  return nullptr;
}

void* rename_kbeC_Damage(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Damage", "kbeC_Damage", "ConnectorDamage", oldRow, newRow);
  r.Components();
  r.Copy("coupling");
  r.Copy("criterion");
  r.Table("initiationTable", "initiationTable", "initiationTemperature", "initiationDependencies");
  r.Set("initiationOptions", cls_Value());
  r.Potentials("initiationPotentials", "iniPotOperator", "iniPotExponent", "iniPotentials", "lastIniId", "INITIATION_SUM",
               "INITIATION_MAXIMUM");
  r.Copy("evolution");
  r.Copy("evolutionType");
  r.Copy("softening");
  r.Table("evolutionTable", "evolutionTable", "evolutionTemperature", "evolutionDependencies");
  r.Set("evolutionOptions", cls_Value());
  r.Potentials("evolutionPotentials", "evoPotOperator", "evoPotExponent", "evoPotentials", "lastEvoId", "EVOLUTION_SUM",
               "EVOLUTION_MAXIMUM");
  return nullptr;
}

void* rename_kbeC_Friction(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Friction", "kbeC_Friction", "ConnectorFriction", oldRow, newRow);
  r.OptionBase();  // friction kept no components, but its base row belongs to it
  r.Set("frictionModel", cow_String("PREDEFINED"));
  r.Copy("slipStyle");
  r.Copy("tangentDirection", "tangentDirs");
  r.Copy("stickStiffness");
  r.Copy("componentType");
  r.Set("slipDependency", false);
  r.Copy("independentComponents");
  // A contact-force component of 0 meant none.
  const cls_Value& component = r.Old("contactForceComponent");
  const auto* c = std::get_if<std::int32_t>(&component);
  r.Set("useContForceComponent", c && *c != 0);
  r.Set("contForceComponent", c && *c != 0 ? *c : std::int32_t{1});
  r.Table("table", "table", "temperatureDependency", "dependencies");
  r.Set("options", cls_Value());
  r.Potentials("potentials", "frcPotOperator", "frcPotExponent", "potentials", "lastId", "SUM", "MAXIMUM");
  return nullptr;
}

void* rename_kbeC_Potential(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Potential", "kbeC_Potential", "ConnectorPotential", oldRow, newRow);
  for (const char* f : {"componentNumber", "sign", "scaleFactor", "positiveExponent", "shiftFactor", "hFunction"}) r.Copy(f);
  r.Set("componentName", cow_String());
  return nullptr;
}

void* rename_kbeC_Failure(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Failure", "kbeC_Failure", "ConnectorFailure", oldRow, newRow);
  r.Limits(true);
  r.Copy("releaseComponent");
  return nullptr;
}

void* rename_kbeC_Lock(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Lock", "kbeC_Lock", "ConnectorLock", oldRow, newRow);
  r.Limits(true);
  r.Copy("lockingComponent");
  return nullptr;
}

void* rename_kbeC_Stops(const dbc_Row& oldRow, dbc_Row& newRow, int) {
  Renaming r("rename_kbeC_Stops", "kbeC_Stops", "ConnectorStop", oldRow, newRow);
  r.Limits(false);
  return nullptr;
}

void* Upgrade_kbeC_ConnectorBehaviorOption_453(const dbc_Row&, dbc_Row&, int) {
  nex_ThrowCmd("inputTable for connector_behavior_options cannot be empty in upgrade of derived objects");
}

// --- descriptors ---------------------------------------------------------------------------------

void kbeC_ConnectorBehaviorOption_453::SchemaChanges(dbc_DatabaseConverter& converter) {
  converter.GetConverter(kRenamedAt)
      .Upgrade("kbeC_ConnectorBehaviorOption", kbeC_ConnectorBehaviorOption::TypeId(), 453)
      .BindConversionFunction(&Upgrade_kbeC_ConnectorBehaviorOption_453);
}
void kbeC_MotionDiscontinuity_453::SchemaChanges(dbc_DatabaseConverter& c) { c.GetConverter(kRenamedAt).Part("kbeC_MotionDiscontinuity", 453); }
void kbeC_Tabular_453::SchemaChanges(dbc_DatabaseConverter& c) { c.GetConverter(kRenamedAt).Part("kbeC_Tabular", 453); }
void kbeC_PotentialContainer_507::SchemaChanges(dbc_DatabaseConverter& c) {
  c.GetConverter(kRenamedAt).Part("kbeC_PotentialContainer", 507);
}

namespace {
template <class New>
void RenameStep(dbc_DatabaseConverter& c, const char* oldName, int from, dbc_ConversionFn fn) {
  c.GetConverter(kRenamedAt).Rename(oldName, from, New::kClassName, New::TypeId()).BindConversionFunction(fn);
}
}  // namespace

void kbeC_Damage_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorDamage>(c, "kbeC_Damage", 453, &rename_kbeC_Damage); }
void kbeC_Damage_507::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorDamage>(c, "kbeC_Damage", 507, &rename_kbeC_Damage); }
void kbeC_Damping_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorDamping>(c, "kbeC_Damping", 453, &rename_kbeC_Damping); }
void kbeC_Elasticity_453::SchemaChanges(dbc_DatabaseConverter& c) {
  RenameStep<kbeC_ConnectorElasticity>(c, "kbeC_Elasticity", 453, &rename_kbeC_Elasticity);
}
void kbeC_Failure_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorFailure>(c, "kbeC_Failure", 453, &rename_kbeC_Failure); }
void kbeC_Friction_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorFriction>(c, "kbeC_Friction", 453, &rename_kbeC_Friction); }
void kbeC_Friction_507::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorFriction>(c, "kbeC_Friction", 507, &rename_kbeC_Friction); }
void kbeC_Lock_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorLock>(c, "kbeC_Lock", 453, &rename_kbeC_Lock); }
void kbeC_Plasticity_453::SchemaChanges(dbc_DatabaseConverter& c) {
  RenameStep<kbeC_ConnectorPlasticity>(c, "kbeC_Plasticity", 453, &rename_kbeC_Plasticity);
}
void kbeC_Plasticity_507::SchemaChanges(dbc_DatabaseConverter& c) {
  RenameStep<kbeC_ConnectorPlasticity>(c, "kbeC_Plasticity", 507, &rename_kbeC_Plasticity);
}
void kbeC_Potential_507::SchemaChanges(dbc_DatabaseConverter& c) {
  RenameStep<kbeC_ConnectorPotential>(c, "kbeC_Potential", 507, &rename_kbeC_Potential);
}
void kbeC_Stops_453::SchemaChanges(dbc_DatabaseConverter& c) { RenameStep<kbeC_ConnectorStop>(c, "kbeC_Stops", 453, &rename_kbeC_Stops); }

// Terms are stored at 1022 in today's layout: rows of 1022 need no step, and the descriptor adds
// none. It is kept so that the layout of each stored version of the term has its descriptor.
void kbeC_CDCTerm_1022::SchemaChanges(dbc_DatabaseConverter&) {
  static_assert(kbeC_CDCTerm::kVersion == 1022, "a term layout after 1022 needs its step here");
}

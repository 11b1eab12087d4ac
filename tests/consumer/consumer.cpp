// Builds a model through the installed umbrella header alone: a beam profile and a material with
// typed slots, reached through the typed repositories; saves it, reopens it and compares. Exits 0
// when everything read back equal.
#include <cstdio>
#include <string>

#include "QMXOdbAttr.h"

namespace {
int Fail(const std::string& what) {
  std::fprintf(stderr, "consumer: %s\n", what.c_str());
  return 1;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return Fail("usage: consumer FILE");
  qmx::Library library;
  int rc = 0;
  try {
    ddr_Database db;
    ddr_Model& model = db.CreateModel("Model-1");
    kbpC_CircularProfile circle;
    circle.SetR(0.25);
    qmx::Profiles(model).Insert("Circle-1", circle);

    kmaC_Material steel;
    // A density of one row, validated once stored.
    kmaC_Density density;
    density.SetTable(kmaC_MaterialTable(cow_2DArray<double>({{7.85e-9}})));
    steel.SetDensity(density);
    qmx::Materials(model).Insert("Steel", steel);
    qmx::Materials(model).Get("Steel").AssertValid();

    dbf_Save(db, argv[1]);
    const ddr_Database back = dbf_Open(argv[1]);
    if (!(back == db)) rc = Fail("the reopened database differs from the saved one");
    const ddr_Model* m = back.FindModel("Model-1");
    if (!m) return Fail("the reopened database has no model \"Model-1\"");
    const auto* read = qmx::Find<kbpC_CircularProfile>(qmx::Profiles(*m), "Circle-1");
    if (!read) rc = Fail("the reopened model has no circular profile \"Circle-1\"");
    else if (read->GetR() != 0.25) rc = Fail("the reopened profile has radius " + std::to_string(read->GetR()));
    const kmaC_Material* mat = qmx::Materials(*m).ConstGet("Steel");
    if (!mat || !mat->HasDensity() || !(mat->GetDensity().GetTable() == density.GetTable()))
      rc = Fail("the reopened material \"Steel\" lost its density");
  } catch (const std::exception& e) {
    rc = Fail(e.what());
  }
  if (rc == 0) std::puts("consumer: saved, reopened and compared equal");
  return rc;
}

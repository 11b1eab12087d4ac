// Builds a model with one beam profile through the installed headers and libraries, saves it,
// reopens it and compares. Exits 0 when everything read back equal.
#include <cstdio>
#include <string>

#include "dbfile/dbf_File.h"
#include "frame/QMXOdbAttrEO2.h"
#include "kbp/kbpC_BeamProfileContainer.h"
#include "kbp/kbpC_CircularProfile.h"
#include "platform/model/ddr_Database.h"

namespace {
int Fail(const std::string& what) {
  std::fprintf(stderr, "consumer: %s\n", what.c_str());
  return 1;
}
}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return Fail("usage: consumer FILE");
  int tally = 0;
  QMXOdbAttrEO2_initialize(tally);
  int rc = 0;
  try {
    ddr_Database db;
    ddr_Model& model = db.CreateModel("Model-1");
    auto* profiles = dynamic_cast<kbpC_BeamProfileContainer*>(model.ModifyRepository("profiles"));
    if (!profiles) return Fail("the model has no profile container \"profiles\"");
    kbpC_CircularProfile circle;
    circle.SetR(0.25);
    profiles->Insert("Circle-1", circle);

    dbf_Save(db, argv[1]);
    const ddr_Database back = dbf_Open(argv[1]);
    if (!(back == db)) rc = Fail("the reopened database differs from the saved one");
    const ddr_Model* m = back.FindModel("Model-1");
    const auto* repo = m ? dynamic_cast<const kbpC_BeamProfileContainer*>(m->FindRepository("profiles")) : nullptr;
    const auto* read = repo ? dynamic_cast<const kbpC_CircularProfile*>(repo->ConstGet("Circle-1")) : nullptr;
    if (!read) rc = Fail("the reopened model has no circular profile \"Circle-1\"");
    else if (read->GetR() != 0.25) rc = Fail("the reopened profile has radius " + std::to_string(read->GetR()));
  } catch (const std::exception& e) {
    rc = Fail(e.what());
  }
  QMXOdbAttrEO2_finalize(tally);
  if (rc == 0) std::puts("consumer: saved, reopened and compared equal");
  return rc;
}

#include "tests/support/qmx_test.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "kad/QMXOdbKadC.h"
#include "platform/cls_ClassRegistrar.h"
#include "platform/ddr_Model.h"

void qmx_StartLibrary() {
  static bool started = [] {
    int tally = 0;
    QMXOdbKadC_initialize(tally);
    ddr_Model::InitializeMetadata(cls_ClassRegistrar::Instance());
    return true;
  }();
  (void)started;
}

std::string qmx_TempDir(const std::string& name) {
  const char* root = std::getenv("QMX_TEST_TMP");
  std::filesystem::path dir = std::filesystem::path(root ? root : std::filesystem::temp_directory_path().string()) /
                              (name + "-" + std::to_string(::getpid()));
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  return dir.string();
}

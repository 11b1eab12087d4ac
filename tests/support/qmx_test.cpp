#include "tests/support/qmx_test.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "frame/QMXOdbAttrEO2.h"

void qmx_StartLibrary() {
  // Loading the library starts it; this only restarts a library that a test left stopped.
  if (QMXOdbAttrEO2_libraryCount() > 0) return;
  static int tally = 0;
  QMXOdbAttrEO2_initialize(tally);
  if (QMXOdbAttrEO2_libraryCount() <= 0) ADD_FAILURE() << "the library could not be started";
}

std::string qmx_TempDir(const std::string& name) {
  const char* root = std::getenv("QMX_TEST_TMP");
  std::filesystem::path dir = std::filesystem::path(root ? root : std::filesystem::temp_directory_path().string()) /
                              (name + "-" + std::to_string(::getpid()));
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir);
  return dir.string();
}

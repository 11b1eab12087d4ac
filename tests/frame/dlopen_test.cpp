// The library loaded at run time by a host that is not linked to it: every sequence of counted
// starts and stops, with or without a dlclose between, ends in a normal exit. Each runs in a
// child process, so that a crash at its exit is seen here as a signal.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace {

struct HostRun {
  int status = -1;
  std::string out;
};

HostRun RunHost(const std::string& script) {
  const std::string command = std::string("'") + QMX_DLOPEN_HOST + "' '" + QMX_LIBRARY_FILE + "' " + script;
  HostRun run;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return run;
  std::array<char, 256> buffer{};
  while (std::fgets(buffer.data(), buffer.size(), pipe)) run.out += buffer.data();
  run.status = pclose(pipe);
  return run;
}

struct Case {
  const char* script;
  const char* what;
  // The library count after each step, as the host prints it, up to a dlclose: whether the loader
  // really unloads the library then is its own affair, so only the exit is checked after it.
  const char* out;
};

TEST(FrameDlopen, AHostThatLoadsTheLibraryAtRunTimeExitsNormally) {
  const Case cases[] = {
      // The load itself starts the library (count 1); a balanced pair leaves it to the unload.
      // The unload at exit stops it before the host's last exit handler looks.
      {"oif", "initialize and finalize, balanced", "o 1\ni 2\nf 1\nexit\nat exit 0\n"},
      {"o", "no call at all", "o 1\nexit\nat exit 0\n"},
      {"oiiff", "initialize twice, finalize twice", "o 1\ni 2\ni 3\nf 2\nf 1\nexit\nat exit 0\n"},
      // The host's finalize takes the load's start; the unload then finds nothing to stop.
      {"of", "finalize without initialize", "o 1\nf 0\nexit\nat exit -1\n"},
      {"off", "finalize twice without initialize", "o 1\nf 0\nf -1\nexit\nat exit -2\n"},
      {"oifc", "a dlclose after a balanced pair", "o 1\ni 2\nf 1\nc\n"},
      {"oifcoif", "a dlclose between two loads", "o 1\ni 2\nf 1\nc\n"},
      {"oicoif", "a dlclose with a start outstanding", "o 1\ni 2\nc\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const HostRun run = RunHost(c.script);
    ASSERT_TRUE(WIFEXITED(run.status)) << "signal " << (WIFSIGNALED(run.status) ? WTERMSIG(run.status) : 0) << "\n" << run.out;
    EXPECT_EQ(WEXITSTATUS(run.status), 0) << run.out;
    EXPECT_EQ(run.out.substr(0, std::string(c.out).size()), c.out);
    EXPECT_NE(run.out.find("exit\n"), std::string::npos) << run.out;
  }
}

}  // namespace

// What odbattr tells a person at a terminal: a progress line on standard error after a second of
// work (the test shortens the delay), cleared when done, and the one-line summary of `run`; and
// nothing of it when standard error is not a terminal. Standard error is a pseudo-terminal here.
#include <gtest/gtest.h>
#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/qmx_test.h"

namespace {

namespace fs = std::filesystem;

struct TerminalOutcome {
  int code = -1;
  std::string terminal;  // what the tool wrote on standard error, a terminal
  std::string out;       // standard output, a file
};

std::string TerminalSlurp(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::stringstream s;
  s << in.rdbuf();
  return s.str();
}

// Runs the tool with standard error on a pseudo-terminal and standard output to a file; `delay`
// is the progress delay in milliseconds ("" keeps the tool's own).
TerminalOutcome RunOnTerminal(const std::vector<std::string>& args, const std::string& delay, const fs::path& out) {
  int master = -1, slave = -1;
  TerminalOutcome r;
  if (::openpty(&master, &slave, nullptr, nullptr, nullptr) != 0) {
    ADD_FAILURE() << "openpty failed";
    return r;
  }
  const pid_t pid = ::fork();
  if (pid == 0) {
    ::close(master);
    const int o = ::open(out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    ::dup2(o, STDOUT_FILENO);
    ::dup2(slave, STDERR_FILENO);
    if (delay.empty()) ::unsetenv("ODBATTR_PROGRESS_DELAY_MS");
    else ::setenv("ODBATTR_PROGRESS_DELAY_MS", delay.c_str(), 1);
    std::vector<char*> argv{const_cast<char*>(ODBATTR_EXE)};
    for (const auto& a : args) argv.push_back(const_cast<char*>(a.c_str()));
    argv.push_back(nullptr);
    ::execv(ODBATTR_EXE, argv.data());
    ::_exit(127);
  }
  ::close(slave);
  // Read until the terminal closes (EIO once the child and its copies of the slave are gone).
  char buf[4096];
  for (;;) {
    const ssize_t n = ::read(master, buf, sizeof buf);
    if (n > 0) r.terminal.append(buf, static_cast<std::size_t>(n));
    else if (n < 0 && errno == EINTR) continue;
    else break;
  }
  ::close(master);
  int status = 0;
  ::waitpid(pid, &status, 0);
  r.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  r.out = TerminalSlurp(out);
  return r;
}

// A script long enough to be seen working: `n` controls, then one refused line.
void WriteTerminalScript(const fs::path& p, int n) {
  std::ofstream s(p);
  s << R"({"op":"create","path":["M"]})" << '\n';
  for (int i = 0; i < n; ++i)
    s << R"({"op":"create","path":["M","adaptiveMeshControls","C-)" << i << R"("],"type":"AdaptiveMeshControl"})" << '\n';
  s << R"({"op":"set","path":["M","adaptiveMeshControls","C-0","remapping"],"value":"THIRD"})" << '\n';
}

std::size_t TerminalCountLines(const std::string& text) {
  std::size_t n = 0;
  for (char c : text) n += c == '\n';
  return n;
}

class Terminal : public ::testing::Test {
 protected:
  void SetUp() override { dir = qmx_TempDir(::testing::UnitTest::GetInstance()->current_test_info()->name()); }
  fs::path dir;
};

TEST_F(Terminal, RunShowsProgressThenClearsItAndEndsWithTheSummary) {
  const fs::path script = dir / "long.jsonl", db = dir / "model.db";
  // Long enough for the progress to be redrawn with a count after its first draw (redraws come
  // five times a second), on a fast machine too.
  WriteTerminalScript(script, 50000);
  const TerminalOutcome r = RunOnTerminal({"run", "--db", db.string(), script.string()}, "0", dir / "out");
  EXPECT_EQ(r.code, 1);  // the refused line
  // the results stay on standard output, one per command, untouched by the progress
  EXPECT_EQ(TerminalCountLines(r.out), 50002u);
  EXPECT_EQ(r.out.find("\033"), std::string::npos);
  // progress counts the commands, redraws over itself, and is cleared before the summary
  EXPECT_NE(r.terminal.find("\r\033[Krunning " + script.string() + ": "), std::string::npos) << r.terminal;
  EXPECT_NE(r.terminal.find(" commands"), std::string::npos) << r.terminal;
  const std::string summary = "odbattr: 50002 commands, 1 failure, saved " + db.string() + "\r\n";
  ASSERT_GE(r.terminal.size(), summary.size()) << r.terminal;
  EXPECT_EQ(r.terminal.substr(r.terminal.size() - summary.size()), summary) << r.terminal;
  EXPECT_EQ(r.terminal.substr(r.terminal.size() - summary.size() - 4, 4), "\r\033[K");
  EXPECT_TRUE(fs::exists(db));
}

TEST_F(Terminal, ShortWorkShowsOnlyTheSummary) {
  const fs::path script = dir / "short.jsonl";
  std::ofstream(script) << R"({"op":"create","path":["M"]})" << '\n';
  // the tool's own delay of a second: nothing of progress for work this short
  const TerminalOutcome r = RunOnTerminal({"run", script.string()}, "", dir / "out");
  EXPECT_EQ(r.code, 0);
  EXPECT_EQ(r.terminal, "odbattr: 1 command, 0 failures, nothing saved\r\n");
  EXPECT_EQ(r.out, "{\"line\":1,\"ok\":true,\"result\":null}\n");
}

TEST_F(Terminal, NothingExtraWhenStandardErrorIsNotATerminal) {
  const fs::path script = dir / "long.jsonl", db = dir / "model.db";
  WriteTerminalScript(script, 500);
  const std::string cmd = "ODBATTR_PROGRESS_DELAY_MS=0 '" + std::string(ODBATTR_EXE) + "' run --db '" + db.string() +
                          "' '" + script.string() + "' > '" + (dir / "out").string() + "' 2> '" +
                          (dir / "err").string() + "'";
  const int status = std::system(cmd.c_str());
  EXPECT_EQ(WEXITSTATUS(status), 1);
  EXPECT_EQ(TerminalSlurp(dir / "err"), "");
  EXPECT_EQ(TerminalCountLines(TerminalSlurp(dir / "out")), 502u);
}

// check, upgrade and example show what they are doing too, and leave the line clean.
TEST_F(Terminal, CheckUpgradeAndExampleShowProgress) {
  const fs::path script = dir / "long.jsonl", db = dir / "model.db";
  WriteTerminalScript(script, 2000);
  ASSERT_EQ(RunOnTerminal({"run", "--db", db.string(), script.string()}, "", dir / "out").code, 1);
  // Each stage draws once its delay has passed; a stage that ends first draws nothing, so each
  // tool must show at least one of its stages (with or without a count yet: a first draw can come
  // before the first count on a fast machine).
  struct Case {
    std::vector<std::string> args;
    std::vector<std::string> stages;
    int code;
  };
  const fs::path example = dir / "example.db";
  const Case cases[] = {
      {{"check", db.string()}, {"opening " + db.string(), "checking " + db.string()}, 0},
      {{"upgrade", db.string(), (dir / "up.db").string()}, {"upgrading " + db.string()}, 0},
      {{"example", "--db", example.string()},
       {"running ", "saving " + example.string(), "checking " + example.string()}, 0},
  };
  for (const auto& c : cases) {
    const TerminalOutcome r = RunOnTerminal(c.args, "0", dir / "out");
    EXPECT_EQ(r.code, c.code) << c.args[0] << r.terminal;
    bool shown = false;
    for (const auto& stage : c.stages) shown = shown || r.terminal.find("\r\033[K" + stage) != std::string::npos;
    EXPECT_TRUE(shown) << c.args[0] << ": " << r.terminal;
    EXPECT_EQ(r.out.find("\033"), std::string::npos) << c.args[0];
    // no summary line for these: what they report is on standard output
    EXPECT_EQ(r.terminal.find("odbattr: "), std::string::npos) << c.args[0] << ": " << r.terminal;
    ASSERT_GE(r.terminal.size(), 4u) << c.args[0];
    EXPECT_EQ(r.terminal.substr(r.terminal.size() - 4), "\r\033[K") << c.args[0];
  }
}

}  // namespace

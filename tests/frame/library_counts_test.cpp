// The library's counters and the caller's tally under every sequence of entry point calls.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/QMXOdbAttrEO2.h"
#include "platform/base/bas_StartJournal.h"
#include "tests/frame/frame_units.h"

namespace {
enum class Op { Init, Fini, SpecificInit, SpecificFini };

const char* Name(Op op) {
  switch (op) {
    case Op::Init: return "initialize";
    case Op::Fini: return "finalize";
    case Op::SpecificInit: return "specific_initialize";
    case Op::SpecificFini: return "specific_finalize";
  }
  return "?";
}

enum class Effect { Nothing, StartsAll, StopsAll };

struct Step {
  Op op;
  int libraryCount;
  int specificCount;
  int tally;
  Effect effect;
};

struct Scenario {
  const char* name;
  std::vector<Step> steps;  // from a stopped library back to a stopped one
};

void Apply(Op op, int& tally) {
  switch (op) {
    case Op::Init: QMXOdbAttrEO2_initialize(tally); break;
    case Op::Fini: QMXOdbAttrEO2_finalize(tally); break;
    case Op::SpecificInit: QMXOdbAttrEO2_specific_initialize(tally); break;
    case Op::SpecificFini: QMXOdbAttrEO2_specific_finalize(tally); break;
  }
}

int UnitsRunning() {
  int running = 0;
  for (const auto& u : frame_AllUnits()) running += u.count() > 0 ? 1 : 0;
  return running;
}

constexpr int F = kFullTally;  // 25: library, nine framework libraries, fourteen modules, specific

const std::vector<Scenario> kScenarios = {
    {"first start without a specific user adds two for the library",
     {{Op::Init, 1, 1, F, Effect::StartsAll}, {Op::Fini, 0, 0, 0, Effect::StopsAll}}},
    {"first start with a specific user adds one for the library",
     {{Op::SpecificInit, 0, 1, 1, Effect::Nothing},
      {Op::Init, 1, 2, F, Effect::StartsAll},
      {Op::Fini, 0, 1, 1, Effect::StopsAll},
      {Op::SpecificFini, 0, 0, 0, Effect::Nothing}}},
    {"nested starts change only the library count",
     {{Op::Init, 1, 1, F, Effect::StartsAll},
      {Op::Init, 2, 1, F, Effect::Nothing},
      {Op::Init, 3, 1, F, Effect::Nothing},
      {Op::Fini, 2, 1, F, Effect::Nothing},
      {Op::Fini, 1, 1, F, Effect::Nothing},
      {Op::Fini, 0, 0, 0, Effect::StopsAll}}},
    {"finalize without initialize goes negative and starts nothing until back at zero",
     {{Op::Fini, -1, 0, 0, Effect::Nothing},
      {Op::Fini, -2, 0, 0, Effect::Nothing},
      {Op::Init, -1, 0, 0, Effect::Nothing},
      {Op::Init, 0, 0, 0, Effect::Nothing},
      {Op::Init, 1, 1, F, Effect::StartsAll},
      {Op::Fini, 0, 0, 0, Effect::StopsAll}}},
    {"specific_finalize below zero takes nothing from the tally",
     {{Op::SpecificFini, 0, -1, 0, Effect::Nothing},
      {Op::SpecificFini, 0, -2, 0, Effect::Nothing},
      {Op::SpecificInit, 0, -1, 0, Effect::Nothing},
      {Op::SpecificInit, 0, 0, 0, Effect::Nothing},
      {Op::SpecificInit, 0, 1, 1, Effect::Nothing},
      {Op::SpecificInit, 0, 2, 1, Effect::Nothing},
      {Op::SpecificFini, 0, 1, 1, Effect::Nothing},
      {Op::SpecificFini, 0, 0, 0, Effect::Nothing}}},
    {"a start over a negative specific count adds nothing for it, nor does its stop take",
     {{Op::SpecificFini, 0, -1, 0, Effect::Nothing},
      {Op::Init, 1, 0, F - 1, Effect::StartsAll},
      {Op::Fini, 0, -1, 0, Effect::StopsAll},
      {Op::SpecificInit, 0, 0, 0, Effect::Nothing}}},
    {"the last stop releases the specific user the start took, even if another came between",
     {{Op::Init, 1, 1, F, Effect::StartsAll},
      {Op::SpecificInit, 1, 2, F, Effect::Nothing},
      {Op::Fini, 0, 1, 1, Effect::StopsAll},
      {Op::SpecificFini, 0, 0, 0, Effect::Nothing}}},
};
}  // namespace

TEST_F(frame_StoppedLibrary, CountersAndTallyFollowEachCall) {
  for (const Scenario& sc : kScenarios) {
    SCOPED_TRACE(sc.name);
    int tally = 0;
    int stepNo = 0;
    for (const Step& s : sc.steps) {
      SCOPED_TRACE(std::to_string(++stepNo) + ": " + Name(s.op));
      std::size_t mark = bas_StartJournal::Mark();
      Apply(s.op, tally);
      EXPECT_EQ(QMXOdbAttrEO2_libraryCount(), s.libraryCount);
      EXPECT_EQ(QMXOdbAttrEO2_specificCount(), s.specificCount);
      EXPECT_EQ(tally, s.tally);
      std::vector<std::string> seen = frame_StartsAndStops(mark);
      switch (s.effect) {
        case Effect::Nothing:
          EXPECT_EQ(seen, std::vector<std::string>{});
          break;
        case Effect::StartsAll:
          EXPECT_EQ(seen.size(), 24u);
          EXPECT_EQ(UnitsRunning(), 23);
          break;
        case Effect::StopsAll:
          EXPECT_EQ(seen.size(), 24u);
          EXPECT_EQ(UnitsRunning(), 0);
          break;
      }
    }
  }
}

// The same calls on two tallies: each first start or last stop counts on the tally it was given.
TEST_F(frame_StoppedLibrary, EachCallCountsOnTheTallyItIsGiven) {
  int host = 0;
  int plugin = 0;
  QMXOdbAttrEO2_initialize(host);
  QMXOdbAttrEO2_initialize(plugin);
  QMXOdbAttrEO2_specific_initialize(plugin);
  EXPECT_EQ(host, F);
  EXPECT_EQ(plugin, 0);
  QMXOdbAttrEO2_finalize(host);
  QMXOdbAttrEO2_specific_finalize(host);
  EXPECT_EQ(host, F);
  QMXOdbAttrEO2_finalize(plugin);
  EXPECT_EQ(plugin, -F);
  EXPECT_EQ(QMXOdbAttrEO2_specificCount(), 0);
}

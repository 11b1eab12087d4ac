// BM_HistoryMemory: what the command history costs in memory. A model of N objects is built, handed
// to a command session, and 1,000 commands each change one member of a different control; every
// command keeps an entry the session can undo. Counters:
//   model_bytes    heap in use for the model
//   history_bytes  heap the 1,000 commands added (history entries and the changed objects)
//   ratio          history_bytes / model_bytes: copies share what did not change, so this grows
//                  with the changes, not with the model
// Heap in use is glibc's count of allocated bytes (mallinfo2), taken after each phase.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <nlohmann/json.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/bnhT_Model.h"
#include "command/cmd_Session.h"

namespace {

std::size_t HistoryBenchHeapInUse() { return mallinfo2().uordblks; }

void BM_HistoryMemory(benchmark::State& state) {
  const std::int64_t n = state.range(0);
  constexpr int kChanges = 1000;
  for (auto _ : state) {
    const std::size_t before = HistoryBenchHeapInUse();
    cmd_Session session(std::move(*bnhT::BuildDatabase(n)));
    const std::size_t built = HistoryBenchHeapInUse();
    for (int i = 0; i < kChanges; ++i) {
      const std::int64_t control = (static_cast<std::int64_t>(i) * 7919) % bnhT::Controls(n);
      const std::string line = R"({"op":"set","path":["Model-1","adaptiveMeshControls","C-)" +
                               std::to_string(control) + R"("],"values":{"initialFeatureAngle":)" +
                               std::to_string(1 + i % 170) + ".5}}";
      const cmd_Json answer = session.ExecuteLine(line);
      if (!answer.value("ok", false)) {
        std::fprintf(stderr, "history: %s -> %s\n", line.c_str(), answer.dump().c_str());
        std::abort();
      }
    }
    const std::size_t changed = HistoryBenchHeapInUse();
    if (session.UndoDepth() != static_cast<std::size_t>(kChanges)) {
      std::fprintf(stderr, "history: %zu entries for %d commands\n", session.UndoDepth(), kChanges);
      std::abort();
    }
    state.counters["model_bytes"] = static_cast<double>(built - before);
    state.counters["history_bytes"] = static_cast<double>(changed - built);
    state.counters["ratio"] = static_cast<double>(changed - built) / static_cast<double>(built - before);
  }
}

}  // namespace

BENCHMARK(BM_HistoryMemory)->Arg(100000)->Iterations(1)->Unit(benchmark::kMillisecond);

// BM_Advice: the model advice over a model of N objects against the validation of the same model,
// in the same iteration (counter "ratio": advice time over validation time; the target is at most
// 3). The model is what an analyst's model holds most of: materials with elastic, plastic, density
// and expansion behaviours (five objects each, every option slot of a material walked) and, one
// object in ten, tabular amplitudes. It is built once per size through the command layer.
#include <benchmark/benchmark.h>

#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>

#include "command/cmd_Advice.h"
#include "command/cmd_Check.h"
#include "command/cmd_Session.h"

namespace {

using AdviceBenchClock = std::chrono::steady_clock;

double AdviceBenchSeconds(AdviceBenchClock::time_point a, AdviceBenchClock::time_point b) {
  return std::chrono::duration<double>(b - a).count();
}

void AdviceBenchRun(cmd_Session& session, const std::string& line) {
  const cmd_Json answer = session.ExecuteLine(line);
  if (!answer.value("ok", false)) {
    std::fprintf(stderr, "advice bench: %s -> %s\n", line.c_str(), answer.dump().c_str());
    std::abort();
  }
}

// Amplitudes are a tenth of the objects; the rest are materials of five objects each. Values vary
// so that no two objects are equal, and every object is plausible: the advice finds nothing.
std::unique_ptr<cmd_Session> AdviceBenchModel(std::int64_t n) {
  auto session = std::make_unique<cmd_Session>(ddr_Database());
  AdviceBenchRun(*session, R"({"op":"begin"})");
  AdviceBenchRun(*session, R"({"op":"create","path":["Model-1"],"type":"Model"})");
  const std::int64_t amplitudes = n / 10;
  const std::int64_t materials = (n - amplitudes) / 5;
  for (std::int64_t i = 0; i < materials; ++i) {
    const std::string path = R"(["Model-1","materials","M-)" + std::to_string(i) + R"(")";
    const std::string e = std::to_string(150000 + i % 60000);
    AdviceBenchRun(*session, R"({"op":"create","path":)" + path + R"(],"type":"Material"})");
    AdviceBenchRun(*session, R"({"op":"set","path":)" + path + R"(,"elastic"],"type":"Elastic","values":{"table":[[)" +
                                 e + ",0.3]]}}");
    AdviceBenchRun(*session, R"({"op":"set","path":)" + path +
                                 R"(,"plastic"],"type":"Plastic","values":{"table":[[250,0],[300,0.02],[)" +
                                 std::to_string(320 + i % 100) + ",0.1]]}}");
    AdviceBenchRun(*session, R"({"op":"set","path":)" + path + R"(,"density"],"type":"Density","values":{"table":[[7.8e-9]]}})");
    AdviceBenchRun(*session, R"({"op":"set","path":)" + path +
                                 R"(,"expansion"],"type":"Expansion","values":{"table":[[1.2e-5]]}})");
  }
  for (std::int64_t i = 0; i < amplitudes; ++i)
    AdviceBenchRun(*session, R"({"op":"create","path":["Model-1","amplitudes","A-)" + std::to_string(i) +
                                 R"("],"type":"TabularAmplitude","values":{"data":[[0,0],[0.5,0.8],[1,)" +
                                 std::to_string(1 + i % 7) + "]]}}");
  AdviceBenchRun(*session, R"({"op":"commit"})");
  return session;
}

const ddr_Database& AdviceBenchDatabase(std::int64_t n) {
  static std::map<std::int64_t, std::unique_ptr<cmd_Session>> built;
  auto& s = built[n];
  if (!s) s = AdviceBenchModel(n);
  return s->Database();
}

void BM_Advice(benchmark::State& state) {
  const ddr_Database& db = AdviceBenchDatabase(state.range(0));
  double advice = 0, validation = 0;
  for (auto _ : state) {
    const auto t0 = AdviceBenchClock::now();
    cmd_Adviser adviser;
    adviser.AdviseDatabase(db);
    const auto t1 = AdviceBenchClock::now();
    cmd_Checker checker;
    checker.CheckDatabase(db);
    const auto t2 = AdviceBenchClock::now();
    if (!adviser.Warnings().empty() || !checker.Failures().empty()) {
      std::fprintf(stderr, "advice bench: %zu warnings, %zu failures on a clean model\n", adviser.Warnings().size(),
                   checker.Failures().size());
      std::abort();
    }
    advice += AdviceBenchSeconds(t0, t1);
    validation += AdviceBenchSeconds(t1, t2);
    state.SetIterationTime(AdviceBenchSeconds(t0, t1));
    state.counters["objects_advised"] = static_cast<double>(adviser.Visited());
  }
  state.counters["ratio"] = advice / validation;
}

}  // namespace

BENCHMARK(BM_Advice)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

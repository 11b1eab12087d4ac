#include "kam/kamC_Advice.h"

#include <charconv>
#include <string>

#include "command/cmd_Advice.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_Tabular.h"

namespace {

// The shortest text that reads back as the same number (7.8e-09, 0.05, 210000).
std::string kamAdvice_Number(double v) {
  char buf[32];
  const auto r = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, r.ptr);
}

// A time table (time, amplitude): over the step it should start at the step's start, and a time
// given twice makes the amplitude jump there, which is seldom meant.
void kamAdvice_TimeTable(const kamC_Amplitude& a, const cow_2DArray<double>& t, cmd_AdviceContext& ctx) {
  if (t.Rows() == 0 || t.Columns() == 0) return;
  if (a.GetTimeSpan() == kamC_Amplitude::TimeSpanEnm::STEP && t(0, 0) != 0.0)
    ctx.Warn("data", "amplitude-start-time",
             "The first time is " + kamAdvice_Number(t(0, 0)) +
                 "; expected 0, the start of the step, since the amplitude is given in step time");
  for (std::size_t r = 1; r < t.Rows(); ++r) {
    if (t(r, 0) != t(r - 1, 0)) continue;
    ctx.Warn("data", "table-duplicate-key",
             "Rows " + std::to_string(r) + " and " + std::to_string(r + 1) + " both give the time " +
                 kamAdvice_Number(t(r, 0)) + ", so the amplitude jumps there; expected each time once");
    return;
  }
}

void kamAdvice_Tabular(const kamC_Tabular& a, cmd_AdviceContext& ctx) { kamAdvice_TimeTable(a, a.GetData(), ctx); }
void kamAdvice_SmoothStep(const kamC_SmoothStep& a, cmd_AdviceContext& ctx) { kamAdvice_TimeTable(a, a.GetData(), ctx); }

}  // namespace

void kamC_RegisterAdvice() {
  cmd_RegisterAdvisorOf<kamC_Tabular, kamAdvice_Tabular>("kam");
  cmd_RegisterAdvisorOf<kamC_SmoothStep, kamAdvice_SmoothStep>("kam");
  cmd_RegisterReference("kam", "kamC_SpectrumAmplitude", "amplitude", "amplitudes");
}

void kamC_UnregisterAdvice() { cmd_UnregisterAdvisors("kam"); }

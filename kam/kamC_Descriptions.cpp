#include "kam/kamC_Descriptions.h"

#include "kam/kamC_assert.h"

// What the classes of the module and their members mean, by scripting name.
namespace {
constexpr cls_MemberDescription kKamDescAmplitude[] = {
    {"timeSpan", "Whether times count from the step's start or from the analysis' start"},
};
constexpr cls_MemberDescription kKamDescBaselineCorrection[] = {
    {"intervals", "End times of the correction intervals (list of times)"},
};
constexpr int kKamCodesBaselineCorrection[] = {19};
constexpr cls_MemberDescription kKamDescCorrelationComponent[] = {
    {"approach", "How the correlation of the component is given"},
    {"dataList", "The correlation data (list of values)"},
};
constexpr int kKamCodesCorrelationComponent[] = {28, 29, 26, 30, 31};
constexpr cls_MemberDescription kKamDescDecay[] = {
    {"initial", "Constant amplitude A0 that the decay adds to"},
    {"maximum", "Amplitude A of the decaying term"},
    {"start", "Time t0 at which the decay starts"},
    {"decayTime", "Decay time td (above 0): A0 + A exp(-(t - t0) / td)"},
};
constexpr int kKamCodesDecay[] = {8, 1};
constexpr cls_MemberDescription kKamDescEquallySpaced[] = {
    {"fixedInterval", "Time between two successive values (above 0)"},
    {"begin", "Time of the first value"},
    {"smooth", "Smoothing of the transitions (0 to 0.5), or \"SOLVER_DEFAULT\""},
    {"data", "The amplitude values, one per interval (list)"},
    {"baselineCorrection", "Baseline correction of the acceleration (optional)"},
};
constexpr int kKamCodesEquallySpaced[] = {2, 9, 12};
constexpr cls_MemberDescription kKamDescModulated[] = {
    {"initial", "Constant amplitude A0"},
    {"magnitude", "Amplitude A of the modulated term"},
    {"start", "Time t0 at which the modulation starts"},
    {"frequency1", "Circular frequency w1 of the first sine (radians per time)"},
    {"frequency2", "Circular frequency w2 of the second sine (radians per time)"},
};
constexpr int kKamCodesModulated[] = {8, 6, 7};
constexpr cls_MemberDescription kKamDescPeriodic[] = {
    {"frequency", "Circular frequency w (radians per time)"},
    {"start", "Time t0 at which the series starts"},
    {"a_0", "Constant term a_0 of the series"},
    {"data", "The Fourier coefficients (table: A, B; one row per term)"},
};
constexpr int kKamCodesPeriodic[] = {22, 11};
constexpr cls_MemberDescription kKamDescPsdDefinition[] = {
    {"unitType", "Whether the density is of a base motion, of a force, or in decibels"},
    {"referencePower", "Reference power of decibel values (at least 0)"},
    {"referenceGravityAcceleration",
     "Acceleration of gravity that acceleration densities given in g are scaled "
     "by (at least 0)"},
    {"userSubroutine", "Whether a user subroutine gives the density (then the table is empty)"},
    {"dbReference", "Reference value of decibel data"},
    {"data", "The density (table: frequency, real, imaginary)"},
};
constexpr int kKamCodesPsdDefinition[] = {13, 14, 23, 24, 15, 25};
constexpr cls_MemberDescription kKamDescSmoothStep[] = {
    {"data",
     "Points the amplitude steps between, times not decreasing (table: time, amplitude; at least "
     "two "
     "rows)"},
};
constexpr int kKamCodesSmoothStep[] = {11, 12, 0};
constexpr cls_MemberDescription kKamDescSolutionDependent[] = {
    {"initial", "Amplitude at the start (from minimum to maximum)"},
    {"minimum", "Smallest amplitude the solution may drive it to (at most initial)"},
    {"maximum", "Largest amplitude the solution may drive it to (at least initial)"},
};
constexpr int kKamCodesSolutionDependent[] = {21, 20};
constexpr cls_MemberDescription kKamDescSpectrum[] = {
    {"spectrumType", "Whether the spectrum is of displacement, velocity or acceleration"},
    {"gravity", "Acceleration of gravity (at least 0)"},
    {"data", "The spectrum (table: value, frequency, damping)"},
};
constexpr int kKamCodesSpectrum[] = {13, 15};
constexpr cls_MemberDescription kKamDescSpectrumAmplitude[] = {
    {"method", "Whether the spectrum is given by a table or calculated from an event amplitude"},
    {"specificationUnits",
     "Quantity the spectrum gives: displacement, velocity, acceleration or acceleration in "
     "multiples of gravity"},
    {"eventUnits",
     "Quantity the event amplitude gives: displacement, velocity, acceleration or acceleration in "
     "multiples of gravity"},
    {"solution",
     "Whether the calculated response is the absolute value or the value relative to the base"},
    {"timeIncrement", "Time increment at which the event amplitude is integrated (CALCULATE)"},
    {"gravity", "Acceleration of gravity that values in multiples of gravity are scaled by"},
    {"criticalDamping", "Critical damping ratio of the calculation"},
    {"data", "The spectrum, when it is given by a table (DEFINE)"},
    {"amplitude", "Name of the event amplitude the spectrum is calculated from (CALCULATE)"},
};
constexpr cls_MemberDescription kKamDescTabular[] = {
    {"smooth", "Smoothing of the transitions (0 to 0.5), or \"SOLVER_DEFAULT\""},
    {"data",
     "Amplitude at each time, times not decreasing (table: time, amplitude; at least two rows)"},
    {"baselineCorrection", "Baseline correction of the acceleration (optional)"},
};
constexpr int kKamCodesTabular[] = {2, 11, 12, 0};
constexpr cls_MemberDescription kKamDescUserAmplitude[] = {
    {"numVariables", "Number of solution variables the user subroutine keeps"},
};
constexpr cls_ClassDescription kKamDescriptions[] = {
    {"kamC_ActuatorAmplitude",
     "An amplitude whose values a co-simulated actuator supplies; it has no members of its own.",
     {},
     "kamC_Amplitude"},
    {"kamC_Amplitude",
     "An amplitude: a named function of time (or frequency) that scales loads and boundary "
     "conditions.",
     kKamDescAmplitude},
    {"kamC_BaselineCorrection",
     "A baseline correction of a tabular or equally spaced amplitude: the end times of the "
     "correction intervals, ascending from zero on.",
     kKamDescBaselineCorrection, nullptr, kKamCodesBaselineCorrection},
    {"kamC_CorrelationComponent",
     "The correlation of one component of a random excitation: how its sources correlate, with "
     "the data that the approach takes.",
     kKamDescCorrelationComponent, nullptr, kKamCodesCorrelationComponent},
    {"kamC_Decay",
     "An exponential decay: initial + maximum exp(-(t - start) / decayTime) from the start on.",
     kKamDescDecay, "kamC_Amplitude", kKamCodesDecay},
    {"kamC_EquallySpaced",
     "An amplitude given as values at a fixed time interval from a start time, optionally "
     "smoothed and baseline corrected.",
     kKamDescEquallySpaced, "kamC_Amplitude", kKamCodesEquallySpaced},
    {"kamC_Modulated",
     "A modulated sine: initial + magnitude sin(frequency1 (t - start)) sin(frequency2 (t - "
     "start)).",
     kKamDescModulated, "kamC_Amplitude", kKamCodesModulated},
    {"kamC_Periodic",
     "A Fourier series in time: a_0 plus, per row of the table, A cos(n w (t - start)) + B sin(n "
     "w (t - start)), with w the circular frequency.",
     kKamDescPeriodic, "kamC_Amplitude", kKamCodesPeriodic},
    {"kamC_PsdDefinition",
     "A power spectral density definition: (frequency, real, imaginary) rows of a base motion or "
     "a force, or (band number, decibels, ...) rows in decibels against a reference, or a user "
     "subroutine.",
     kKamDescPsdDefinition, "kamC_Amplitude", kKamCodesPsdDefinition},
    {"kamC_SmoothStep",
     "An amplitude that ramps between (time, amplitude) points with a smooth step, so that its "
     "first and second derivatives vanish at every point.",
     kKamDescSmoothStep, "kamC_Amplitude", kKamCodesSmoothStep},
    {"kamC_SolutionDependent",
     "An amplitude that the solution drives between a minimum and a maximum, starting from "
     "initial.",
     kKamDescSolutionDependent, "kamC_Amplitude", kKamCodesSolutionDependent},
    {"kamC_Spectrum",
     "A response spectrum table: (value, frequency, damping) rows of a displacement, "
     "velocity or acceleration spectrum, with the gravity that scales it.",
     kKamDescSpectrum, "kamC_Amplitude", kKamCodesSpectrum},
    {"kamC_SpectrumAmplitude",
     "A response spectrum defined by a table or calculated from an event "
     "amplitude.",
     kKamDescSpectrumAmplitude, "kamC_Amplitude"},
    {"kamC_Tabular",
     "An amplitude given as a table of (time, amplitude) pairs, optionally smoothed and baseline "
     "corrected.",
     kKamDescTabular, "kamC_Amplitude", kKamCodesTabular},
    {"kamC_UserAmplitude",
     "An amplitude computed by a user subroutine with a number of solution-dependent variables.",
     kKamDescUserAmplitude, "kamC_Amplitude"},
};
}  // namespace

std::span<const cls_ClassDescription> kamC_DescriptionsTable() {
  return kKamDescriptions;
}

void kamC_RegisterDescriptions() {
  const cls_ErrorMessageFn messages = [](int code) {
    return kamC_ErrorMessage(static_cast<kamC_ErrorEnm>(code));
  };
  cls_RegisterDescriptions("kam", kamC_DescriptionsTable(), messages);
}
void kamC_UnregisterDescriptions() {
  cls_UnregisterDescriptions("kam");
}

#pragma once
// The smoothing of a tabular or equally spaced amplitude: a fraction of the interval, or the
// literal of the class's SmoothEnm ("SOLVER_DEFAULT"), which is held as the unspecified double.
// Stored as a plain double.
#include "kam/kamC_Amplitude.h"

template <class E>
struct kamC_Smoothing {
  double value = kamC_kUnspecified;
  bool IsSpecified() const { return value != kamC_kUnspecified; }
};

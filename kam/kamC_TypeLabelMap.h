#pragma once
// Display labels of the amplitude kinds ("Tabular", "Smooth Step", ...): a process-wide read-only
// map built on first use and released when the module stops.
class kamC_TypeLabelMap {
 public:
  // The label of the amplitude class with this type id; empty for a kind without one.
  static const char* Label(unsigned typeId);
  static void Release();
};

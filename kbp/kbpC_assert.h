#pragma once
// Validation of the beam profile module: one fixed message per code.

enum kbpC_ErrorEnm : int {
  kbpC_AreaNotPositive = 0,
  kbpC_I11NotPositive = 1,
  kbpC_I12NotZeroWithZeroI22 = 2,
  kbpC_I22Negative = 3,
  kbpC_UnknownProfileType = 4,
  kbpC_JNegative = 5,
  kbpC_I12OutOfRange = 6,
  kbpC_HeightNotPositive = 7,
  kbpC_WidthNotPositive = 8,
  kbpC_RadiusNotPositive = 9,
  kbpC_ThicknessNotPositive = 10,
  kbpC_ThicknessesNotPositive = 11,
  kbpC_ConnectedSegmentsWithoutThickness = 12,
  kbpC_T1PlusT3NotBelowWidth = 13,
  kbpC_T2PlusT4NotBelowHeight = 14,
  kbpC_ThicknessNotBelowHalfWidth = 15,
  kbpC_ThicknessNotBelowHalfHeight = 16,
  kbpC_ThicknessNotBelowRadius = 17,
  kbpC_WebThicknessNotPositive = 18,
  kbpC_NoFlangeWidth = 19,
  kbpC_ThicknessOneNotPositive = 20,
  kbpC_ThicknessTwoNotPositive = 21,
  kbpC_ThicknessNotBelowHexagonLimit = 22,
  kbpC_DimensionANotPositive = 23,
  kbpC_DimensionBNotPositive = 24,
  kbpC_DimensionCNotPositive = 25,
  kbpC_DimensionHNotPositive = 26,
  kbpC_ThicknessTNotPositive = 27,
  kbpC_ThicknessT1NotPositive = 28,
  kbpC_ThicknessT2NotPositive = 29,
  kbpC_ThicknessTfNotPositive = 30,
  kbpC_ThicknessTwNotPositive = 31,
  kbpC_T1NotBelowB = 32,
  kbpC_T1NotBelowH = 33,
  kbpC_T2NotBelowA = 34,
  kbpC_T2NotBelowB = 35,
  kbpC_TfNotBelowH = 36,
  kbpC_TwNotBelowB = 37,
  kbpC_PointsNotSegmentsPlusOne = 38,
  kbpC_T3NotBelowFlanges = 39,
  kbpC_T1PlusT2NotBelowHeight = 40,
  kbpC_T3NotBelowHalfB1 = 41,
};

// Where validation failures of the module say they come from.
inline constexpr const char* kbpC_kAssertFile = "QMXOdbKbpC.m/src/kbpC_assert";
inline constexpr int kbpC_kAssertLine = 64;

// The fixed sentence of a code; empty for a code outside the table.
const char* kbpC_ErrorMessage(kbpC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kbpC_Assert(bool ok, kbpC_ErrorEnm code);

#pragma once
// Validation of the amplitude module: one fixed message per code.

enum kamC_ErrorEnm : int {
  kamC_TimesNotIncreasing = 0,
  kamC_DecayTimeNotPositive = 1,
  kamC_SmoothingOutOfRange = 2,
  kamC_StartingTimeNotPositive = 3,
  kamC_FrequencyNotPositive = 4,
  kamC_CircularFrequencyNotPositive = 5,
  kamC_CircularFrequency1NotPositive = 6,
  kamC_CircularFrequency2NotPositive = 7,
  kamC_StartingTimeNegative = 8,
  kamC_FixedIntervalNotPositive = 9,
  kamC_UnknownDefinition = 10,
  kamC_TooManyColumns = 11,
  kamC_TooFewRows = 12,
  kamC_ReferenceGravityNegative = 13,
  kamC_ReferencePowerNegative = 14,
  kamC_NotThreeColumns = 15,
  kamC_ContainerEmpty = 16,
  kamC_UnknownAmplitudeCopy = 17,
  kamC_InvalidAmplitude = 18,
  kamC_InvalidBaselineCorrection = 19,
  kamC_InitialMinimumMaximumOrder = 20,
  kamC_InitialAboveMaximum = 21,
  kamC_NoFourierCoefficients = 22,
  kamC_UserSubroutineWithDb = 23,
  kamC_UserSubroutineWithData = 24,
  kamC_BandNumberOutOfRange = 25,
  kamC_MovingNoiseUnsupported = 26,
  kamC_PsdDefinitionRequired = 27,
  kamC_DataWithUser = 28,
  kamC_MovingNoiseDataTooLong = 29,
  kamC_NoDataValue = 30,
  kamC_CorrelatedDataTooLong = 31,
};

// Where validation failures of the module say they come from.
inline constexpr const char* kamC_kAssertFile = "QMXOdbKamC.m/src/kamC_assert";
inline constexpr int kamC_kAssertLine = 49;

// The fixed sentence of a code; empty for a code outside the table.
const char* kamC_ErrorMessage(kamC_ErrorEnm code);
// Throws nex_PrimException<atr_String, 1> with the code's message when ok is false.
void kamC_Assert(bool ok, kamC_ErrorEnm code);

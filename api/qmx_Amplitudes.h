#pragma once
/// \file
/// Amplitudes: tabular, periodic, smooth step, PSD definitions, spectra and the rest, with their baseline corrections.
/// Every class of the module that a host builds, reads or changes; reach the module's
/// repositories through qmx_Repositories.h.
#include "kam/kamC_ActuatorAmplitude.h"
#include "kam/kamC_Amplitude.h"
#include "kam/kamC_AmplitudeContainer.h"
#include "kam/kamC_BaselineCorrection.h"
#include "kam/kamC_CorrelationComponent.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_Smoothing.h"
#include "kam/kamC_SolutionDependent.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_TableChecks.h"
#include "kam/kamC_Tabular.h"
#include "kam/kamC_UserAmplitude.h"

#include "kam/kamC_assert.h"

#include <iterator>

#include "framework/fw_Assert.h"

namespace {
// Kept letter for letter, the line break of code 19 included.
constexpr const char* kMessages[] = {
    "Invalid time values, expected monotonically increasing numbers.",
    "Invalid decay time, expected a positive number.",
    "Invalid smoothing parameter, expected a value between 0.0 and 0.5.",
    "Invalid starting time, expected a positive number.",
    "Invalid frequency, expected a positive number.",
    "Invalid circular frequency, expected a positive number.",
    "Invalid circular frequency 1, expected a positive number.",
    "Invalid circular frequency 2, expected a positive number.",
    "Invalid starting time, expected a non-negative number.",
    "Invalid fixed interval, expected a positive number.",
    "Unknown definition.",
    "Number of columns must be less or equal to 2.",
    "The Time-Amplitude table should have at least two rows of data.",
    "Invalid reference gravity acceleration, expected a non-negative value.",
    "Invalid reference power value, expected non-negative number.",
    "Tabular data must have three columns.",
    "The amplitude container is empty.",
    "Unable to copy unknown amplitude.",
    "Invalid amplitude.",
    "Invalid baseline correction values, expected non-negative\nmonotonically increasing numbers.",
    "Invalid logical relation of initial, minimum and maximum amplitudes.",
    "Initial amplitude must be less or equal than maximum amplitude.",
    "At least one set of fourier coefficients must be specified for periodic amplitude.",
    "A user subroutine cannot be specified with DB.",
    "An empty data table is required for user subroutine.",
    "Frequency band numbers must be between 1 and 15 when using DB.",
    "Moving noise correlation is not yet supported.",
    "A PSD definition is required.",
    "The data parameter cannot be specified with USER.",
    "Data cannot have a length of more than 3 with MOVING_NOISE.",
    "At least one value must be specified with the data parameter.",
    "Data cannot have a length of more than 2 with CORRELATED and UNCORRELATED.",
};
static_assert(std::size(kMessages) == kamC_CorrelatedDataTooLong + 1, "one message per code");
}  // namespace

const char* kamC_ErrorMessage(kamC_ErrorEnm code) { return fw_MessageAt(kMessages, code); }

void kamC_Assert(bool ok, kamC_ErrorEnm code) {
  fw_ModuleAssert(ok, kamC_ErrorMessage(code), kamC_kAssertFile, kamC_kAssertLine);
}

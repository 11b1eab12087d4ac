#pragma once
// Display labels of the profile kinds.

// The label of the profile class with this type id ("Circular"); empty for a kind without one.
const char* kbpC_DisplayLabel(unsigned typeId);
// Releases the label map at module stop; the next look-up builds it again.
void kbpC_ReleaseDisplayLabels();

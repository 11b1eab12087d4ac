#include "kco/kcoC_Tie.h"

#include "framework/fw_PersistentClassImpl.h"

kcoC_Tie::kcoC_Tie(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// The tie's rules need the model (which regions are surfaces, which analyses are explicit); see
// kcoC_AssertInModel. On its own a tie is always acceptable.
void kcoC_Tie::AssertValid() const {}

template class fw_PersistentClass<kcoC_Tie, kcoC_Constraint>;

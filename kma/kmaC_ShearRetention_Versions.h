#pragma once
// The retired layouts of kmaC_ShearRetention: 203.
#include "kma/kmaC_ShearRetention.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 2002: adds type "RETENTION_FACTOR", the only kind a 203 file could hold.
void* kmaC_ShearRetention_Upgrade_203_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
class kmaC_ShearRetention_203
    : public kmaC_OldClassConversion<kmaC_ShearRetention, 203, 2002, &kmaC_ShearRetention_Upgrade_203_2002> {};

#pragma once
// The retired layouts of the anneal temperature (203, 307, 452): the table came first, the field
// dependencies at 307, the temperature dependency at 2002.
#include "kma/kmaC_AnnealTemperature.h"
#include "kma/kmaC_OldClassStep.h"

// 203 to 307: no field dependencies.
void* kmaC_AnnealTemperature_Upgrade_203_307(const dbc_Row& oldRow, dbc_Row& newRow, int arg);
// 452 to 2002: the anneal temperature does not depend on temperature.
void* kmaC_AnnealTemperature_Upgrade_452_2002(const dbc_Row& oldRow, dbc_Row& newRow, int arg);

class kmaC_AnnealTemperature_203
    : public kmaC_OldClassConversion<kmaC_AnnealTemperature, 203, 307, &kmaC_AnnealTemperature_Upgrade_203_307> {};
// Only the table's own layout changed at 452.
class kmaC_AnnealTemperature_307 : public kmaC_OldClassStep<kmaC_AnnealTemperature, 307, 452> {};
class kmaC_AnnealTemperature_452
    : public kmaC_OldClassConversion<kmaC_AnnealTemperature, 452, 2002, &kmaC_AnnealTemperature_Upgrade_452_2002> {};

#include "kfd/kfdC_DiscreteField.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kfd/kfdC_DiscreteFieldContainer.h"
#include "kfd/kfdC_assert.h"

kfdC_DiscreteField::kfdC_DiscreteField(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kfdC_DiscreteField::AssertValid() const {
  const std::size_t width = static_cast<std::size_t>(std::max<std::int32_t>(dataTable.GetDataWidth(), 0));
  kfdC_Assert(width >= 1, kfdC_InvalidWidth);
  kfdC_Assert(location == locationEnum::NODES || location == locationEnum::ELEMENTS, kfdC_UnsupportedLocation);
  if (fieldType == discreteFieldTypeEnum::PRESCRIBEDCONDITION_DOF) {
    // The width says whether the field acts on a degree of freedom; with another width the
    // defaults say which of the two it was meant to be.
    if (width == 2) {
      kfdC_Assert(defaultValues.size() == kDofCount, kfdC_DofDefaultsNotSix);
    } else if (width == 1) {
      kfdC_Assert(defaultValues.size() == 1, kfdC_NoDofDefaultsNotOne);
    } else {
      kfdC_Assert(defaultValues.size() != kDofCount, kfdC_DofWidthNotTwo);
      kfdC_Assert(false, kfdC_NoDofWidthNotOne);
    }
  } else {
    kfdC_Assert(width == (fieldType == discreteFieldTypeEnum::ORIENTATION ? 6u : 1u), kfdC_WidthDoesNotMatchType);
    kfdC_Assert(defaultValues.size() == width, kfdC_DefaultsDoNotMatchWidth);
  }
  kfdC_Assert(dataTable.GetData().size() % width == 0, kfdC_DataNotDivisibleByWidth);
  kfdC_Assert(dataTable.GetData().size() == width * dataTable.GetDomain().size(), kfdC_DataLengthMismatch);
  kfdC_Assert(!(fieldType == discreteFieldTypeEnum::ORIENTATION && partLevelOrientation && dataTable.HasInstanceInformation()),
              kfdC_PartLevelOrientationWithInstances);
}

kfdC_DiscreteField kfdC_DiscreteField::FromAnalytic(const cow_String& analyticalFieldName, locationEnum where) {
  kfdC_DiscreteField f;
  f.analyticFieldName = analyticalFieldName;
  f.location = where;
  return f;
}

void kfdC_DiscreteField::AssertPartLevelUse() const {
  kfdC_Assert(!dataTable.HasInstanceInformation(), kfdC_PartLevelWithInstances);
}

void kfdC_RefuseMissingDiscreteField(std::size_t) {
  kfdC_Assert(false, kfdC_NoSuchDiscreteField);
  nex_ThrowCmd("unreachable");  // kfdC_Assert(false, ...) always throws
}

const kfdC_DiscreteField& kfdC_GetDiscreteField(const kfdC_DiscreteFieldContainer& fields, const cow_String& name) {
  const kfdC_DiscreteField* f = fields.Fields().ConstGet(name);
  if (!f) fields.Fields().RefuseMissingKey(name);
  return *f;
}

template class fw_PersistentClass<kfdC_DiscreteField, kfdC_Field>;

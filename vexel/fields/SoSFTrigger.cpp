#include <vexel/fields/SoSFTrigger.h>

#include <vexel/fields/detail/FieldClass.h>

SO_FIELD_SOURCE(SoSFTrigger, SoSField)

void SoSFTrigger::copyFrom(const SoField& other)
{
    if (&other != this && other.getTypeId() == getTypeId())
        setValue();
}

bool SoSFTrigger::readValue(SoInput&)
{
    return true;
}

void SoSFTrigger::writeValue(SoOutput&) const {}

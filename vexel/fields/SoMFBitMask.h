#pragma once

#include <vexel/fields/SoMFEnum.h>

/** A list of sets of flags. */
class VEXEL_API SoMFBitMask : public SoMFEnum {
public:
    using SoMFEnum::SoMFEnum;
    ~SoMFBitMask() override { giveLastValue(); }
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    void write1Value(SoOutput& out, int index) const override;

protected:
    bool readElement(SoInput& in, int& value) const override;
};

#pragma once

#include <vexel/fields/SoSFEnum.h>

/** A set of flags. */
class VEXEL_API SoSFBitMask : public SoSFEnum {
public:
    using SoSFEnum::SoSFEnum;
    using SoSFEnum::operator=;
    ~SoSFBitMask() override { giveLastValue(); }
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
};

#pragma once

#include <vexel/fields/SoSField.h>

/** A field without a value; setting it is the event. */
class VEXEL_API SoSFTrigger : public SoSField {
public:
    SoSFTrigger() : SoSField(nullptr, nullptr) {}
    ~SoSFTrigger() override { giveLastValue(); }
    SoSFTrigger(SoFieldContainer* container, const char* name) : SoSField(container, name) {}
    static SoType getClassTypeId();
    SoType getTypeId() const override;

    void setValue() { valueChanged(); }

    bool isSame(const SoField& other) const override { return other.getTypeId() == getTypeId(); }
    void copyFrom(const SoField& other) override;
    bool readValue(SoInput& in) override;
    void writeValue(SoOutput& out) const override;
};

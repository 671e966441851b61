#pragma once

#include <vector>

#include <vexel/fields/SoFieldContainer.h>

class SoEngineOutput;

/**
 * An object that computes its outputs from its fields. The computation runs when a connected field asks for its value
 * and an input changed since.
 */
class VEXEL_API SoEngine : public SoFieldContainer {
    SO_CONTAINER_ABSTRACT(SoEngine, SoFieldContainer)
public:
    SoEngineOutput* getOutput(const SbName& name) const;
    const std::vector<SoEngineOutput*>& getOutputs() const { return m_outputs; }

    void notify(SoNotList& list) override;

protected:
    SoEngine() = default;
    ~SoEngine() override = default;

    /** Gives @p output's value to @p target, a field of the output's connection type. */
    virtual void evaluate(const SoEngineOutput& output, SoField& target) = 0;

private:
    friend class SoEngineOutput;

    std::vector<SoEngineOutput*> m_outputs;
};

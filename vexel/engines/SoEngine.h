#pragma once

#include <cstdint>
#include <vector>

#include <vexel/fields/SoFieldContainer.h>

class SoEngineOutput;
class SoField;

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

    /**
     * Called when a field of the engine changed, before listeners are told, and also while they are not told at all.
     * @param input  the field; null when anything may have changed
     * @return false when no output has another value because of it
     */
    virtual bool inputChanged(const SoField* input);
    /** Gives @p output's value to @p target, a field of the output's connection type. Writes nothing for no value. */
    virtual void evaluate(const SoEngineOutput& output, SoField& target) = 0;

private:
    friend class SoEngineOutput;

    std::vector<SoEngineOutput*> m_outputs;
    std::uint32_t m_toldOrigin = 0; ///< of the change that the outputs were told of and not asked for a value since
};

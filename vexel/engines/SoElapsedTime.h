#pragma once

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/fields/SoSFTrigger.h>

/** A stop watch: the seconds of timeIn that passed since the output was first asked for, or reset. */
class VEXEL_API SoElapsedTime : public SoEngine {
    SO_CONTAINER(SoElapsedTime, SoEngine)
public:
    /** The clock, in seconds. Connected to the global field "realTime" at first. */
    SoSFTime timeIn{this, "timeIn"};
    /** Factor for the time that passes; below 0 the watch runs backwards. */
    SoSFFloat speed{this, "speed", 1.0f};
    /** Stops the watch; it goes on from where it stood. */
    SoSFBool pause{this, "pause", false};
    /** A watch that is off stands still too, and its output is switched off: fields may be given other values. */
    SoSFBool on{this, "on", true};
    /** Puts the watch back to 0. */
    SoSFTrigger reset{this, "reset"};

    SoEngineOutput timeOut{this, "timeOut", SoSFTime::getClassTypeId()};

    SoElapsedTime();

    bool shouldWriteField(const SoField& field) const override;
    bool shouldWriteValue(const SoField& field) const override;

protected:
    ~SoElapsedTime() override = default;

    bool inputChanged(const SoField* input) override;
    void evaluate(const SoEngineOutput& output, SoField& target) override;

private:
    void advance();

    SbTime m_elapsed;
    SbTime m_last;
    const SoField* m_clock = nullptr; ///< that m_last is of: clocks may differ by years
    float m_speed = 1;                ///< what the time since m_last counts
    bool m_isStarted = false;
};

#pragma once

#include <extension/NscCommand.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/sensors/SoWeakPtr.h>

/** Gives a field another time. The history may outlive the field; then the command does nothing. */
class SetTimeCommand : public NscCommand {
public:
    SetTimeCommand(SoSFTime& field, SbTime time);

    bool execute() override;
    void undo() override;
    void redo() override;

private:
    SoWeakPtr<SoSFTime> m_field;
    SbTime m_before;
    bool m_wasDefault;
    SbTime m_after;
};

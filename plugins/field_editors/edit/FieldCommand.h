#pragma once

#include <extension/NscCommand.h>
#include <vexel/fields/SoField.h>
#include <vexel/sensors/SoWeakPtr.h>

#include <memory>

/** A copy of the value, with the marks that the field has besides. */
std::unique_ptr<SoField> copyOf(const SoField& field);

/**
 * An edit of one field. It can be made before it stands in the history, and take in further edits as long as the user
 * drags; nothing happens once the field is gone.
 */
class FieldCommand : public NscCommand {
public:
    explicit FieldCommand(SoField& field) : m_field(&field) {}

    /** Makes the edit now; execute() then has nothing left to do. */
    void make();
    /** Takes over the outcome of an edit that was made after this one, when the two can be undone as one. */
    virtual bool absorb(FieldCommand& next);

    bool execute() override;
    void undo() override;
    void redo() override;

protected:
    virtual void apply(SoField& field) = 0;
    virtual void revert(SoField& field) = 0;

private:
    SoWeakPtr<SoField> m_field;
    bool m_isMade = false;
};

#pragma once

#include <plugins/field_editors/edit/FieldCommand.h>
#include <vexel/base/SbName.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/fields/SoMField.h>

/** Gives a field another value, and the default mark that this has. */
class SetValueCommand : public FieldCommand {
public:
    SetValueCommand(SoField& field, std::unique_ptr<SoField> value);

    bool absorb(FieldCommand& next) override;

private:
    void apply(SoField& field) override;
    void revert(SoField& field) override;

    std::unique_ptr<SoField> m_before;
    std::unique_ptr<SoField> m_after;
};

/** Puts other values into a range of a list; only those of the range are kept for undo. */
class ReplaceValuesCommand : public FieldCommand {
public:
    /** @param values  of the list's type; any number of them, none to delete the range */
    ReplaceValuesCommand(SoMField& list, int start, int num, std::unique_ptr<SoMField> values);

    bool absorb(FieldCommand& next) override;

private:
    void apply(SoField& field) override;
    void revert(SoField& field) override;

    int m_start;
    bool m_wasDefault;
    std::unique_ptr<SoMField> m_before;
    std::unique_ptr<SoMField> m_after;
};

/** Switches a field's ignore mark. */
class SetIgnoredCommand : public FieldCommand {
public:
    SetIgnoredCommand(SoField& field, bool isIgnored) : FieldCommand(field), m_isIgnored(isIgnored) {}

private:
    void apply(SoField& field) override { field.setIgnored(m_isIgnored); }
    void revert(SoField& field) override { field.setIgnored(!m_isIgnored); }

    bool m_isIgnored;
};

/** Cuts what a field takes its value from; undo connects it again if the source is still there. */
class CutConnectionCommand : public FieldCommand {
public:
    explicit CutConnectionCommand(SoField& field);

private:
    void apply(SoField& field) override { field.disconnect(); }
    void revert(SoField& field) override;

    SoWeakPtr<SoField> m_sourceField;
    SoWeakPtr<SoEngine> m_sourceEngine;
    SbName m_output;
};

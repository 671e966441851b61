#include "FieldCommand.h"

#include <vexel/io/SoDBWriteLock.h>

std::unique_ptr<SoField> copyOf(const SoField& field)
{
    std::unique_ptr<SoField> copy(static_cast<SoField*>(field.getTypeId().createInstance()));
    copy->copyFrom(field);
    copy->setDefault(field.isDefault());
    return copy;
}

void FieldCommand::make()
{
    if (!m_isMade)
        redo();
    m_isMade = true;
}

bool FieldCommand::absorb(FieldCommand&)
{
    return false;
}

bool FieldCommand::execute()
{
    make();
    return m_field.get() != nullptr;
}

void FieldCommand::undo()
{
    const SoDBWriteLock lock;
    if (SoField* const field = m_field.get())
        revert(*field);
}

void FieldCommand::redo()
{
    const SoDBWriteLock lock;
    if (SoField* const field = m_field.get())
        apply(*field);
}

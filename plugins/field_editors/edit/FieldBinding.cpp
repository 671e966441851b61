#include "FieldBinding.h"
#include "FieldCommands.h"

#include <extension/NscServices.h>
#include <vexel/fields/SoFieldContainer.h>

#include <utility>

FieldBinding::FieldBinding(QObject* parent) : QObject(parent)
{
    m_update.setSingleShot(true);
    m_update.setInterval(0);
    connect(&m_update, &QTimer::timeout, this, &FieldBinding::valueChanged);
    m_sensor.setPriority(0); // the delay queue of a host may wait
    m_sensor.setData(this);
    m_sensor.setFunction([](void* binding, SoSensor*) {
        QTimer& update = static_cast<FieldBinding*>(binding)->m_update;
        if (!update.isActive())
            update.start();
    });
    m_sensor.setDeleteCallback([](void* binding, SoSensor*) { static_cast<FieldBinding*>(binding)->setField(nullptr); },
                               this);
}

FieldBinding::~FieldBinding() = default;

void FieldBinding::setField(SoField* field)
{
    endGesture();
    m_update.stop();
    if (field)
        m_sensor.attach(field);
    else
        m_sensor.detach();
    emit fieldChanged();
}

bool FieldBinding::isEditable() const
{
    return field() && field()->getFieldType() != SoField::OUTPUT_ONLY && !field()->isConnected() &&
           !field()->holdsReferences();
}

void FieldBinding::setValue(const SoField& value)
{
    if (isEditable() && !field()->isSame(value))
        add(std::make_unique<SetValueCommand>(*field(), copyOf(value)));
}

std::unique_ptr<SoField> FieldBinding::makeDefaultValue() const
{
    SoFieldContainer* const container = field() ? field()->getContainer() : nullptr;
    auto* const fresh = container ? static_cast<SoFieldContainer*>(container->getTypeId().createInstance()) : nullptr;
    if (!fresh)
        return nullptr;
    fresh->ref();
    const SoField* const its = fresh->getField(field()->getName());
    std::unique_ptr<SoField> value = its ? copyOf(*its) : nullptr;
    fresh->unref();
    return value;
}

bool FieldBinding::hasDefaultValue() const
{
    return makeDefaultValue() != nullptr;
}

void FieldBinding::resetValue()
{
    std::unique_ptr<SoField> value = isEditable() ? makeDefaultValue() : nullptr;
    if (value)
        add(std::make_unique<SetValueCommand>(*field(), std::move(value)));
}

void FieldBinding::replaceValues(int start, int num, std::unique_ptr<SoMField> values)
{
    if (isEditable())
        add(std::make_unique<ReplaceValuesCommand>(static_cast<SoMField&>(*field()), start, num, std::move(values)));
}

void FieldBinding::setIgnored(bool isIgnored)
{
    if (field() && field()->isIgnored() != isIgnored)
        add(std::make_unique<SetIgnoredCommand>(*field(), isIgnored));
}

void FieldBinding::cutConnection()
{
    if (field() && field()->isConnected())
        add(std::make_unique<CutConnectionCommand>(*field()));
}

void FieldBinding::add(std::unique_ptr<FieldCommand> command)
{
    command->make();
    if (!m_isInGesture) {
        push(std::move(command));
    } else if (!m_gesture || !m_gesture->absorb(*command)) {
        if (m_gesture)
            push(std::move(m_gesture));
        m_gesture = std::move(command);
    }
}

void FieldBinding::push(std::unique_ptr<FieldCommand> command)
{
    if (NscServices* const services = NscServices::getInstance())
        services->pushCommand(command.release());
}

void FieldBinding::beginGesture()
{
    endGesture();
    m_isInGesture = true;
}

void FieldBinding::endGesture()
{
    m_isInGesture = false;
    if (m_gesture)
        push(std::move(m_gesture));
}

void FieldBinding::cancelGesture()
{
    m_isInGesture = false;
    if (const std::unique_ptr<FieldCommand> command = std::move(m_gesture))
        command->undo();
}

#include "TimeEditor.h"

#include "SetTimeCommand.h"

#include <extension/NscServices.h>
#include <extension/NscShell.h>

#include <QDateTimeEdit>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <cmath>

namespace {

constexpr double Largest = 1e11; ///< seconds; some thousand years
constexpr double Milliseconds = 1e3;

} // namespace

TimeEditor::TimeEditor(const SbString& name)
    : NscFieldEditor({name}), m_widget(new QWidget), m_seconds(new QDoubleSpinBox), m_date(new QDateTimeEdit)
{
    m_seconds->setRange(-Largest, Largest);
    m_seconds->setDecimals(6);
    m_seconds->setKeyboardTracking(false); // one command for a number, not for each digit
    m_date->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    m_date->setTimeSpec(Qt::UTC);
    m_date->setKeyboardTracking(false);
    auto* const rows = new QFormLayout(m_widget.get());
    rows->addRow(tr("&Seconds:"), m_seconds);
    rows->addRow(tr("&Date (UTC):"), m_date);
    connect(m_seconds, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &TimeEditor::edit);
    connect(m_date, &QDateTimeEdit::dateTimeChanged, this,
            [this](const QDateTime& date) { edit(double(date.toMSecsSinceEpoch()) / Milliseconds); });
    const auto update = [](void* editor, SoSensor*) { static_cast<TimeEditor*>(editor)->showValue(); };
    m_field.setFunction(update);
    m_field.setData(this);
    m_field.setDeleteCallback(update, this);
    showValue();
}

TimeEditor::~TimeEditor() = default;

// [editor]
void TimeEditor::activate()
{
    NscShell::getInstance()->registerExtension(SoSFTime::getClassTypeId(), true, this);
}

void TimeEditor::setField(SoField* field)
{
    const bool isTime = field && field->isOfType(SoSFTime::getClassTypeId());
    m_field.attach(isTime ? field : nullptr);
    showValue();
}

void TimeEditor::edit(double seconds)
{
    if (field() && field()->getValue() != SbTime(seconds))
        NscServices::getInstance()->pushCommand(new SetTimeCommand(*field(), seconds));
}
// [end]

SoSFTime* TimeEditor::field() const
{
    return static_cast<SoSFTime*>(m_field.getAttachedField());
}

void TimeEditor::showValue()
{
    m_widget->setEnabled(field());
    const double value = field() ? field()->getValue().getValue() : 0;
    const double seconds = std::isnan(value) ? 0 : qBound(-Largest, value, Largest); // what the widgets can show
    const QSignalBlocker noEdit(m_seconds);
    const QSignalBlocker noEditEither(m_date);
    m_seconds->setValue(seconds);
    m_date->setDateTime(QDateTime::fromMSecsSinceEpoch(qint64(seconds * Milliseconds), Qt::UTC));
}

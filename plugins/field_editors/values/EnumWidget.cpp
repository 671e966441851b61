#include "EnumWidget.h"

#include "CheckedLine.h"
#include "EnumText.h"

#include <plugins/field_editors/edit/FieldCommand.h>

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

EnumWidget::EnumWidget(QWidget* parent)
    : ValueWidget(parent), m_value(std::make_unique<SoSFEnum>()), m_line(new CheckedLine([this](const QString& text) {
          QString problem;
          EnumText::parse(text, m_value->getEnums(), problem);
          return problem;
      })),
      m_list(new QComboBox)
{
    auto* const label = new QLabel(tr("Value"));
    label->setBuddy(m_list);
    m_list->setAccessibleName(label->text());
    m_list->setEditable(true);
    m_list->setInsertPolicy(QComboBox::NoInsert);
    m_list->setLineEdit(m_line);
    m_list->setCompleter(nullptr);
    m_list->setFocusPolicy(Qt::StrongFocus);
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->installEventFilter(this);
    m_line->setFrameWidget(*m_list);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(label);
    row->addWidget(m_list, 1);
    connect(m_list, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { edit(m_list->itemData(index).toInt()); });
    connect(m_line, &CheckedLine::taken, this, [this](const QString& text) {
        QString problem;
        edit(*EnumText::parse(text, m_value->getEnums(), problem));
    });
    connect(m_line, &CheckedLine::problemChanged, this, &EnumWidget::problemChanged);
}

EnumWidget::~EnumWidget() = default;

void EnumWidget::showValue(const SoField& value)
{
    const auto& shown = static_cast<const SoSFEnum&>(value);
    const bool isOtherTable = !EnumText::areSame(m_value->getEnums(), shown.getEnums());
    // A new copy each time: one that has mnemonics keeps them.
    m_value.reset(static_cast<SoSFEnum*>(copyOf(value).release()));
    if (isOtherTable) {
        fillList();
        m_line->forget();
    }
    showNumber();
}

void EnumWidget::fillList()
{
    m_list->clear();
    const EnumTable& table = m_value->getEnums();
    for (int i = 0; i < table.getNum(); ++i) {
        if (m_list->findData(table[i].value) < 0)
            m_list->addItem(QString::fromLatin1(table[i].name), table[i].value);
    }
}

void EnumWidget::showNumber()
{
    const int index = m_list->findData(m_value->getValue());
    if (index != m_list->currentIndex()) {
        // The list would put its own text over what the user is typing.
        const QString typed = m_line->text();
        const int place = m_line->cursorPosition();
        m_list->setCurrentIndex(index);
        m_line->setText(typed);
        m_line->setCursorPosition(place);
    }
    m_line->showText(EnumText::of(m_value->getValue(), m_value->getEnums()));
}

void EnumWidget::edit(int number)
{
    const bool isOther = number != m_value->getValue();
    m_value->setValue(number);
    m_line->forget();
    showNumber();
    if (isOther)
        emit edited(*m_value);
}

void EnumWidget::setReadOnly(bool isReadOnly)
{
    m_list->setEnabled(!isReadOnly);
}

void EnumWidget::forgetInput()
{
    m_line->forget();
}

bool EnumWidget::eventFilter(QObject* watched, QEvent* event)
{
    // A list under the wheel scrolls past without a change.
    if (watched == m_list && event->type() == QEvent::Wheel && !m_list->hasFocus()) {
        event->ignore();
        return true;
    }
    return ValueWidget::eventFilter(watched, event);
}

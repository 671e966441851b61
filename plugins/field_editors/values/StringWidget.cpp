#include "StringWidget.h"

#include "Marking.h"

#include <vexel/fields/SoSFString.h>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextDocument>
#include <QVBoxLayout>

StringWidget::StringWidget(QWidget* parent) : ValueWidget(parent), m_edit(new QPlainTextEdit)
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_edit);
    m_edit->setAccessibleName(tr("Text"));
    m_edit->setTabChangesFocus(true);
    m_edit->installEventFilter(this);
    connect(m_edit, &QPlainTextEdit::textChanged, this, &StringWidget::takeText);
}

QString StringWidget::text() const
{
    // Its plain text would have blanks in the place of those that do not break.
    QString text = m_edit->document()->toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    if (m_shown.contains(QLatin1String("\r\n")))
        text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return text;
}

void StringWidget::showValue(const SoField& value)
{
    m_shown = static_cast<const SoSFString&>(value).getValue().toQString();
    if (!m_isTyping)
        showText();
}

void StringWidget::showText()
{
    if (text() == m_shown)
        return;
    const QSignalBlocker quiet(m_edit);
    m_edit->setPlainText(m_shown);
}

void StringWidget::setReadOnly(bool isReadOnly)
{
    Marking::setReadOnly(*m_edit, isReadOnly);
}

void StringWidget::forgetInput()
{
    if (m_isTyping)
        emit gestureEnded();
    m_isTyping = false;
}

void StringWidget::takeText()
{
    const QString typed = text();
    if (typed == m_shown)
        return;
    if (!m_isTyping) {
        m_isTyping = true;
        m_before = m_shown;
        emit gestureBegun();
    }
    m_shown = typed;
    SoSFString value;
    value.setValue(SbString(typed));
    emit edited(value);
}

void StringWidget::endTyping()
{
    if (!m_isTyping)
        return;
    m_isTyping = false;
    emit gestureEnded();
    showText();
}

void StringWidget::cancelTyping()
{
    m_isTyping = false;
    m_shown = m_before;
    showText();
    emit gestureCancelled();
}

bool StringWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        endTyping();
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
        if (isReturn && key.modifiers() & Qt::ControlModifier) {
            endTyping();
            return true;
        }
        if (key.key() == Qt::Key_Escape && m_isTyping) {
            cancelTyping();
            return true;
        }
    }
    return ValueWidget::eventFilter(watched, event);
}

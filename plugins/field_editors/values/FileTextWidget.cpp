#include "FileTextWidget.h"

#include "Marking.h"
#include "ReferenceText.h"

#include <plugins/field_editors/edit/FieldCommand.h>
#include <vexel/base/SbString.h>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace {

QString textOf(const SoField& field)
{
    if (!field.holdsReferences())
        return field.get().toQString();
    QStringList names;
    for (const SoBase* object : field.getReferences())
        names += ReferenceText::of(object);
    return names.join(QLatin1Char('\n'));
}

} // namespace

FileTextWidget::FileTextWidget(QWidget* parent) : ValueWidget(parent), m_edit(new QPlainTextEdit)
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(m_edit);
    m_edit->setTabChangesFocus(true);
    m_edit->installEventFilter(this);
    connect(m_edit, &QPlainTextEdit::textChanged, this, &FileTextWidget::check);
}

FileTextWidget::~FileTextWidget() = default;

void FileTextWidget::showValue(const SoField& value)
{
    const bool isTyping = m_edit->hasFocus() && m_edit->toPlainText() != m_shown;
    m_value = copyOf(value);
    m_shown = textOf(*m_value);
    if (!isTyping && m_edit->toPlainText() != m_shown)
        showText();
}

void FileTextWidget::showText()
{
    m_edit->setPlainText(m_shown);
}

void FileTextWidget::setReadOnly(bool isReadOnly)
{
    Marking::setReadOnly(*m_edit, isReadOnly);
}

void FileTextWidget::check()
{
    if (!m_value)
        return;
    const QString text = m_edit->toPlainText();
    QString problem;
    if (text != m_shown && !copyOf(*m_value)->set(SbString(text)))
        problem = tr("This text is no value of type %1.").arg(m_value->getTypeId().getName().toQString());
    Marking::set(*m_edit, problem);
    emit problemChanged(problem);
}

void FileTextWidget::takeText()
{
    const QString text = m_edit->toPlainText();
    if (!m_value || m_edit->isReadOnly() || text == m_shown || !m_value->set(SbString(text)))
        return;
    m_shown = textOf(*m_value);
    showText();
    emit edited(*m_value);
}

bool FileTextWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut)
        takeText();
    if (event->type() == QEvent::KeyPress) {
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return && key.modifiers() & Qt::ControlModifier) {
            takeText();
            return true;
        }
        if (key.key() == Qt::Key_Escape && m_edit->toPlainText() != m_shown) {
            showText();
            return true;
        }
    }
    return ValueWidget::eventFilter(watched, event);
}

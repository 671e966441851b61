#include "CheckedLine.h"

#include "Marking.h"

#include <QKeyEvent>
#include <utility>

CheckedLine::CheckedLine(Check check, QWidget* parent) : QLineEdit(parent), m_check(std::move(check))
{
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& typed) { showProblem(typed == m_shown ? QString() : m_check(typed)); });
}

void CheckedLine::showText(const QString& text)
{
    const bool isTyping = hasFocus() && this->text() != m_shown;
    m_shown = text;
    if (!isTyping)
        forget();
}

void CheckedLine::forget()
{
    if (text() != m_shown)
        setText(m_shown);
    showProblem(QString());
}

void CheckedLine::takeText()
{
    if (isReadOnly() || text() == m_shown)
        return;
    const QString typed = text();
    const QString problem = m_check(typed);
    showProblem(problem);
    if (!problem.isEmpty())
        return;
    m_shown = typed;
    emit taken(typed);
}

void CheckedLine::showProblem(const QString& problem)
{
    if (problem == m_problem)
        return;
    m_problem = problem;
    Marking::set(*m_marked, problem);
    emit problemChanged(problem);
}

void CheckedLine::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        takeText();
        selectAll();
    } else if (event->key() == Qt::Key_Escape && text() != m_shown) {
        forget();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void CheckedLine::focusOutEvent(QFocusEvent* event)
{
    takeText();
    QLineEdit::focusOutEvent(event);
}

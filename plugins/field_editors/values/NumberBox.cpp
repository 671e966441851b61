#include "NumberBox.h"

#include "Marking.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Fine = 0.1;
constexpr double Coarse = 10;
/** Part of a step that a drag of one pixel makes. */
constexpr double Drag_scale = 0.05;
constexpr int Usual_characters = 9;

bool isStepKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

} // namespace

NumberBox::NumberBox(const NumberKind& kind, QWidget* parent) : QAbstractSpinBox(parent), m_kind(kind)
{
    setFocusPolicy(Qt::StrongFocus); // a list under the wheel scrolls past without a change
    setValue(0);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        QString problem;
        NumberText::parse(text, m_kind, problem);
        showProblem(problem);
    });
}

void NumberBox::setValue(double value)
{
    const bool isTyping = lineEdit()->text() != m_shown;
    m_value = value;
    m_shown = NumberText::of(value, m_kind);
    if (!isTyping || !hasFocus())
        lineEdit()->setText(m_shown);
    if (!isTyping)
        showProblem(QString());
}

void NumberBox::forgetInput()
{
    lineEdit()->setText(m_shown);
    showProblem(QString());
}

double NumberBox::stepWithModifiers() const
{
    const Qt::KeyboardModifiers modifiers = QGuiApplication::keyboardModifiers();
    double step = m_step;
    if (modifiers & Qt::ShiftModifier)
        step *= Coarse;
    if (modifiers & Qt::AltModifier)
        step *= Fine;
    return m_kind.isWhole ? std::max(1.0, std::round(step)) : step;
}

void NumberBox::edit(double value)
{
    value = std::clamp(value, m_kind.lowest, m_kind.highest);
    if (m_kind.isWhole)
        value = std::round(value);
    else
        value = double(float(value));
    m_value = value;
    m_shown = NumberText::of(value, m_kind);
    lineEdit()->setText(m_shown);
    showProblem(QString());
    emit edited(value);
}

void NumberBox::stepBy(int steps)
{
    takeText();
    // A value of single precision that looks round stays so: the sum is taken of what the user sees.
    const double step = stepWithModifiers();
    const double sum = m_shown.toDouble() + steps * step;
    edit(m_kind.isWhole ? sum : std::round(sum / step * 1e6) * step / 1e6);
    selectAll();
}

void NumberBox::dragTo(double start, int pixels)
{
    const double step = stepWithModifiers() * Drag_scale;
    edit(start + pixels * step);
}

QValidator::State NumberBox::validate(QString&, int&) const
{
    return QValidator::Acceptable; // everything may be typed, and is marked when it is no number
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const
{
    StepEnabled steps = StepNone;
    if (isReadOnly())
        return steps;
    if (m_value > m_kind.lowest)
        steps |= StepDownEnabled;
    if (m_value < m_kind.highest)
        steps |= StepUpEnabled;
    return steps;
}

void NumberBox::takeText()
{
    if (isReadOnly() || lineEdit()->text() == m_shown)
        return;
    QString problem;
    const std::optional<double> value = NumberText::parse(lineEdit()->text(), m_kind, problem);
    showProblem(problem);
    if (value)
        edit(*value);
}

void NumberBox::showProblem(const QString& problem)
{
    if (problem == m_problem)
        return;
    m_problem = problem;
    Marking::set(*this, problem);
    emit problemChanged(problem);
}

void NumberBox::setGesture(bool isOn)
{
    if (isOn == m_isInGesture)
        return;
    m_isInGesture = isOn;
    if (isOn)
        emit gestureBegun();
    else
        emit gestureEnded();
}

void NumberBox::keyPressEvent(QKeyEvent* event)
{
    if (isStepKey(*event) && stepEnabled() != StepNone) {
        takeText(); // a step of its own
        setGesture(true);
        stepBy(event->key() == Qt::Key_Up ? 1 : -1);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        takeText();
        selectAll();
    } else if (event->key() == Qt::Key_Escape && lineEdit()->text() != m_shown) {
        forgetInput();
    } else {
        QAbstractSpinBox::keyPressEvent(event);
    }
}

void NumberBox::keyReleaseEvent(QKeyEvent* event)
{
    if (isStepKey(*event) && !event->isAutoRepeat())
        setGesture(false);
    QAbstractSpinBox::keyReleaseEvent(event);
}

void NumberBox::mousePressEvent(QMouseEvent* event)
{
    takeText();
    setGesture(true); // a button that is held down steps again and again
    QAbstractSpinBox::mousePressEvent(event);
}

void NumberBox::mouseReleaseEvent(QMouseEvent* event)
{
    QAbstractSpinBox::mouseReleaseEvent(event);
    setGesture(false);
}

void NumberBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

void NumberBox::focusOutEvent(QFocusEvent* event)
{
    takeText();
    setGesture(false);
    QAbstractSpinBox::focusOutEvent(event);
}

QSize NumberBox::sizeHint() const
{
    QSize size = QAbstractSpinBox::sizeHint();
    size.setWidth(size.width() + fontMetrics().horizontalAdvance(QLatin1Char('0')) * Usual_characters);
    return size;
}

QSize NumberBox::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(QLatin1Char('0')) * 6 + 24, QAbstractSpinBox::minimumSizeHint().height()};
}

#include "Marking.h"

#include <QPalette>
#include <QVariant>
#include <QWidget>

namespace {

const QColor Warning(220, 80, 72);
constexpr double Tint = 0.25;
constexpr double Text_tint = 0.75;

QColor mix(const QColor& a, const QColor& b, double part)
{
    const auto channel = [part](int from, int to) { return int(from + (to - from) * part); };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

} // namespace

void Marking::set(QWidget& widget, const QString& problem)
{
    widget.setToolTip(problem);
    widget.setPalette(QPalette());
    const bool isReadOnly = widget.property("readOnly").toBool();
    if (problem.isEmpty() && !isReadOnly)
        return;
    QPalette palette = widget.palette();
    const QColor ground = palette.color(isReadOnly ? QPalette::Window : QPalette::Base);
    palette.setColor(QPalette::Base, problem.isEmpty() ? ground : mix(ground, Warning, Tint));
    widget.setPalette(palette);
}

void Marking::setReadOnly(QWidget& widget, bool isReadOnly)
{
    if (widget.property("readOnly").toBool() == isReadOnly)
        return;
    widget.setProperty("readOnly", isReadOnly);
    set(widget, QString());
}

void Marking::setWarning(QWidget& label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, mix(palette.color(QPalette::WindowText), Warning, Text_tint));
    label.setPalette(palette);
}

#include "Marking.h"

#include <QPalette>
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
    if (problem.isEmpty()) {
        widget.setPalette(QPalette());
        return;
    }
    QPalette palette = widget.palette();
    palette.setColor(QPalette::Base, mix(palette.color(QPalette::Base), Warning, Tint));
    widget.setPalette(palette);
}

void Marking::setWarning(QWidget& label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, mix(palette.color(QPalette::WindowText), Warning, Text_tint));
    label.setPalette(palette);
}

#include "HpglSink.h"
#include "ColorPalette.h"
#include "PenCarousel.h"
#include "PlainText.h"

#include <QIODevice>
#include <algorithm>
#include <cmath>

namespace {

constexpr double Units_per_millimetre = 40;
/** What fits into the buffers of small plotters. */
constexpr std::size_t Most_line_points = 250;
/** Of a palette; the one at place 0 is the paper. */
constexpr std::size_t Most_pens = 255;
constexpr double Pen_width = 0.3;  ///< of a carousel's pens, in millimetres
constexpr double Fill_width = 0.1; ///< with which a palette's pens fill surfaces, in millimetres
/** Coverages beyond which a hatch is no hatch. */
constexpr double Least_coverage = 0.04;
constexpr double Most_coverage = 0.9;
constexpr char End_of_label = 3;

int units(double millimetres)
{
    constexpr double Largest = 8388607; // of HP-GL/2
    return int(std::lround(std::clamp(millimetres * Units_per_millimetre, -Largest, Largest)));
}

/** Whether all sides go along those of the page: some programs lose certain rectangles that do not lean a little. */
bool isUpright(const std::vector<PagePoint>& corners)
{
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const PagePoint& p = corners[i];
        const PagePoint& q = corners[(i + 1) % corners.size()];
        if (units(p.x) != units(q.x) && units(p.y) != units(q.y))
            return false;
    }
    return true;
}

} // namespace

HpglSink::HpglSink(QIODevice& device, Mode mode)
    : PlainSink({Most_line_points, mode == Mode::Outlines ? 1.0f : 0.03f,
                 mode == Mode::Palette ? OpaqueColors::Ground::Painted : OpaqueColors::Ground::LeftOut,
                 mode == Mode::Palette ? 0.1 : 0.0}),
      m_device(device), m_mode(mode)
{
}

void HpglSink::begin(const PageLayout&)
{
    m_commands.clear();
    m_changes.clear();
    m_width = 0;
    m_pen = 0;
    m_spacing = -1;
    if (m_mode == Mode::Palette)
        m_commands.append("TR0;FT1;"); // white covers too
}

void HpglSink::addPoint(const PagePoint& point)
{
    m_commands.append(QByteArray::number(units(point.x))).append(',').append(QByteArray::number(units(point.y)));
}

void HpglSink::addCommand(const char* name, const std::vector<PagePoint>& points)
{
    m_commands.append(name);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i)
            m_commands.append(',');
        addPoint(points[i]);
    }
    m_commands.append(';');
}

void HpglSink::selectPen(int pen)
{
    if (m_pen == pen)
        return;
    m_pen = pen;
    m_commands.append("SP").append(QByteArray::number(pen)).append(';');
}

void HpglSink::selectColor(const InkColor& color)
{
    if (m_mode != Mode::Palette)
        selectPen(PenCarousel::inkFor(color).pen);
    else if (m_changes.empty() || m_changes.back().color != color)
        m_changes.push_back({m_commands.size(), 0, color});
}

void HpglSink::selectWidth(double width)
{
    const int hundredths = std::clamp(int(std::lround(std::min(width, 300.0) * 100)), 1, 30000);
    if (m_mode != Mode::Palette || m_width == hundredths) // the pens of a carousel have the width that they have
        return;
    m_width = hundredths;
    m_commands.append("PW").append(QByteArray::number(hundredths / 100.0)).append(';');
}

void HpglSink::selectHatch(double coverage)
{
    const int spacing = coverage > Most_coverage ? 0 : units(Pen_width / coverage);
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    if (spacing)
        m_commands.append("FT3,").append(QByteArray::number(spacing)).append(",45;");
    else
        m_commands.append("FT1;");
}

void HpglSink::fill(const std::vector<PagePoint>& corners, const InkColor& color)
{
    const double coverage = m_mode == Mode::Hatching ? PenCarousel::inkFor(color).coverage : 1;
    if (coverage < Least_coverage)
        return;
    selectColor(color);
    if (m_mode == Mode::Palette)
        m_changes.back().area += std::abs(signedArea(corners));
    selectWidth(Fill_width);
    if (m_mode == Mode::Hatching)
        selectHatch(coverage);
    std::vector<PagePoint> others(corners.begin() + 1, corners.end());
    others.push_back(corners.front());
    if (isUpright(corners))
        others.back().x += 1 / Units_per_millimetre;
    addCommand("PU", {others.back()});
    if (m_mode != Mode::Outlines)
        m_commands.append("PM0;");
    addCommand("PD", others);
    m_commands.append(m_mode == Mode::Outlines ? "PU;" : "PU;PM2;FP;");
    m_commands.append('\n');
}

void HpglSink::stroke(const std::vector<PagePoint>& points, double width, const InkColor& color)
{
    selectColor(color);
    selectWidth(width);
    addCommand("PU", {points.front()});
    addCommand("PD", {points.begin() + 1, points.end()});
    m_commands.append('\n');
}

void HpglSink::write(const PageText& text, const InkColor& color)
{
    constexpr double Step = 1.5; // from letter to letter, in widths of letters
    constexpr double Usual_width = 0.4;
    constexpr double Stroke_width = 0.08;
    const QByteArray letters = PlainText::ascii(text.text);
    const double width =
        text.width > 0 && !letters.isEmpty() ? text.width / letters.size() / Step : Usual_width * text.size;
    const double radians = text.angle * 3.14159265358979 / 180;
    const auto fixed = [](double number) { return QByteArray::number(number, 'f', 4); };
    selectColor(color);
    selectWidth(text.size * Stroke_width);
    m_commands.append("SI").append(fixed(width / 10)).append(',');
    m_commands.append(fixed(text.size * PlainText::Capital_height / 10)).append(';');
    m_commands.append("DI").append(fixed(std::cos(radians))).append(',').append(fixed(std::sin(radians))).append(';');
    addCommand("PU", {text.place});
    m_commands.append("LB").append(letters).append(End_of_label).append('\n');
}

/** The commands, each colour's pen selected where it begins to hold; the palette stands before them. */
QByteArray HpglSink::withPens() const
{
    ColorPalette palette;
    for (const Change& change : m_changes)
        palette.add(change.color, change.area);
    palette.reduce(Most_pens);
    QByteArray text = "NP256;CR0,255,0,255,0,255;\n";
    const std::vector<InkColor>& colors = palette.colors();
    for (std::size_t i = 0; i < colors.size(); ++i)
        text.append("PC")
            .append(QByteArray::number(int(i) + 1))
            .append(',')
            .append(QByteArray::number(colors[i].red))
            .append(',')
            .append(QByteArray::number(colors[i].green))
            .append(',')
            .append(QByteArray::number(colors[i].blue))
            .append(";\n");
    int done = 0;
    std::size_t pen = 0;
    for (const Change& change : m_changes) {
        text.append(m_commands.constData() + done, change.offset - done);
        done = change.offset;
        const std::size_t its = palette.placeOf(change.color) + 1;
        if (its != pen)
            text.append("SP").append(QByteArray::number(int(its))).append(';');
        pen = its;
    }
    return text.append(m_commands.constData() + done, m_commands.size() - done);
}

bool HpglSink::end()
{
    m_device.write("IN;\n");
    m_device.write(m_mode == Mode::Palette ? withPens() : m_commands);
    m_device.write(m_mode == Mode::Palette ? "PU;SP0;PG;\n" : "PU;SP0;\n");
    m_commands.clear();
    m_changes.clear();
    return true;
}

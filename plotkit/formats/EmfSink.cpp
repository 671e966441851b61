#include "EmfSink.h"
#include "EmfDevice.h"
#include "TextAdvances.h"

#include <QIODevice>
#include <algorithm>
#include <cmath>

namespace {

/** More in one line is too much for some readers. */
constexpr std::size_t Most_line_points = 8192;

/** The places of objects; 0 is never used. */
enum Object : int { Brush = 1, Line_pen = 2, Font = 3, Num_objects = 3 };
enum StockObject : quint32 { No_brush = 0x80000005, No_pen = 0x80000008, Default_font = 0x8000000e };

constexpr int Anisotropic = 8;
constexpr int Transparent = 1;
constexpr int Baseline = 24;
/** Geometric, with flat ends and round corners. */
constexpr int Pen_style = 0x10000 | 0x200;
constexpr int Font_octets = 320;
constexpr int Face_octets = 64;
constexpr int Text_offset = 76;

EmfRecord select(quint32 object)
{
    return EmfRecord(EmfType::SelectObject).number(object);
}

EmfRecord deletion(Object object)
{
    return EmfRecord(EmfType::DeleteObject).number(object);
}

EmfRecord pair(EmfType type, int x, int y)
{
    return EmfRecord(type).number(x).number(y);
}

} // namespace

EmfSink::EmfSink(QIODevice& device) : PlainSink({Most_line_points}), m_device(device) {}

void EmfSink::begin(const PageLayout& page)
{
    m_page = page;
    m_scale = PageScale(page);
    m_records.clear();
    m_brush.reset();
    m_pen.reset();
    m_isPenSelected = false;

    m_records.add(EmfRecord(EmfType::SetMapMode).number(Anisotropic));
    m_records.add(pair(EmfType::SetWindowOrigin, 0, 0));
    m_records.add(pair(EmfType::SetWindowExtent, m_scale.units(page.width), m_scale.units(page.height)));
    m_records.add(pair(EmfType::SetViewportOrigin, 0, 0));
    m_records.add(pair(EmfType::SetViewportExtent, int(std::lround(page.width * EmfDevice::Pixels_per_millimetre)),
                       int(std::lround(page.height * EmfDevice::Pixels_per_millimetre))));
    m_records.add(EmfRecord(EmfType::SetBackgroundMode).number(Transparent));
    m_records.add(EmfRecord(EmfType::SetTextAlign).number(Baseline));
    m_records.add(EmfRecord(EmfType::IntersectClipRect)
                      .number(m_scale.units(page.picture.left))
                      .number(down(page.picture.top()))
                      .number(m_scale.units(page.picture.right()))
                      .number(down(page.picture.bottom)));
    m_records.add(select(No_pen));
}

void EmfSink::addPoints(EmfType type, const std::vector<PagePoint>& points)
{
    int left = 32767;
    int top = 32767;
    int right = -32767;
    int bottom = -32767;
    for (const PagePoint& point : points) {
        left = std::min<int>(left, m_scale.units(point.x));
        right = std::max<int>(right, m_scale.units(point.x));
        top = std::min(top, down(point.y));
        bottom = std::max(bottom, down(point.y));
    }
    EmfRecord record(type);
    record.number(left).number(top).number(right).number(bottom).number(quint32(points.size()));
    for (const PagePoint& point : points)
        record.shortNumber(m_scale.units(point.x)).shortNumber(down(point.y));
    m_records.add(record);
}

void EmfSink::selectBrush(const InkColor& color)
{
    if (m_brush == color)
        return;
    if (m_brush) {
        m_records.add(select(No_brush));
        m_records.add(deletion(Brush));
    }
    m_brush = color;
    m_records.add(EmfRecord(EmfType::CreateBrush).number(Brush).number(0).color(color).number(0));
    m_records.add(select(Brush));
}

void EmfSink::selectNoPen()
{
    if (!m_isPenSelected)
        return;
    m_records.add(select(No_pen));
    m_isPenSelected = false;
}

void EmfSink::selectPen(const Pen& pen)
{
    if (!m_pen || m_pen->width != pen.width || m_pen->color != pen.color) {
        selectNoPen();
        if (m_pen)
            m_records.add(deletion(Line_pen));
        m_pen = pen;
        EmfRecord record(EmfType::ExtCreatePen);
        record.number(Line_pen).number(0).number(0).number(0).number(0);
        m_records.add(record.number(Pen_style).number(pen.width).number(0).color(pen.color).number(0).number(0));
    }
    if (!m_isPenSelected)
        m_records.add(select(Line_pen));
    m_isPenSelected = true;
}

void EmfSink::fill(const std::vector<PagePoint>& corners, const InkColor& color)
{
    selectNoPen();
    selectBrush(color);
    addPoints(EmfType::Polygon16, corners);
}

void EmfSink::stroke(const std::vector<PagePoint>& points, double width, const InkColor& color)
{
    selectPen({m_scale.width(width), color});
    addPoints(EmfType::Polyline16, points);
}

void EmfSink::write(const PageText& text, const InkColor& color)
{
    constexpr quint32 Normal = 400;
    constexpr quint32 Bold = 700;
    const int tenths = int(std::lround(std::remainder(text.angle, 360) * 10));
    EmfRecord font(EmfType::ExtCreateFont);
    font.number(Font).number(-m_scale.width(text.size)).number(0).number(tenths).number(tenths);
    font.number(text.isBold ? Bold : Normal).number(text.isItalic ? 1 : 0).number(0);
    font.text(text.family.left(Face_octets / 2 - 1), Font_octets - 7 * 4);
    m_records.add(font);
    m_records.add(select(Font));
    m_records.add(EmfRecord(EmfType::SetTextColor).color(color));

    const int octets = (2 * text.text.size() + 3) / 4 * 4;
    EmfRecord record(EmfType::ExtTextOut);
    record.number(0).number(0).number(-1).number(-1).number(1).real(1).real(1);
    record.number(m_scale.units(text.place.x)).number(down(text.place.y));
    record.number(text.text.size()).number(Text_offset).number(0).number(0).number(0).number(-1).number(-1);
    record.number(Text_offset + octets).text(text.text, octets);
    for (const double advance : textAdvances(text))
        record.number(m_scale.units(advance));
    m_records.add(record);
    m_records.add(select(Default_font));
    m_records.add(deletion(Font));
}

bool EmfSink::end()
{
    m_records.add(select(No_pen));
    m_records.add(select(No_brush));
    if (m_pen)
        m_records.add(deletion(Line_pen));
    if (m_brush)
        m_records.add(deletion(Brush));
    m_records.finish();
    const auto pixels = [](double millimetres) {
        return int(std::lround(millimetres * EmfDevice::Pixels_per_millimetre));
    };
    const auto hundredths = [](double millimetres) { return int(std::lround(millimetres * 100)); };
    m_device.write(m_records
                       .header(pixels(m_page.width), pixels(m_page.height), hundredths(m_page.width),
                               hundredths(m_page.height), Num_objects)
                       .bytes());
    m_device.write(m_records.bytes());
    m_records.clear();
    return true;
}

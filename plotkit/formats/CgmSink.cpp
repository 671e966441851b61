#include "CgmSink.h"
#include "PlainText.h"

#include <QIODevice>
#include <cmath>

namespace {

constexpr std::size_t Octets_per_point = 4;
constexpr int Octets_at_once = 1 << 16;

const char* const Fonts[] = {"Helvetica",   "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique",
                             "Times-Roman", "Times-Bold",     "Times-Italic",      "Times-BoldItalic",
                             "Courier",     "Courier-Bold",   "Courier-Oblique",   "Courier-BoldOblique"};

/** Place in the list of fonts, from 1. */
int fontOf(const PageText& text)
{
    const auto has = [&](const char* part) { return text.family.contains(QLatin1String(part), Qt::CaseInsensitive); };
    int first = 1;
    if (has("Mono") || has("Courier") || has("Typewriter"))
        first = 9;
    else if (has("Times") || has("Roman") || (has("Serif") && !has("Sans")))
        first = 5;
    return first + (text.isBold ? 1 : 0) + (text.isItalic ? 2 : 0);
}

} // namespace

CgmSink::CgmSink(QIODevice& device) : PlainSink({CgmElement::Capacity / Octets_per_point}), m_device(device) {}

void CgmSink::add(const CgmElement& element)
{
    element.appendTo(m_elements);
    if (m_elements.size() < Octets_at_once)
        return;
    m_device.write(m_elements);
    m_elements.clear();
}

void CgmSink::addPoints(CgmCode code, const std::vector<PagePoint>& points)
{
    CgmElement element(code);
    for (const PagePoint& point : points)
        element.integer(m_scale.units(point.x)).integer(m_scale.units(point.y));
    add(element);
}

void CgmSink::describe()
{
    add(CgmElement(CgmCode::BeginMetafile).string("picture"));
    add(CgmElement(CgmCode::MetafileVersion).integer(1));
    add(CgmElement(CgmCode::MetafileDescription).string("Plotkit"));
    add(CgmElement(CgmCode::VdcType).integer(0));
    add(CgmElement(CgmCode::IntegerPrecision).integer(16));
    add(CgmElement(CgmCode::RealPrecision).integer(1).integer(16).integer(16));
    add(CgmElement(CgmCode::IndexPrecision).integer(16));
    add(CgmElement(CgmCode::ColourPrecision).integer(8));
    add(CgmElement(CgmCode::ColourValueExtent).color({0, 0, 0}).color({255, 255, 255}));
    add(CgmElement(CgmCode::MetafileElementList).integer(1).integer(-1).integer(1)); // drawing and control elements
    CgmElement fonts(CgmCode::FontList);
    for (const char* const font : Fonts)
        fonts.string(font);
    add(fonts);
}

void CgmSink::begin(const PageLayout& page)
{
    m_scale = PageScale(page);
    m_elements.clear();
    m_fillColor.reset();
    m_lineColor.reset();
    m_lineWidth = 0;
    m_textAngle = 0;

    describe();
    add(CgmElement(CgmCode::BeginPicture).string("picture"));
    add(CgmElement(CgmCode::ScalingMode).integer(1).floating(float(1 / m_scale.perMillimetre()))); // metric
    add(CgmElement(CgmCode::ColourSelectionMode).integer(1));                                      // direct
    add(CgmElement(CgmCode::LineWidthMode).integer(0));                                            // absolute
    addPoints(CgmCode::VdcExtent, {{0, 0}, {page.width, page.height}});
    add(CgmElement(CgmCode::BackgroundColour).color({255, 255, 255}));
    add(CgmElement(CgmCode::BeginPictureBody));
    add(CgmElement(CgmCode::VdcIntegerPrecision).integer(16));
    addPoints(CgmCode::ClipRectangle,
              {{page.picture.left, page.picture.bottom}, {page.picture.right(), page.picture.top()}});
    add(CgmElement(CgmCode::ClipIndicator).integer(1));
    add(CgmElement(CgmCode::InteriorStyle).integer(1)); // solid
    add(CgmElement(CgmCode::EdgeVisibility).integer(0));
    add(CgmElement(CgmCode::TextPrecision).integer(2)); // at any size and angle
}

void CgmSink::fill(const std::vector<PagePoint>& corners, const InkColor& color)
{
    if (m_fillColor != color)
        add(CgmElement(CgmCode::FillColour).color(color));
    m_fillColor = color;
    addPoints(CgmCode::Polygon, corners);
}

void CgmSink::stroke(const std::vector<PagePoint>& points, double width, const InkColor& color)
{
    if (m_lineColor != color)
        add(CgmElement(CgmCode::LineColour).color(color));
    m_lineColor = color;
    if (m_lineWidth != m_scale.width(width)) {
        m_lineWidth = m_scale.width(width);
        add(CgmElement(CgmCode::LineWidth).integer(m_lineWidth));
    }
    addPoints(CgmCode::Polyline, points);
}

void CgmSink::write(const PageText& text, const InkColor& color)
{
    add(CgmElement(CgmCode::TextFontIndex).integer(fontOf(text)));
    add(CgmElement(CgmCode::TextColour).color(color));
    add(CgmElement(CgmCode::CharacterHeight).integer(m_scale.width(text.size * PlainText::Capital_height)));
    if (m_textAngle != text.angle) { // upright text does without: not every reader knows orientations
        m_textAngle = text.angle;
        const double radians = text.angle * 3.14159265358979 / 180;
        const int run = int(std::lround(1000 * std::cos(radians)));
        const int rise = int(std::lround(1000 * std::sin(radians)));
        add(CgmElement(CgmCode::CharacterOrientation).integer(-rise).integer(run).integer(run).integer(rise));
    }
    CgmElement element(CgmCode::Text);
    element.integer(m_scale.units(text.place.x)).integer(m_scale.units(text.place.y));
    add(element.integer(1).string(PlainText::ascii(text.text))); // 1: all of the text
}

bool CgmSink::end()
{
    add(CgmElement(CgmCode::EndPicture));
    add(CgmElement(CgmCode::EndMetafile));
    m_device.write(m_elements);
    m_elements.clear();
    return true;
}

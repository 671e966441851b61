#pragma once

#include "EmfRecord.h"
#include "PageScale.h"
#include "PlainSink.h"

#include <optional>

class QIODevice;

/** Writes a picture as an enhanced metafile as [MS-EMF] describes them, its coordinates in hundredths of a millimetre.
 */
class EmfSink : public PlainSink {
public:
    explicit EmfSink(QIODevice& device);

    void begin(const PageLayout& page) override;
    void fill(const std::vector<PagePoint>& corners, const InkColor& color) override;
    void stroke(const std::vector<PagePoint>& points, double width, const InkColor& color) override;
    void write(const PageText& text, const InkColor& color) override;
    bool end() override;

private:
    struct Pen {
        int width;
        InkColor color;
    };

    int down(double y) const { return m_scale.units(m_page.height - y); }
    void addPoints(EmfType type, const std::vector<PagePoint>& points);
    void selectBrush(const InkColor& color);
    void selectPen(const Pen& pen);
    void selectNoPen();

    QIODevice& m_device;
    PageLayout m_page;
    PageScale m_scale;
    EmfRecords m_records;
    std::optional<InkColor> m_brush;
    std::optional<Pen> m_pen;
    bool m_isPenSelected = false;
};

#pragma once

#include "CgmElement.h"
#include "PageScale.h"
#include "PlainSink.h"

#include <optional>

class QIODevice;

/**
 * Writes a picture as a computer graphics metafile: version 1, binary encoding of ISO/IEC 8632-3, direct colours,
 * integer coordinates in hundredths of a millimetre. Of fonts it knows those of every plotter: Helvetica, Times,
 * Courier.
 */
class CgmSink : public PlainSink {
public:
    explicit CgmSink(QIODevice& device);

    void begin(const PageLayout& page) override;
    void fill(const std::vector<PagePoint>& corners, const InkColor& color) override;
    void stroke(const std::vector<PagePoint>& points, double width, const InkColor& color) override;
    void write(const PageText& text, const InkColor& color) override;
    bool end() override;

private:
    void describe();
    void add(const CgmElement& element);
    void addPoints(CgmCode code, const std::vector<PagePoint>& points);

    QIODevice& m_device;
    PageScale m_scale;
    QByteArray m_elements; ///< that are not written yet
    std::optional<InkColor> m_fillColor;
    std::optional<InkColor> m_lineColor;
    int m_lineWidth = 0;
    double m_textAngle = 0;
};

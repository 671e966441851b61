#pragma once

#include "PlainSink.h"

#include <QByteArray>

class QIODevice;

/** Writes a picture in HP-GL/2, in plotter units of 0.025 mm. */
class HpglSink : public PlainSink {
public:
    enum class Mode { Palette, Hatching, Outlines };

    HpglSink(QIODevice& device, Mode mode);

    void begin(const PageLayout& page) override;
    void fill(const std::vector<PagePoint>& corners, const InkColor& color) override;
    void stroke(const std::vector<PagePoint>& points, double width, const InkColor& color) override;
    void write(const PageText& text, const InkColor& color) override;
    bool end() override;

private:
    /** A place in the commands from which on a colour holds. */
    struct Change {
        int offset;
        double area; ///< painted in the colour, in square millimetres
        InkColor color;
    };

    void addPoint(const PagePoint& point);
    void addCommand(const char* name, const std::vector<PagePoint>& points);
    void selectColor(const InkColor& color);
    void selectWidth(double width);
    void selectPen(int pen);
    void selectHatch(double coverage);
    QByteArray withPens() const;

    QIODevice& m_device;
    Mode m_mode;
    QByteArray m_commands;
    std::vector<Change> m_changes; ///< when pens are chosen at the end
    int m_width = 0;               ///< hundredths of a millimetre
    int m_pen = 0;
    int m_spacing = -1; ///< of hatches, in plotter units; 0: filled
};

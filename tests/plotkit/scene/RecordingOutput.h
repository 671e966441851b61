#pragma once

#include <plotkit/SoVectorOutput.h>
#include <plotkit/SoVectorizeAction.h>
#include <plotkit/picture/PictureSink.h>

#include <QTemporaryDir>
#include <algorithm>
#include <optional>

/** Keeps what is painted. */
class RecordingSink : public PictureSink {
public:
    struct Polygon {
        std::vector<ShadedCorner> corners;

        double area() const
        {
            double twice = 0;
            for (std::size_t i = 0; i < corners.size(); ++i) {
                const PagePoint& p = corners[i].point;
                const PagePoint& q = corners[(i + 1) % corners.size()].point;
                twice += p.x * q.y - q.x * p.y;
            }
            return twice / 2;
        }
    };
    struct Line {
        std::vector<PagePoint> points;
        LineStyle style;
    };
    struct Dot {
        PagePoint middle;
        double diameter;
        PageColor color;
    };

    void begin(const PageLayout& layout) override { page = layout; }
    void ground(const PageColor& bottom, const PageColor& top) override { grounds.push_back({bottom, top}); }
    void polygon(const std::vector<PagePoint>& corners, const PageColor& color) override
    {
        Polygon polygon;
        for (const PagePoint& corner : corners)
            polygon.corners.push_back({corner, color});
        polygons.push_back(polygon);
    }
    void shadedPolygon(const std::vector<ShadedCorner>& corners) override { polygons.push_back({corners}); }
    void polyline(const std::vector<PagePoint>& points, const LineStyle& style) override
    {
        lines.push_back({points, style});
    }
    void dot(const PagePoint& middle, double diameter, const PageColor& color) override
    {
        dots.push_back({middle, diameter, color});
    }
    void text(const PageText& text) override { texts.push_back(text); }
    bool end() override { return isEnded = true; }

    /** Area of what has a colour in which one component is the largest by far. */
    double areaOf(float PageColor::*component) const
    {
        double sum = 0;
        for (const Polygon& polygon : polygons) {
            const PageColor& color = polygon.corners[0].color;
            const float largest = std::max({color.red, color.green, color.blue});
            if (color.*component == largest && largest > 0)
                sum += polygon.area();
        }
        return sum;
    }

    PageLayout page;
    std::vector<std::pair<PageColor, PageColor>> grounds;
    std::vector<Polygon> polygons;
    std::vector<Line> lines;
    std::vector<Dot> dots;
    std::vector<PageText> texts;
    bool isEnded = false;
};

/** An output into a file of a folder of its own, and what was painted. */
class RecordingOutput : public SoVectorOutput {
public:
    RecordingOutput() { openFile(path()); }

    SbString path() const { return m_folder.filePath("picture"); }
    bool hasFile() const { return QFile::exists(m_folder.filePath("picture")); }
    PictureSink& sink() override { return recorded; }

    RecordingSink recorded;

private:
    QTemporaryDir m_folder;
};

class RecordingAction : public SoVectorizeAction {
public:
    RecordingAction() : SoVectorizeAction(output) {}

    RecordingOutput output;
};

#pragma once

#include <plotkit/picture/PageLayout.h>

#include <QString>
#include <vector>

/** Each from 0 to 1; alpha 1 covers what is behind. */
struct PageColor {
    float red = 0;
    float green = 0;
    float blue = 0;
    float alpha = 1;
};

struct ShadedCorner {
    PagePoint point;
    PageColor color;
};

struct LineStyle {
    double width = 0.25;        ///< millimetres
    std::vector<double> dashes; ///< lengths of stroke and gap in turns, in millimetres; empty: solid
    PageColor color;
};

/** A line of text that begins at a point of its base line. */
struct PageText {
    QString text;
    PagePoint place;
    double size = 4;  ///< of the font, in millimetres
    double angle = 0; ///< of the base line to the right, in degrees counter-clockwise
    double width = 0; ///< how far the text reaches, in millimetres
    QString family;
    bool isBold = false;
    bool isItalic = false;
    PageColor color;
};

/**
 * Takes a picture in the order in which it is painted: what comes later covers what was there. Everything lies within
 * the picture's rectangle of the page.
 */
class PictureSink {
public:
    PictureSink() = default;
    PictureSink(const PictureSink&) = delete;
    PictureSink& operator=(const PictureSink&) = delete;
    virtual ~PictureSink() = default;

    virtual void begin(const PageLayout& page) = 0;
    /** Fills the picture's rectangle, evenly from one colour at its lower end to another at the upper one. */
    virtual void ground(const PageColor& bottom, const PageColor& top) = 0;
    /** A convex polygon of one colour. */
    virtual void polygon(const std::vector<PagePoint>& corners, const PageColor& color) = 0;
    /** A convex polygon whose colour changes evenly between its corners. */
    virtual void shadedPolygon(const std::vector<ShadedCorner>& corners) = 0;
    virtual void polyline(const std::vector<PagePoint>& points, const LineStyle& style) = 0;
    /** A round dot; the diameter in millimetres. */
    virtual void dot(const PagePoint& middle, double diameter, const PageColor& color) = 0;
    virtual void text(const PageText& text) = 0;
    /** False when the picture could not be completed; that the file took it is not known yet. */
    virtual bool end() = 0;
};

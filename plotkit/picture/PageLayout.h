#pragma once

/** Millimetres from the lower left corner of the page, y up. */
struct PagePoint {
    double x = 0;
    double y = 0;
};

struct PageRect {
    double left = 0;
    double bottom = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double top() const { return bottom + height; }
};

/** A sheet, and where on it the picture lies. */
struct PageLayout {
    double width = 297;
    double height = 210;
    PageRect picture;
};

#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/picture/PageLayout.h>

#include <array>
#include <cstddef>
#include <initializer_list>

/** a x + b y + c: a line where it is 0, or any other quantity that changes evenly over the page. */
struct PLOTKIT_API Linear {
    double a = 0;
    double b = 0;
    double c = 0;

    double at(const PagePoint& p) const { return a * p.x + b * p.y + c; }
    Linear operator-() const { return {-a, -b, -c}; }
    Linear operator-(const Linear& other) const { return {a - other.a, b - other.b, c - other.c}; }
    Linear operator+(double number) const { return {a, b, c + number}; }

    /** Positive at the left of the way from one point to the other, in units of length. */
    static Linear leftOf(const PagePoint& from, const PagePoint& to);
    /** The quantity that has these values at three points; 0 everywhere when they lie on a line. */
    static Linear through(const std::array<PagePoint, 3>& points, const std::array<double, 3>& values);
};

/** A convex polygon of limited detail, counter-clockwise: corners beyond its capacity are left out. */
class PLOTKIT_API ConvexPolygon {
public:
    static constexpr std::size_t Capacity = 32;

    ConvexPolygon() = default;
    ConvexPolygon(std::initializer_list<PagePoint> corners);

    std::size_t size() const { return m_size; }
    bool isEmpty() const { return m_size < 3; }
    const PagePoint& operator[](std::size_t i) const { return m_corners[i]; }
    const PagePoint* begin() const { return m_corners.data(); }
    const PagePoint* end() const { return m_corners.data() + m_size; }
    double area() const;
    /** Area by longest edge: about half the width of a triangle, and the width of a strip. */
    double thickness() const;

    void add(const PagePoint& corner);
    /** The part where `side` is positive. */
    ConvexPolygon clipped(const Linear& side) const;

private:
    std::array<PagePoint, Capacity> m_corners;
    std::size_t m_size = 0;
};

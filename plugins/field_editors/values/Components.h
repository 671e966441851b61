#pragma once

#include <plugins/field_editors/values/NumberText.h>
#include <vexel/base/SbColor.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbPlane.h>
#include <vexel/base/SbRotation.h>

#include <QStringList>

// Values as rows of numbers, one specialisation for each kind of value: how many there are, their type and names, and
// how one of them is read and set.

template <class Value, class = void>
struct Components;

/** What the two ends of a box along an axis are called. */
QStringList boxNames(int axis);

template <class Value>
struct Components<Value, std::enable_if_t<std::is_arithmetic_v<Value>>> {
    using Number = Value;
    static constexpr int Count = 1;
    static QStringList names() { return {QString()}; }
    static double get(const Value& value, int) { return double(value); }
    static void set(Value& value, int, double number) { value = Value(number); }
};

/** Vectors and colours. */
template <class Value>
struct Components<Value, std::void_t<typename Value::Component, decltype(Value::Size)>> {
    using Number = typename Value::Component;
    static constexpr int Count = Value::Size;
    static QStringList names()
    {
        const QString letters = std::is_same_v<Value, SbColor> ? QStringLiteral("RGB") : QStringLiteral("XYZW");
        QStringList names;
        for (int i = 0; i < Count; ++i)
            names += letters.mid(i, 1);
        return names;
    }
    static double get(const Value& value, int i) { return double(value[i]); }
    static void set(Value& value, int i, double number) { value[i] = Number(number); }
};

/** Axis, and angle in radians. */
template <>
struct Components<SbRotation> {
    using Number = float;
    static constexpr int Count = 4;
    static QStringList names();
    static double get(const SbRotation& rotation, int i);
    static void set(SbRotation& rotation, int i, double number);
};

/** Normal, and distance from the origin. */
template <>
struct Components<SbPlane> {
    using Number = float;
    static constexpr int Count = 4;
    static QStringList names();
    static double get(const SbPlane& plane, int i);
    static void set(SbPlane& plane, int i, double number);
};

/** Row by row. */
template <>
struct Components<SbMatrix> {
    using Number = float;
    static constexpr int Count = 16;
    static QStringList names();
    static double get(const SbMatrix& matrix, int i) { return double(matrix[i / 4][i % 4]); }
    static void set(SbMatrix& matrix, int i, double number) { matrix[i / 4][i % 4] = float(number); }
};

/** Minimum and maximum along each axis. */
template <class Value>
struct Components<Value, std::void_t<decltype(std::declval<const Value&>().getMin())>> {
    using Number = typename Value::Component;
    static constexpr int Axes = std::decay_t<decltype(std::declval<const Value&>().getMin())>::Size;
    static constexpr int Count = 2 * Axes;
    static QStringList names()
    {
        QStringList names;
        for (int axis = 0; axis < Axes; ++axis)
            names += boxNames(axis);
        return names;
    }
    static double get(const Value& box, int i) { return double((i % 2 ? box.getMax() : box.getMin())[i / 2]); }
    static void set(Value& box, int i, double number)
    {
        auto lowest = box.getMin();
        auto highest = box.getMax();
        (i % 2 ? highest : lowest)[i / 2] = Number(number);
        box = Value(lowest, highest);
    }
};

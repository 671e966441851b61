#pragma once

#include <cstdint>
#include <string>
#include <type_traits>

#include <vexel/base/SbBox2f.h>
#include <vexel/base/SbBox2i32.h>
#include <vexel/base/SbBox2s.h>
#include <vexel/base/SbBox3f.h>
#include <vexel/base/SbBox3i32.h>
#include <vexel/base/SbBox3s.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbName.h>
#include <vexel/base/SbPlane.h>
#include <vexel/base/SbRotation.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SbTime.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>

// The file text of the values of fields, one pair of functions for each kind of value.

/** Vectors and colours: a fixed number of components of one type. */
template <class Value, class = void>
struct IsVector : std::false_type {
};
template <class Value>
struct IsVector<Value, std::void_t<typename Value::Component, decltype(Value::Size)>> : std::true_type {
};

/** Boxes: two corners. */
template <class Value, class = void>
struct IsBox : std::false_type {
};
template <class Value>
struct IsBox<Value, std::void_t<decltype(std::declval<const Value&>().getMin())>> : std::true_type {
};

template <class Value>
bool readText(SoInput& in, Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        return in.readNumber(value);
    } else if constexpr (IsVector<Value>::value) {
        for (int i = 0; i < Value::Size; ++i) {
            if (!in.readNumber(value[i]))
                return false;
        }
        return true;
    } else {
        static_assert(IsBox<Value>::value, "no file text is known for this kind of value");
        auto low = value.getMin();
        auto high = value.getMax();
        if (!readText(in, low) || !readText(in, high))
            return false;
        value = Value(low, high);
        return true;
    }
}

template <class Value>
void writeText(SoOutput& out, const Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        out.writeNumber(value);
    } else if constexpr (IsVector<Value>::value) {
        for (int i = 0; i < Value::Size; ++i) {
            if (i > 0)
                out.write(' ');
            out.writeNumber(value[i]);
        }
    } else {
        writeText(out, value.getMin());
        out.write(' ');
        writeText(out, value.getMax());
    }
}

bool readText(SoInput& in, bool& value);
bool readText(SoInput& in, SbString& value);
bool readText(SoInput& in, SbName& value);
bool readText(SoInput& in, SbTime& value);
bool readText(SoInput& in, SbRotation& value);
bool readText(SoInput& in, SbPlane& value);
bool readText(SoInput& in, SbMatrix& value);

void writeText(SoOutput& out, const bool& value);
void writeText(SoOutput& out, const SbString& value);
void writeText(SoOutput& out, const SbName& value);
void writeText(SoOutput& out, const SbTime& value);
void writeText(SoOutput& out, const SbRotation& value);
void writeText(SoOutput& out, const SbPlane& value);
void writeText(SoOutput& out, const SbMatrix& value);

/** Writes the values of a list: in brackets unless there is exactly one, numbers ten a line, anything else one a line.
 */
template <class WriteOne>
void writeList(SoOutput& out, int num, int perLine, WriteOne&& writeOne)
{
    if (num == 1) {
        writeOne(0);
        return;
    }
    out.write("[ ");
    out.indent(2);
    for (int i = 0; i < num; ++i) {
        if (i > 0) {
            out.write(',');
            if (i % perLine == 0)
                out.writeNewLine();
            else
                out.write(' ');
            out.flushWhenFull();
        }
        writeOne(i);
    }
    out.indent(-2);
    out.write(num > 0 ? " ]" : "]");
}

/** Reads the values of a list, in brackets or one without; @p readOne reads and appends one. */
template <class ReadOne>
bool readList(SoInput& in, ReadOne&& readOne)
{
    if (!in.text().accept('['))
        return readOne();
    while (!in.text().accept(']')) {
        if (!readOne())
            return false;
        in.updateProgress();
    }
    return true;
}

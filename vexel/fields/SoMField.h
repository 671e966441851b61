#pragma once

#include <vexel/fields/SoField.h>

/** Base of the fields that hold a list of values. */
class VEXEL_API SoMField : public SoField {
public:
    static SoType getClassTypeId();

    /** Number of values. */
    int getNum() const
    {
        evaluate();
        return getStoredNum();
    }
    /** Shortens the list, or lengthens it with values of zero. */
    virtual void setNum(int num) = 0;
    /** Removes @p num values from @p start on; -1 removes all that follow. Ranges beyond the end are cut. */
    virtual void deleteValues(int start, int num = -1) = 0;
    /** Makes room for @p num values of zero in front of the value at @p start. */
    virtual void insertSpace(int start, int num) = 0;
    /**
     * Puts @p fromNum values of @p from, a field of the same type, starting with the value at @p fromStart, into the
     * place of @p num values from @p start on; one change. Ranges beyond an end are cut. A field of another type, and
     * this field itself, are left alone.
     */
    virtual void replaceValues(int start, int num, const SoMField& from, int fromStart, int fromNum) = 0;

    /** Sets one value from its file text; the list grows as needed. False when the text is not a value. */
    bool set1(int index, const SbString& text);
    /** The file text of one value; empty beyond the end. */
    SbString get1(int index) const;

    /** Reads one value into the place @p index, which exists. */
    virtual bool read1Value(SoInput& in, int index) = 0;
    virtual void write1Value(SoOutput& out, int index) const = 0;

protected:
    using SoField::SoField;

    virtual int getStoredNum() const = 0;
};

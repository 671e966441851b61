#pragma once

#include <plotkit/picture/InkColor.h>

#include <QByteArray>

/** What an element of a computer graphics metafile says: its class and its number in it. */
enum class CgmCode : int {
    BeginMetafile = 0 << 12 | 1 << 5,
    EndMetafile = 0 << 12 | 2 << 5,
    BeginPicture = 0 << 12 | 3 << 5,
    BeginPictureBody = 0 << 12 | 4 << 5,
    EndPicture = 0 << 12 | 5 << 5,
    MetafileVersion = 1 << 12 | 1 << 5,
    MetafileDescription = 1 << 12 | 2 << 5,
    VdcType = 1 << 12 | 3 << 5,
    IntegerPrecision = 1 << 12 | 4 << 5,
    RealPrecision = 1 << 12 | 5 << 5,
    IndexPrecision = 1 << 12 | 6 << 5,
    ColourPrecision = 1 << 12 | 7 << 5,
    ColourValueExtent = 1 << 12 | 10 << 5,
    MetafileElementList = 1 << 12 | 11 << 5,
    FontList = 1 << 12 | 13 << 5,
    ScalingMode = 2 << 12 | 1 << 5,
    ColourSelectionMode = 2 << 12 | 2 << 5,
    LineWidthMode = 2 << 12 | 3 << 5,
    VdcExtent = 2 << 12 | 6 << 5,
    BackgroundColour = 2 << 12 | 7 << 5,
    VdcIntegerPrecision = 3 << 12 | 1 << 5,
    ClipRectangle = 3 << 12 | 5 << 5,
    ClipIndicator = 3 << 12 | 6 << 5,
    Polyline = 4 << 12 | 1 << 5,
    Text = 4 << 12 | 4 << 5,
    Polygon = 4 << 12 | 7 << 5,
    LineWidth = 5 << 12 | 3 << 5,
    LineColour = 5 << 12 | 4 << 5,
    TextFontIndex = 5 << 12 | 10 << 5,
    TextPrecision = 5 << 12 | 11 << 5,
    TextColour = 5 << 12 | 14 << 5,
    CharacterHeight = 5 << 12 | 15 << 5,
    CharacterOrientation = 5 << 12 | 16 << 5,
    InteriorStyle = 5 << 12 | 22 << 5,
    FillColour = 5 << 12 | 23 << 5,
    EdgeVisibility = 5 << 12 | 30 << 5,
};

/** An element in the binary encoding of ISO/IEC 8632-3, with the precisions that are the defaults of that standard. */
class CgmElement {
public:
    /** Octets that an element holds without being divided. */
    static constexpr int Capacity = 32767;

    explicit CgmElement(CgmCode code) : m_code(code) {}

    /** An integer, index, enumeration or coordinate. */
    CgmElement& integer(int value);
    /** A real number as IEEE float, which the scaling mode has. */
    CgmElement& floating(float value);
    CgmElement& color(const InkColor& color);
    /** Of at most 254 octets; what is longer is cut off. */
    CgmElement& string(const QByteArray& text);

    /** Appends the element; its parameters are within the capacity. */
    void appendTo(QByteArray& metafile) const;

private:
    CgmCode m_code;
    QByteArray m_parameters;
};

#pragma once

#include <plotkit/picture/InkColor.h>

#include <QByteArray>
#include <QString>

/** Types of records of [MS-EMF]. */
enum class EmfType : quint32 {
    Header = 1,
    SetWindowExtent = 9,
    SetWindowOrigin = 10,
    SetViewportExtent = 11,
    SetViewportOrigin = 12,
    EndOfFile = 14,
    SetMapMode = 17,
    SetBackgroundMode = 18,
    SetTextAlign = 22,
    SetTextColor = 24,
    IntersectClipRect = 30,
    SelectObject = 37,
    CreateBrush = 39,
    DeleteObject = 40,
    Polygon16 = 86,
    Polyline16 = 87,
    ExtCreateFont = 82,
    ExtTextOut = 84,
    ExtCreatePen = 95,
};

/** A record of an enhanced metafile, as [MS-EMF] lays them out: little endian, its length a multiple of four. */
class EmfRecord {
public:
    explicit EmfRecord(EmfType type);

    EmfRecord& number(quint32 value);
    EmfRecord& number(int value) { return number(quint32(value)); }
    EmfRecord& shortNumber(int value);
    EmfRecord& real(float value);
    EmfRecord& color(const InkColor& color);
    /** Letters of two octets, filled with zeros up to the number of octets. */
    EmfRecord& text(const QString& text, int octets);

    /** The record as it stands in the file. */
    QByteArray bytes() const;

private:
    QByteArray m_bytes;
};

/** An enhanced metafile in the making: its records and what its header tells of them. */
class EmfRecords {
public:
    void clear() { *this = EmfRecords(); }
    void add(const EmfRecord& record);
    /** Appends the last record; what stands before all others is the header. */
    void finish();

    /** The header of a picture that begins at the origin; in units of device and in hundredths of a millimetre. */
    EmfRecord header(int width, int height, int frameWidth, int frameHeight, int numObjects) const;
    const QByteArray& bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    quint32 m_numRecords = 0;
};

#pragma once

#include <QByteArray>
#include <QtEndian>
#include <gtest/gtest.h>
#include <vector>

/** A record as it stands in an enhanced metafile, with its type and size. */
struct EmfPart {
    quint32 type;
    QByteArray bytes;

    quint32 number(int offset) const { return qFromLittleEndian<quint32>(bytes.constData() + offset); }
    int signedNumber(int offset) const { return qFromLittleEndian<qint32>(bytes.constData() + offset); }
    int shortNumber(int offset) const { return qFromLittleEndian<qint16>(bytes.constData() + offset); }
};

/** The records of a file, found by their sizes alone; none when these do not lead to its end. */
inline std::vector<EmfPart> walkEmf(const QByteArray& file)
{
    std::vector<EmfPart> parts;
    int at = 0;
    while (at + 8 <= file.size()) {
        const auto type = qFromLittleEndian<quint32>(file.constData() + at);
        const auto size = qFromLittleEndian<quint32>(file.constData() + at + 4);
        if (size < 8 || size % 4 || qint64(at) + size > file.size())
            break;
        parts.push_back({type, file.mid(at, int(size))});
        at += int(size);
    }
    if (at == file.size())
        return parts;
    ADD_FAILURE() << "a record has a wrong size";
    return {};
}

#pragma once

#include <QByteArray>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/** An element as it stands in a computer graphics metafile. */
struct CgmPart {
    int elementClass;
    int id;
    QByteArray parameters;

    bool is(int itsClass, int itsId) const { return elementClass == itsClass && id == itsId; }
    /** The signed number of 16 bits at a place, counted in such numbers. */
    int number(int place) const
    {
        const auto octet = [&](int i) { return int(static_cast<unsigned char>(parameters[i])); };
        return static_cast<short>(octet(2 * place) << 8 | octet(2 * place + 1));
    }
    int numNumbers() const { return parameters.size() / 2; }
};

/** The elements of a file, found by their headers alone; none when the framing is broken. */
inline std::vector<CgmPart> walkCgm(const QByteArray& file)
{
    std::vector<CgmPart> parts;
    int at = 0;
    const auto word = [&](int place) {
        return int(static_cast<unsigned char>(file[place])) << 8 | static_cast<unsigned char>(file[place + 1]);
    };
    while (at + 2 <= file.size()) {
        const int header = word(at);
        at += 2;
        int length = header & 31;
        if (length == 31) {
            if (at + 2 > file.size())
                break;
            length = word(at);
            at += 2;
            if (length > 32767) {
                ADD_FAILURE() << "an element is divided";
                return {};
            }
        }
        if (at + length + length % 2 > file.size())
            break;
        parts.push_back({header >> 12, header >> 5 & 127, file.mid(at, length)});
        if (length % 2 && file[at + length] != 0)
            ADD_FAILURE() << "filled up with something else than 0";
        at += length + length % 2;
    }
    if (at == file.size())
        return parts;
    ADD_FAILURE() << "the last element ends behind the file";
    return {};
}

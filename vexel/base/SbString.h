#pragma once

#include <vexel/base/VexelApi.h>

#include <QString>
#include <qhashfunctions.h>

#include <cstddef>
#include <string_view>
#include <utility>

class SbName;

/**
 * Text, kept as UTF-16.
 *
 * Copies share their characters until one is changed. Lengths and positions count UTF-16 units. Bytes that are not
 * valid UTF-8 become the replacement character U+FFFD.
 */
class VEXEL_API SbString {
public:
    SbString() = default;
    /** Text in UTF-8; a null pointer stands for the empty text. */
    SbString(const char* utf8) : m_text(QString::fromUtf8(utf8)) {}
    SbString(std::string_view utf8) : m_text(QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()))) {}
    SbString(const QString& text) : m_text(text) {}
    SbString(QString&& text) noexcept : m_text(std::move(text)) {}
    SbString(const SbName& name);
    /** The number in decimal digits. */
    explicit SbString(int number) : m_text(QString::number(number)) {}

    static SbString fromUtf8(const char* utf8) { return SbString(utf8); }
    static SbString fromLatin1(const char* latin1) { return SbString(QString::fromLatin1(latin1)); }

    QByteArray toUtf8() const { return m_text.toUtf8(); }
    /** Characters outside Latin-1 become '?'. */
    QByteArray toLatin1() const { return m_text.toLatin1(); }
    const QString& toQString() const noexcept { return m_text; }

    int getLength() const noexcept { return m_text.size(); }
    bool isEmpty() const noexcept { return m_text.isEmpty(); }
    void makeEmpty() { m_text.clear(); }

    /** The characters from `first` to `last`, both included; -1 stands for the end. Positions outside are cut off. */
    SbString getSubString(int first, int last = -1) const;

    /** Position of the first occurrence of `text` at or after `start`, or -1. */
    int find(const SbString& text, int start = 0) const { return m_text.indexOf(text.m_text, start); }

    bool startsWith(const SbString& text) const { return m_text.startsWith(text.m_text); }
    bool endsWith(const SbString& text) const { return m_text.endsWith(text.m_text); }

    SbString& operator+=(const SbString& text)
    {
        m_text += text.m_text;
        return *this;
    }

    friend SbString operator+(SbString a, const SbString& b) { return a += b; }
    friend bool operator==(const SbString& a, const SbString& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator!=(const SbString& a, const SbString& b) noexcept { return a.m_text != b.m_text; }
    friend bool operator==(const SbString& a, const char* utf8) { return a.m_text == QString::fromUtf8(utf8); }
    friend bool operator!=(const SbString& a, const char* utf8) { return !(a == utf8); }
    friend bool operator==(const char* utf8, const SbString& b) { return b == utf8; }
    friend bool operator!=(const char* utf8, const SbString& b) { return !(b == utf8); }
    /** Order by UTF-16 units. */
    friend bool operator<(const SbString& a, const SbString& b) noexcept { return a.m_text < b.m_text; }

private:
    QString m_text;
};

template <>
struct std::hash<SbString> {
    std::size_t operator()(const SbString& text) const noexcept { return std::hash<QString>()(text.toQString()); }
};

#pragma once

#include <vexel/base/VexelApi.h>

#include <cstddef>
#include <string_view>

class QString;
class SbString;

/**
 * UTF-8 text that is kept once for the life of the process, so that names compare and copy as a pointer.
 *
 * Making a name from text looks it up in one table that all threads share; everything else costs nothing.
 * For texts that come from an unbounded source (contents of fields, messages) use SbString.
 */
class VEXEL_API SbName {
public:
    /** The empty name. */
    SbName() noexcept;
    /** Text in UTF-8; a null pointer stands for the empty name. */
    SbName(const char* utf8);
    SbName(std::string_view utf8);
    explicit SbName(const SbString& text);
    explicit SbName(const QString& text);

    /** Text in UTF-8, ended by a zero; valid for the life of the process. */
    const char* getString() const noexcept { return m_text; }
    std::string_view getView() const noexcept { return {m_text, getLength()}; }
    QString toQString() const;

    /** Number of bytes of the text. */
    std::size_t getLength() const noexcept;
    bool isEmpty() const noexcept { return *m_text == '\0'; }

    /** Hash of the text; kept with it, so it costs nothing, and the same in every run. */
    std::size_t getHash() const noexcept;

    static const SbName& empty() noexcept;

    friend bool operator==(SbName a, SbName b) noexcept { return a.m_text == b.m_text; }
    friend bool operator!=(SbName a, SbName b) noexcept { return a.m_text != b.m_text; }
    friend bool operator==(SbName a, const char* b) noexcept { return a.getView() == (b ? b : ""); }
    friend bool operator!=(SbName a, const char* b) noexcept { return !(a == b); }
    friend bool operator==(const char* a, SbName b) noexcept { return b == a; }
    friend bool operator!=(const char* a, SbName b) noexcept { return !(b == a); }
    /** Order of the texts by bytes. */
    friend bool operator<(SbName a, SbName b) noexcept { return a.getView() < b.getView(); }

private:
    const char* m_text;
};

template <>
struct std::hash<SbName> {
    std::size_t operator()(SbName name) const noexcept { return name.getHash(); }
};

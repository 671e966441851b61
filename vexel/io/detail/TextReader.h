#pragma once

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

#include <vexel/base/VexelApi.h>

/**
 * Words, numbers and strings of an ascii scene text that stands in memory.
 *
 * White space, commas and comments separate. Nothing here posts errors; a failed read leaves the position at the thing
 * that could not be read.
 */
class VEXEL_API TextReader {
public:
    TextReader() = default;
    TextReader(const char* begin, const char* end) : m_begin(begin), m_end(end), m_at(begin) {}

    const char* position() const { return m_at; }
    void setPosition(const char* at) { m_at = at; }
    const char* begin() const { return m_begin; }
    const char* end() const { return m_end; }

    /** Passes over white space, commas and comments. */
    void skipSpace()
    {
        while (m_at < m_end && isSpaceOrComment(*m_at)) {
            if (*m_at == '#')
                skipLine();
            else
                ++m_at;
        }
    }
    /** The next character that means something, without taking it; 0 at the end of the text. */
    char peek()
    {
        skipSpace();
        return m_at < m_end ? *m_at : '\0';
    }
    /** Takes the next character when it is @p c. */
    bool accept(char c)
    {
        if (peek() != c || m_at >= m_end)
            return false;
        ++m_at;
        return true;
    }

    /** Takes the next word; empty when something else stands here. */
    std::string_view readWord();
    /** The next word, without taking it; the next character when something else stands here. */
    std::string_view peekWord();
    /** Takes a text in quotes, or one word. False when there is neither, or the closing quote is missing. */
    bool readText(std::string& text);

    /** Takes a number that ends where a word would end; integers also as 0x hexadecimal and 0 octal. */
    template <class Number>
    bool readNumber(Number& value)
    {
        skipSpace();
        const char* from = m_at;
        if (from < m_end && *from == '+')
            ++from;
        std::from_chars_result result{};
        if constexpr (std::is_integral_v<Number>)
            result = readInteger(from, value);
        else
            result = std::from_chars(from, m_end, value);
        if (result.ec == std::errc::result_out_of_range && !std::is_integral_v<Number>)
            result = saturate(from, value);
        if (result.ec != std::errc() || (result.ptr < m_end && isWordCharacter(*result.ptr)))
            return false;
        m_at = result.ptr;
        return true;
    }

    /** Passes over one thing: a word, a quoted text, a bracketed or braced part with all in it, or one other character.
     */
    void skipItem();
    /**
     * Goes behind the bracket @p close of a block whose bracket @p open was taken; other kinds of brackets do not
     * count. False, at the end of the text, when there is none.
     */
    bool skipBlock(char open, char close);

    /** Line and column, both from 1, of a place in the text. */
    struct Location {
        std::size_t line = 1;
        std::size_t column = 1;
    };
    Location locate(const char* place);

    static bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\0'; }
    static bool isWordCharacter(char c) { return (Classes[static_cast<unsigned char>(c)] & NotInWord) == 0; }

private:
    static constexpr unsigned char SpaceOrComment = 1;
    static constexpr unsigned char NotInWord = 2;
    static const unsigned char Classes[256];

    static bool isSpaceOrComment(char c) { return (Classes[static_cast<unsigned char>(c)] & SpaceOrComment) != 0; }
    void skipLine();
    static bool exponentIsPositive(const char* from, const char* to);
    template <class Number>
    std::from_chars_result readInteger(const char* from, Number& value) const;
    template <class Number>
    std::from_chars_result saturate(const char* from, Number& value) const;

    const char* m_begin = nullptr;
    const char* m_end = nullptr;
    const char* m_at = nullptr;
    // The place that was located last, so that locating errors in order reads the text once.
    const char* m_located = nullptr;
    std::size_t m_locatedLine = 1;
};

template <class Number>
std::from_chars_result TextReader::readInteger(const char* from, Number& value) const
{
    const bool negative = std::is_signed_v<Number> && from < m_end && *from == '-';
    const char* digits = negative ? from + 1 : from;
    if (m_end - digits < 2 || *digits != '0' || !isWordCharacter(digits[1]))
        return std::from_chars(from, m_end, value);
    const bool hexadecimal = digits[1] == 'x' || digits[1] == 'X';
    std::make_unsigned_t<Number> magnitude = 0;
    const auto result = std::from_chars(digits + (hexadecimal ? 2 : 1), m_end, magnitude, hexadecimal ? 16 : 8);
    if (result.ec == std::errc())
        value = static_cast<Number>(negative ? 0u - magnitude : magnitude);
    return result;
}

template <class Number>
std::from_chars_result TextReader::saturate(const char* from, Number& value) const
{
    // Too large for the type reads as infinity, too small as zero, both with their sign.
    const bool negative = *from == '-';
    long double wide = 0;
    const auto result = std::from_chars(from, m_end, wide);
    const bool large = result.ec == std::errc() ? (wide > 1 || wide < -1) : exponentIsPositive(from, result.ptr);
    const Number magnitude = large ? static_cast<Number>(__builtin_inf()) : Number(0);
    value = negative ? -magnitude : magnitude;
    return {result.ptr, std::errc()};
}

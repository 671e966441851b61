#include <vexel/io/detail/TextReader.h>

#include <algorithm>

// 1: white space, zero, comma and the start of a comment; 2: everything that ends a word (the former included).
const unsigned char TextReader::Classes[256] = {
    3, 0, 0, 0, 0, 0, 0, 0, 0, 3, 3, 0, 0, 3, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, // control characters
    3, 0, 2, 3, 0, 0, 0, 0, 2, 2, 0, 0, 3, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 0, // blank " # ( ) , =
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 0, 2, 0, 0, // [ ]
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 2, 2, 0, // { | } ~
};

void TextReader::skipLine()
{
    m_at = std::find_if(m_at, m_end, [](char c) { return c == '\n' || c == '\r'; });
}

std::string_view TextReader::readWord()
{
    skipSpace();
    const char* start = m_at;
    while (m_at < m_end && isWordCharacter(*m_at))
        ++m_at;
    return {start, static_cast<std::size_t>(m_at - start)};
}

std::string_view TextReader::peekWord()
{
    skipSpace();
    const char* start = m_at;
    const std::string_view word = readWord();
    m_at = start;
    return word.empty() && start < m_end ? std::string_view(start, 1) : word;
}

bool TextReader::readText(std::string& text)
{
    if (peek() != '"') {
        const std::string_view word = readWord();
        text.assign(word);
        return !word.empty();
    }
    const char* start = m_at;
    text.clear();
    for (const char* at = m_at + 1; at < m_end; ++at) {
        if (*at == '"') {
            m_at = at + 1;
            return true;
        }
        if (*at == '\\' && at + 1 < m_end && (at[1] == '"' || at[1] == '\\'))
            ++at;
        text.push_back(*at);
    }
    m_at = start;
    return false;
}

void TextReader::skipItem()
{
    const char c = peek();
    if (m_at >= m_end)
        return;
    if (c == '"') {
        std::string ignored;
        if (!readText(ignored))
            m_at = m_end;
    } else if (c == '{' || c == '[') {
        ++m_at;
        skipBlock(c, c == '{' ? '}' : ']');
    } else if (readWord().empty()) {
        ++m_at;
    }
}

bool TextReader::skipBlock(char open, char close)
{
    for (int depth = 1; depth > 0;) {
        const char c = peek();
        if (m_at >= m_end)
            return false;
        if (c == open || c == close) {
            depth += c == open ? 1 : -1;
            ++m_at;
        } else if (c == '"' || isWordCharacter(c)) {
            skipItem();
        } else {
            ++m_at;
        }
    }
    return true;
}

bool TextReader::exponentIsPositive(const char* from, const char* to)
{
    const char* mark = std::find_if(from, to, [](char c) { return c == 'e' || c == 'E'; });
    return mark == to || mark + 1 == to || mark[1] != '-';
}

TextReader::Location TextReader::locate(const char* place)
{
    if (!m_located || place < m_located) {
        m_located = m_begin;
        m_locatedLine = 1;
    }
    // A lone CR, a LF and CRLF each end one line.
    for (const char* at = m_located; at < place; ++at) {
        if (*at == '\n' || (*at == '\r' && (at + 1 == m_end || at[1] != '\n')))
            ++m_locatedLine;
    }
    m_located = place;
    const char* lineStart = place;
    while (lineStart > m_begin && lineStart[-1] != '\n' && lineStart[-1] != '\r')
        --lineStart;
    return {m_locatedLine, static_cast<std::size_t>(place - lineStart) + 1};
}

#pragma once

#include <charconv>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <vexel/base/SbString.h>
#include <vexel/base/VexelApi.h>

class SceneWriter;
class SoFieldContainer;

/**
 * Where a scene is written: a file, or a buffer in memory.
 *
 * A file is complete under its name only after closeFile() answered true; until then a file of that name that existed
 * before stays as it was.
 */
class VEXEL_API SoOutput {
public:
    /** Enlarges a buffer as std::realloc does. */
    using ReallocFunction = void* (*)(void* buffer, std::size_t size);

    SoOutput();
    SoOutput(const SoOutput&) = delete;
    SoOutput& operator=(const SoOutput&) = delete;
    ~SoOutput();

    /** False, with a reason in getError(), when the file cannot be created. */
    bool openFile(const SbString& fileName);
    /** Puts the file under its name. False when something could not be written; the old file is still there then. */
    bool closeFile();
    /** Writes into @p buffer, NUL-terminated for text, enlarging it with @p reallocate; a null function cuts at @p
     * size. */
    void setBuffer(void* buffer, std::size_t size, ReallocFunction reallocate);
    /** The buffer, where it stands now, and the number of bytes written to it, without the final NUL. */
    bool getBuffer(void*& buffer, std::size_t& size) const;
    /** What went wrong with the file; empty when nothing did. */
    SbString getError() const { return m_error; }

    void setBinary(bool on) { m_binary = on; }
    bool isBinary() const { return m_binary; }
    /** Compresses with gzip; openFile() switches it on for names that end in "vxz" or "gz". */
    void setCompressed(bool on) { m_compressed = on; }
    bool isCompressed() const { return m_compressed; }
    /** First line of what is written; by default the one of the current format version. */
    void setHeaderString(const SbString& header) { m_header = header; }
    static SbString getDefaultASCIIHeader();
    static SbString getDefaultBinaryHeader();

    // Writing of values, for fields.

    void write(char c) { m_text.push_back(c); }
    void write(std::string_view text) { m_text.append(text); }
    /** The fewest digits that read back as the same number. */
    template <class Number>
    void writeNumber(Number value)
    {
        char digits[64];
        const auto result = std::to_chars(digits, digits + sizeof digits, value);
        m_text.append(digits, static_cast<std::size_t>(result.ptr - digits));
    }
    void writeQuoted(std::string_view text);
    void writeNewLine();
    void indent(int levels) { m_indent += levels; }

    /** The fields that differ from their defaults, one a line. */
    void writeFields(const SoFieldContainer& container);
    SceneWriter& sceneWriter();
    /** Writes the first line, once. */
    void writeHeader();

    /** What was written and not yet passed on to a file or buffer. */
    const std::string& getText() const { return m_text; }
    /** Passes on what was written, once it has become much. */
    void flushWhenFull()
    {
        if (m_text.size() > FlushSize)
            flush();
    }

private:
    class Sink;
    class BufferSink;
    class FileSink;

    static constexpr std::size_t FlushSize = 1 << 20;

    void flush();

    std::string m_text;
    std::unique_ptr<Sink> m_sink;
    std::unique_ptr<SceneWriter> m_writer;
    SbString m_header;
    SbString m_error;
    int m_indent = 0;
    bool m_binary = false;
    bool m_compressed = false;
    bool m_hasHeader = false;
};

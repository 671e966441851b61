#include <vexel/io/SoOutput.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <QFileInfo>
#include <zlib.h>

#include <vexel/io/SoAtomicFile.h>
#include <vexel/io/detail/SceneWriter.h>

class SoOutput::Sink {
public:
    virtual ~Sink() = default;
    virtual bool put(const char* data, std::size_t size) = 0;
    virtual bool finish() = 0;
    virtual SbString error() const = 0;
};

class SoOutput::BufferSink : public Sink {
public:
    BufferSink(void* buffer, std::size_t size, ReallocFunction reallocate)
        : m_buffer(static_cast<char*>(buffer)), m_size(size), m_reallocate(reallocate)
    {
    }

    bool put(const char* data, std::size_t size) override
    {
        // One byte is kept for the final NUL.
        if (m_used + size + 1 > m_size && m_reallocate) {
            const std::size_t wanted = std::max(m_used + size + 1, m_size * 2);
            if (void* larger = m_reallocate(m_buffer, wanted)) {
                m_buffer = static_cast<char*>(larger);
                m_size = wanted;
            }
        }
        const std::size_t room = m_size > m_used ? m_size - m_used - 1 : 0;
        const std::size_t taken = std::min(size, room);
        std::memcpy(m_buffer + m_used, data, taken);
        m_used += taken;
        m_isCut = m_isCut || taken < size;
        return taken == size;
    }
    bool finish() override
    {
        if (m_used < m_size)
            m_buffer[m_used] = '\0';
        return !m_isCut;
    }
    SbString error() const override { return m_isCut ? SbString("the buffer is too small") : SbString(); }

    char* buffer() const { return m_buffer; }
    std::size_t used() const { return m_used; }

private:
    char* m_buffer;
    std::size_t m_size;
    std::size_t m_used = 0;
    ReallocFunction m_reallocate;
    bool m_isCut = false;
};

class SoOutput::FileSink : public Sink {
public:
    explicit FileSink(const SbString& name) : m_name(name) {}
    ~FileSink() override
    {
        if (m_isPacking)
            deflateEnd(&m_stream);
    }

    bool open(bool compressed)
    {
        constexpr int GzipWindow = 15 + 16;
        constexpr int MemoryLevel = 8;
        m_isPacking = compressed && deflateInit2(&m_stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, GzipWindow, MemoryLevel,
                                                 Z_DEFAULT_STRATEGY) == Z_OK;
        return m_file.open(m_name) && m_isPacking == compressed;
    }
    bool put(const char* data, std::size_t size) override
    {
        return m_isPacking ? pack(data, size, Z_NO_FLUSH) : putRaw(data, size);
    }
    bool finish() override { return (!m_isPacking || pack("", 0, Z_FINISH)) && m_file.close(); }
    SbString error() const override { return m_file.getReason(); }

private:
    bool putRaw(const char* data, std::size_t size)
    {
        return m_file.device().write(data, static_cast<qint64>(size)) == static_cast<qint64>(size);
    }
    bool pack(const char* data, std::size_t size, int mode)
    {
        char packed[1 << 16];
        m_stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data));
        m_stream.avail_in = static_cast<uInt>(size);
        do {
            m_stream.next_out = reinterpret_cast<Bytef*>(packed);
            m_stream.avail_out = sizeof packed;
            deflate(&m_stream, mode);
            if (!putRaw(packed, sizeof packed - m_stream.avail_out))
                return false;
        } while (m_stream.avail_out == 0);
        return true;
    }

    SbString m_name;
    SoAtomicFile m_file;
    z_stream m_stream{};
    bool m_isPacking = false;
};

SoOutput::SoOutput() = default;

SoOutput::~SoOutput() = default;

bool SoOutput::openFile(const SbString& fileName)
{
    const QString& name = fileName.toQString();
    if (name.endsWith(QLatin1String("vxz"), Qt::CaseInsensitive) ||
        name.endsWith(QLatin1String("gz"), Qt::CaseInsensitive))
        m_compressed = true;
    auto sink = std::make_unique<FileSink>(fileName);
    const bool isOpen = sink->open(m_compressed);
    m_error = isOpen ? SbString() : sink->error();
    if (isOpen)
        m_sink = std::move(sink);
    return isOpen;
}

bool SoOutput::closeFile()
{
    flush();
    const bool complete = m_sink && m_error.isEmpty() && m_sink->finish();
    if (m_sink && !complete && m_error.isEmpty())
        m_error = m_sink->error();
    m_sink.reset();
    return complete;
}

void SoOutput::setBuffer(void* buffer, std::size_t size, ReallocFunction reallocate)
{
    m_sink = std::make_unique<BufferSink>(buffer, size, reallocate);
}

bool SoOutput::getBuffer(void*& buffer, std::size_t& size) const
{
    const auto* sink = dynamic_cast<const BufferSink*>(m_sink.get());
    if (!sink)
        return false;
    const_cast<SoOutput*>(this)->flush();
    m_sink->finish();
    buffer = sink->buffer();
    size = sink->used();
    return true;
}

void SoOutput::flush()
{
    if (!m_sink)
        return;
    if (m_error.isEmpty() && !m_text.empty() && !m_sink->put(m_text.data(), m_text.size()))
        m_error = m_sink->error();
    m_text.clear();
}

SbString SoOutput::getDefaultASCIIHeader()
{
    return SbString("#Vexel V2.1 ascii");
}

SbString SoOutput::getDefaultBinaryHeader()
{
    return SbString("#Vexel V2.1 binary");
}

void SoOutput::writeHeader()
{
    if (m_hasHeader)
        return;
    m_hasHeader = true;
    const SbString standard = m_binary ? getDefaultBinaryHeader() : getDefaultASCIIHeader();
    const QByteArray line = (m_header.isEmpty() ? standard : m_header).toUtf8();
    write({line.constData(), static_cast<std::size_t>(line.size())});
    if (m_binary) {
        // Blanks before the line feed, so that the payload begins at a multiple of 16.
        constexpr int Alignment = 16;
        const int padding = Alignment - 1 - line.size() % Alignment;
        m_text.append(static_cast<std::size_t>(padding), ' ');
    }
    write(m_binary ? "\n" : "\n\n");
}

void SoOutput::writeQuoted(std::string_view text)
{
    m_text.push_back('"');
    for (const char c : text) {
        if (c == '"' || c == '\\')
            m_text.push_back('\\');
        m_text.push_back(c);
    }
    m_text.push_back('"');
}

void SoOutput::writeNewLine()
{
    m_text.push_back('\n');
    m_text.append(2 * static_cast<std::size_t>(std::max(m_indent, 0)), ' ');
}

SceneWriter& SoOutput::sceneWriter()
{
    if (!m_writer)
        m_writer = std::make_unique<SceneWriter>(*this);
    return *m_writer;
}

void SoOutput::writeFields(const SoFieldContainer& container)
{
    sceneWriter().writeFields(container);
}

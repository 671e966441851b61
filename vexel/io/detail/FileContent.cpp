#include <vexel/io/detail/FileContent.h>

#include <algorithm>

#include <zlib.h>

namespace {

// What no scene needs: a small file that unpacks to more is taken for damaged or hostile.
constexpr std::size_t LargestUnpacked = std::size_t(8) << 30;

bool isGzip(const char* data, std::size_t size)
{
    return size >= 2 && data[0] == '\x1f' && data[1] == '\x8b';
}

} // namespace

std::unique_ptr<FileContent> FileContent::open(const QString& fileName, std::string& error)
{
    std::unique_ptr<FileContent> content(new FileContent);
    content->m_file.setFileName(fileName);
    if (!content->m_file.open(QIODevice::ReadOnly)) {
        error = content->m_file.errorString().toStdString();
        return nullptr;
    }
    if (!content->map(error) || (isGzip(content->m_data, content->m_size) && !content->unpack(error)))
        return nullptr;
    return content;
}

bool FileContent::map(std::string& error)
{
    m_size = static_cast<std::size_t>(std::max<qint64>(m_file.size(), 0));
    if (m_size == 0 || m_file.isSequential()) {
        const QByteArray bytes = m_file.readAll();
        m_unpacked.assign(bytes.constData(), static_cast<std::size_t>(bytes.size()));
        m_data = m_unpacked.data();
        m_size = m_unpacked.size();
        return true;
    }
    m_data = reinterpret_cast<const char*>(m_file.map(0, m_file.size()));
    if (!m_data)
        error = m_file.errorString().toStdString();
    return m_data != nullptr;
}

bool FileContent::unpack(std::string& error)
{
    z_stream stream{};
    constexpr int GzipWindow = 15 + 16;
    if (inflateInit2(&stream, GzipWindow) != Z_OK) {
        error = "there is no memory to unpack it";
        return false;
    }
    std::string unpacked;
    const char* next = m_data;
    std::size_t rest = m_size;
    int state = Z_OK;
    while (state == Z_OK || (state == Z_STREAM_END && rest + stream.avail_in > 0 && inflateReset(&stream) == Z_OK)) {
        if (stream.avail_in == 0) {
            const std::size_t part = std::min<std::size_t>(rest, 1u << 30);
            stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(next));
            stream.avail_in = static_cast<uInt>(part);
            next += part;
            rest -= part;
        }
        const std::size_t filled = unpacked.size();
        if (filled == unpacked.capacity())
            unpacked.reserve(std::max<std::size_t>(m_size * 4, filled * 2));
        const std::size_t room = std::min<std::size_t>(unpacked.capacity() - filled, 1u << 26);
        unpacked.resize(filled + room);
        stream.next_out = reinterpret_cast<Bytef*>(unpacked.data() + filled);
        stream.avail_out = static_cast<uInt>(room);
        state = inflate(&stream, Z_NO_FLUSH);
        unpacked.resize(unpacked.size() - stream.avail_out);
        if (unpacked.size() > LargestUnpacked)
            state = Z_MEM_ERROR;
    }
    inflateEnd(&stream);
    if (state != Z_STREAM_END) {
        error = "its compressed form is damaged or cut off";
        return false;
    }
    m_unpacked = std::move(unpacked);
    m_file.close();
    m_data = m_unpacked.data();
    m_size = m_unpacked.size();
    return true;
}

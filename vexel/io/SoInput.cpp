#include <vexel/io/SoInput.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <mutex>

#include <QDir>
#include <QFileInfo>

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SoPath.h>
#include <vexel/base/SoReadError.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/detail/BinaryReader.h>
#include <vexel/io/detail/FileContent.h>
#include <vexel/io/detail/Header.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/nodes/SoNode.h>

namespace {

constexpr int MostErrorsPosted = 100;

struct MemoryFiles {
    std::map<SbString, SbString> texts;
    std::mutex mutex;
};

MemoryFiles& memoryFiles()
{
    static MemoryFiles files;
    return files;
}

} // namespace

SoInput::SoInput() = default;

SoInput::~SoInput()
{
    closeFile();
}

bool SoInput::openFile(const SbString& fileName, bool okIfNotFound)
{
    closeFile();
    const SbString found = findFile(fileName);
    std::string error = "there is no such file";
    if (!found.isEmpty())
        m_content = FileContent::open(found.toQString(), error);
    if (!m_content) {
        if (!okIfNotFound || !found.isEmpty())
            SoReadError::post(fileName, "%s", error.c_str());
        return false;
    }
    m_fileName = found;
    setText(m_content->data(), m_content->size());
    return true;
}

void SoInput::setBuffer(const void* data, std::size_t size)
{
    closeFile();
    setText(static_cast<const char*>(data), size);
}

void SoInput::setText(const char* data, std::size_t size)
{
    m_header = SceneHeader::find(data, size);
    m_text = TextReader(data, data + size);
    if (m_header.kind != SceneHeader::Kind::None)
        m_text.setPosition(data + m_header.length);
    else if (size >= 3 && std::memcmp(data, "\xEF\xBB\xBF", 3) == 0)
        m_text.setPosition(data + 3);
    m_nextProgress = data;
    m_errors = 0;
}

void SoInput::dropReaders()
{
    m_reader.reset();
    m_binaryReader.reset();
}

void SoInput::closeFile()
{
    dropReaders();
    m_text = TextReader();
    m_content.reset();
    m_fileName = SbString();
    m_header = SceneHeader();
}

SbString SoInput::getCurFileName() const
{
    return m_fileName;
}

bool SoInput::eof()
{
    return !isBinary() && m_text.peek() == 0;
}

void SoInput::addDirectoryFirst(const SbString& directory)
{
    m_directories.insert(m_directories.begin(), directory);
}

void SoInput::addDirectoryLast(const SbString& directory)
{
    m_directories.push_back(directory);
}

void SoInput::removeDirectory(const SbString& directory)
{
    m_directories.erase(std::remove(m_directories.begin(), m_directories.end(), directory), m_directories.end());
}

SbString SoInput::findFile(const SbString& fileName) const
{
    const QString name = SbFileHelper::expandString(fileName).toQString();
    if (name.isEmpty())
        return SbString();
    std::vector<QString> candidates{name};
    if (QFileInfo(name).isRelative()) {
        for (const SbString& directory : m_directories)
            candidates.push_back(QDir(directory.toQString()).filePath(name));
    }
    for (const QString& candidate : candidates) {
        const QFileInfo info(candidate);
        if (info.exists() && !info.isDir())
            return SbString(info.absoluteFilePath());
    }
    return SbString();
}

void SoInput::addInMemoryTextFile(const SbString& name, const SbString& text)
{
    MemoryFiles& files = memoryFiles();
    std::lock_guard lock(files.mutex);
    files.texts[name] = text;
}

bool SoInput::readTextFile(const SbString& name, SbString& text)
{
    {
        MemoryFiles& files = memoryFiles();
        std::lock_guard lock(files.mutex);
        if (const auto found = files.texts.find(name); found != files.texts.end()) {
            text = found->second;
            return true;
        }
    }
    QFile file(name.toQString());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    text = SbString(QString::fromUtf8(file.readAll()));
    return true;
}

bool SoInput::readText(std::string& text)
{
    return m_text.readText(text) ||
           postError(m_text.peek() == '"' ? "a closing quote, which is missing up to the end" : "a text");
}

bool SoInput::postError(const char* expected)
{
    const char* place = (m_text.skipSpace(), m_text.position());
    const std::string_view word = m_text.peekWord();
    const std::string found = place == m_text.end() ? "the end" : "\"" + std::string(word) + "\"";
    return postErrorAt(place, std::string("expected ") + expected + ", found " + found);
}

bool SoInput::postErrorAt(const char* place, const std::string& message)
{
    ++m_errors;
    if (m_quiet || m_errors > MostErrorsPosted)
        return false;
    const TextReader::Location location = m_text.locate(place);
    const QString file = m_fileName.isEmpty() ? QStringLiteral("text") : m_fileName.toQString();
    SoReadError::post(SbString(QStringLiteral("%1:%2:%3").arg(file).arg(location.line).arg(location.column)), "%s",
                      message.c_str());
    return false;
}

bool SoInput::postErrorAtByte(std::size_t byte, const char* message)
{
    ++m_errors;
    if (!m_quiet && m_errors <= MostErrorsPosted)
        SoReadError::post(m_fileName.isEmpty() ? SbString("binary scene") : m_fileName, "at byte %zu: %s", byte,
                          message);
    return false;
}

bool SoInput::checkHeader()
{
    // A text in memory may come without a header, from a clipboard for one; a file may not.
    if (m_header.kind == SceneHeader::Kind::None && m_content) {
        const char* end = std::find_if(m_text.begin(), std::min(m_text.begin() + 60, m_text.end()),
                                       [](char c) { return c == '\n' || c == '\r'; });
        return postErrorAt(m_text.begin(),
                           "not a Vexel scene file; its first line is \"" +
                               SbString(std::string_view(m_text.begin(), end - m_text.begin())).toUtf8().toStdString() +
                               "\"");
    }
    if (m_header.preRead)
        m_header.preRead(m_header.data, this);
    return true;
}

SoInput::Item SoInput::readItem(SoBase*& base)
{
    base = nullptr;
    if (isBinary()) {
        if (!m_binaryReader) {
            m_binaryReader = std::make_unique<BinaryReader>(*this, m_text.position(),
                                                            static_cast<std::size_t>(m_text.end() - m_text.position()));
            if (!m_binaryReader->open())
                m_text.setPosition(m_text.end());
        }
        if (m_text.position() == m_text.end())
            return Item::Nothing;
        if (!m_binaryReader->readItem(base))
            return Item::Error;
        return base ? Item::Object : Item::Nothing;
    }
    SoNode* node = nullptr;
    SoPath* path = nullptr;
    for (;;) {
        switch (sceneReader().readItem(node, path)) {
        case SceneReader::Item::Global:
            break;
        case SceneReader::Item::Nothing:
            return Item::Nothing;
        case SceneReader::Item::Error:
            return Item::Error;
        default:
            base = node ? static_cast<SoBase*>(node) : path;
            return Item::Object;
        }
    }
}

void SoInput::postErrorCount()
{
    if (m_errors > MostErrorsPosted && !m_quiet)
        SoReadError::post(m_fileName, "%d errors in all; only the first %d were reported", m_errors, MostErrorsPosted);
}

void SoInput::reportProgress(const char* position)
{
    const auto size = m_text.end() - m_text.begin();
    if (size <= 0)
        return;
    m_nextProgress = position + std::max<std::ptrdiff_t>(size / 100, 1 << 16);
    progressChanged(100.0 * static_cast<double>(position - m_text.begin()) / static_cast<double>(size));
}

void SoInput::progressChanged(double) {}

SceneReader& SoInput::sceneReader()
{
    if (!m_reader)
        m_reader = std::make_unique<SceneReader>(*this);
    return *m_reader;
}

bool SoInput::readFields(SoFieldContainer& container)
{
    return sceneReader().readFields(container);
}

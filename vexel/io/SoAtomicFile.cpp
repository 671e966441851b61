#include <vexel/io/SoAtomicFile.h>

#include <cerrno>

#include <QtCore/QFileInfo>

qint64 SoAtomicFile::File::writeData(const char* data, qint64 length)
{
    qint64 written = 0;
    while (written < length) {
        const qint64 more = QSaveFile::writeData(data + written, length - written);
        if (more <= 0) {
            if (failure.isEmpty())
                failure = qt_error_string(errno);
            return -1;
        }
        written += more;
    }
    return written;
}

bool SoAtomicFile::open(const SbString& fileName)
{
    cancel();
    m_file.setFileName(fileName.toQString());
    m_file.failure.clear();
    const QFileInfo there(m_file.fileName());
    const bool isReplaceable =
        !there.exists() || there.isFile() || there.isDir(); // of folders the file itself complains
    m_failure = isReplaceable ? QString() : QStringLiteral("it is a device or a pipe");
    return isReplaceable && m_file.open(QIODevice::WriteOnly);
}

void SoAtomicFile::cancel()
{
    giveUp("it was not completed");
}

void SoAtomicFile::giveUp(const SbString& reason)
{
    if (!m_file.isOpen())
        return;
    m_failure = reason.toQString();
    m_file.cancelWriting();
    m_file.commit();
}

SbString SoAtomicFile::getReason() const
{
    if (!m_file.failure.isEmpty())
        return m_file.failure;
    return m_failure.isEmpty() ? m_file.errorString() : m_failure;
}

SbString SoAtomicFile::getErrorText() const
{
    return "cannot write \"" + m_file.fileName() + "\": " + getReason().toQString();
}

#include "AtomicFile.h"

bool AtomicFile::open(const SbString& fileName)
{
    cancel();
    m_file.setFileName(fileName.toQString());
    return m_file.open(QIODevice::WriteOnly);
}

void AtomicFile::cancel()
{
    if (!m_file.isOpen())
        return;
    m_file.cancelWriting();
    m_file.commit();
}

SbString AtomicFile::getErrorText() const
{
    return "cannot write \"" + m_file.fileName() + "\": " + m_file.errorString();
}

#include "SoVectorOutput.h"

SoVectorOutput::~SoVectorOutput() = default;

bool SoVectorOutput::openFile(const SbString& fileName)
{
    cancelFile();
    m_file.setFileName(fileName.toQString());
    return m_file.open(QIODevice::WriteOnly);
}

bool SoVectorOutput::closeFile()
{
    return m_file.commit();
}

void SoVectorOutput::cancelFile()
{
    if (!m_file.isOpen())
        return;
    m_file.cancelWriting();
    m_file.commit();
}

SbString SoVectorOutput::getErrorText() const
{
    return "cannot write \"" + m_file.fileName() + "\": " + m_file.errorString();
}

#include "SoVectorOutput.h"

#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>

SoVectorOutput::~SoVectorOutput() = default;

bool SoVectorOutput::openFile(const SbString& fileName)
{
    cancelFile();
    m_file.setFileName(fileName.toQString());
    return m_file.open(QIODevice::WriteOnly) || fail("SoVectorOutput::openFile");
}

bool SoVectorOutput::closeFile()
{
    return m_file.commit() || fail("SoVectorOutput::closeFile");
}

void SoVectorOutput::cancelFile()
{
    if (!m_file.isOpen())
        return;
    m_file.cancelWriting();
    m_file.commit();
}

bool SoVectorOutput::fail(const char* method)
{
    SoDebugError::post(method, "cannot write \"%s\": %s", m_file.fileName().toUtf8().constData(),
                       m_file.errorString().toUtf8().constData());
    return false;
}

#include "SceneFile.h"

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

namespace {

void printError(const SoError* error, void* data)
{
    ++*static_cast<int*>(data);
    std::fprintf(stderr, "%s\n", error->getDebugString().toUtf8().constData());
}

} // namespace

SceneFile::SceneFile(const std::string& fileName)
{
    SoReadError::setHandlerCallback(printError, &m_numErrors);
    SoInput in;
    const SbString name(fileName.c_str());
    if (in.openFile(name)) {
        m_isBinary = in.isBinary();
        in.addDirectoryFirst(SbFileHelper::getDirName(in.getCurFileName()));
        m_root = SoDB::readAll(&in);
    }
    if (m_root)
        m_root->ref();
    SoReadError::setHandlerCallback(nullptr);
}

SceneFile::~SceneFile()
{
    if (m_root)
        m_root->unref();
}

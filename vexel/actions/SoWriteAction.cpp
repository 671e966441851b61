#include <vexel/actions/SoWriteAction.h>

#include <vexel/base/SoPath.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/BinaryWriter.h>
#include <vexel/io/detail/SceneWriter.h>
#include <vexel/nodes/SoNode.h>

void SoWriteAction::visitNode(SoNode& root)
{
    m_out->writeHeader();
    const SoPath* path = getPathAppliedTo();
    SceneWriter& writer = m_out->sceneWriter();
    if (path)
        writer.beginPath(*path);
    else
        writer.prepare(&root);
    if (m_out->isBinary())
        BinaryWriter(*m_out).write(root, path);
    else if (path)
        writer.writePath(path);
    else
        writer.writeContainer(&root);
    if (path)
        writer.endPath();
    if (!m_out->isBinary())
        m_out->writeNewLine();
}

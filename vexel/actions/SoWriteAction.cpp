#include <vexel/actions/SoWriteAction.h>

#include <vexel/base/SoPath.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/BinaryWriter.h>
#include <vexel/io/detail/SceneWriter.h>
#include <vexel/nodes/SoNode.h>

void SoWriteAction::visitNode(SoNode& root)
{
    m_out->writeHeader();
    if (m_out->isBinary()) {
        BinaryWriter(*m_out).write(root, getPathAppliedTo());
        return;
    }
    SceneWriter& writer = m_out->sceneWriter();
    writer.prepare(&root);
    if (getPathAppliedTo())
        writer.writePath(getPathAppliedTo());
    else
        writer.writeContainer(&root);
    m_out->writeNewLine();
}

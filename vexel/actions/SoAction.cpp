#include <vexel/actions/SoAction.h>

#include <vexel/base/SoPath.h>
#include <vexel/base/SoPathList.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

SoType SoAction::getClassTypeId()
{
    static const SoType type = SoType::createType(SoType(), "SoAction");
    return type;
}

SoAction::SoAction() = default;

SoAction::~SoAction() = default;

void SoAction::apply(SoNode* root)
{
    if (root)
        run(*root, nullptr);
}

void SoAction::apply(SoPath* path)
{
    if (path && path->getHead())
        run(*path->getHead(), path);
}

void SoAction::apply(const SoPathList& paths)
{
    for (int i = 0; i < paths.getLength(); ++i)
        apply(paths[i]);
}

void SoAction::run(SoNode& root, SoPath* path)
{
    // Held, so that a callback on the way may drop the graph or the path.
    root.ref();
    if (path)
        path->ref();
    const SbViewportRegion viewport = m_state.getViewportRegion();
    m_state = SoState();
    m_state.setViewportRegion(viewport);
    m_way.clear();
    m_path = path;
    m_followed = 0;
    m_terminated = false;

    beginTraversal();
    traverseStep(root, -1);
    endTraversal();

    m_way.clear();
    m_path = nullptr;
    if (path)
        path->unref();
    root.unrefNoDelete();
}

void SoAction::traverseStep(SoNode& node, int index)
{
    if (m_terminated)
        return;
    const int followed = m_followed;
    const bool goesAlong = m_path && followed == static_cast<int>(m_way.size()) && followed < m_path->getFullLength() &&
                           m_path->getNode(followed) == &node && (followed == 0 || m_path->getIndex(followed) == index);
    if (goesAlong)
        ++m_followed;
    m_way.push_back({&node, index});
    visitNode(node);
    m_way.pop_back();
    m_followed = followed;
}

void SoAction::traverse(SoNode& node)
{
    traverseStep(node, -1);
}

bool SoAction::isOnPath() const
{
    return m_path && m_followed == static_cast<int>(m_way.size()) && m_followed < m_path->getFullLength();
}

int SoAction::getPathChild() const
{
    return isOnPath() ? m_path->getIndex(m_followed) : -1;
}

void SoAction::traverseChildren(const SoChildList& children)
{
    const int last = isOnPath() ? getPathChild() : children.getLength() - 1;
    // Children may go while they are traversed, so the length is asked for each time.
    for (int i = 0; i <= last && i < children.getLength() && !m_terminated; ++i) {
        if (isOnPath() && i < last && !children[i]->affectsState())
            continue;
        traverseStep(*children[i], i);
    }
}

void SoAction::traverseChild(const SoChildList& children, int index)
{
    if (index < 0 || index >= children.getLength())
        return;
    const bool isBeside = isOnPath() && getPathChild() != index;
    if (!isBeside || children[index]->affectsState())
        traverseStep(*children[index], index);
}

SoPath* SoAction::getCurPath() const
{
    auto* path = new SoPath;
    for (const Step& step : m_way) {
        if (step.index < 0)
            path->append(step.node);
        else
            path->append(step.index);
    }
    return path;
}

void SoAction::visitNode(SoNode& node)
{
    node.doAction(*this);
}

void SoAction::visitShape(SoShape&) {}

bool SoAction::enterSeparator(SoSeparator&)
{
    return true;
}

void SoAction::leaveSeparator(SoSeparator&) {}

void SoAction::visitCamera(const SoCamera&) {}

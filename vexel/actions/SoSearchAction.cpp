#include <vexel/actions/SoSearchAction.h>

#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoNode.h>

SoSearchAction::~SoSearchAction()
{
    setNode(nullptr);
}

void SoSearchAction::setNode(SoNode* node)
{
    if (node)
        node->ref();
    if (m_node)
        m_node->unref();
    m_node = node;
    m_find = node ? m_find | NODE : m_find & ~NODE;
}

void SoSearchAction::setType(SoType type, bool derivedIsOk)
{
    m_type = type;
    m_derivedIsOk = derivedIsOk;
    m_find |= TYPE;
}

void SoSearchAction::setName(const SbName& name)
{
    m_name = name;
    m_find |= NAME;
}

SoPath* SoSearchAction::getPath() const
{
    return m_paths.getLength() > 0 ? m_paths[m_interest == LAST ? m_paths.getLength() - 1 : 0] : nullptr;
}

void SoSearchAction::reset()
{
    setNode(nullptr);
    m_type = SoType();
    m_derivedIsOk = true;
    m_name = SbName();
    m_find = 0;
    m_interest = FIRST;
    m_searchingAll = false;
    m_paths.truncate(0);
}

void SoSearchAction::beginTraversal()
{
    m_paths.truncate(0);
}

bool SoSearchAction::fits(const SoNode& node) const
{
    if ((m_find & NODE) && &node != m_node)
        return false;
    if ((m_find & TYPE) && !(m_derivedIsOk ? node.isOfType(m_type) : node.getTypeId() == m_type))
        return false;
    if ((m_find & NAME) && node.getName() != m_name)
        return false;
    return m_find != 0;
}

void SoSearchAction::visitNode(SoNode& node)
{
    if (fits(node)) {
        if (m_interest == LAST)
            m_paths.truncate(0);
        m_paths.append(getCurPath());
        if (m_interest == FIRST) {
            setTerminated(true);
            return;
        }
    }
    SoAction::visitNode(node);
}

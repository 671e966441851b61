#include <vexel/base/SoPath.h>

#include <algorithm>

#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

SoType SoPath::getClassTypeId()
{
    static const SoType type = SoType::createType(SoBase::getClassTypeId(), "SoPath");
    return type;
}

SoPath::SoPath(SoNode* head)
{
    setHead(head);
}

SoPath::~SoPath()
{
    truncate(0);
}

void SoPath::setHead(SoNode* head)
{
    truncate(0);
    if (head)
        appendStep(head, -1);
}

SoNode* SoPath::getHead() const
{
    return m_steps.empty() ? nullptr : m_steps.front().node;
}

void SoPath::appendStep(SoNode* node, int index)
{
    node->ref();
    node->addAuditor(this, SoAuditorType::Path);
    m_steps.push_back({node, index});
}

bool SoPath::append(int childIndex)
{
    if (m_steps.empty())
        return false;
    const SoChildList* children = m_steps.back().node->getChildren();
    if (!children || childIndex < 0 || childIndex >= children->getLength())
        return false;
    appendStep((*children)[childIndex], childIndex);
    return true;
}

void SoPath::append(SoNode* node)
{
    if (m_steps.empty())
        setHead(node);
    else
        appendStep(node, Unresolved);
}

void SoPath::append(const SoPath& path)
{
    const std::size_t first = !m_steps.empty() && m_steps.back().node == path.getHead() ? 1 : 0;
    for (std::size_t i = first; i < path.m_steps.size(); ++i)
        appendStep(path.m_steps[i].node, i == 0 ? (m_steps.empty() ? -1 : Unresolved) : path.m_steps[i].index);
}

void SoPath::truncate(int length)
{
    while (static_cast<int>(m_steps.size()) > std::max(length, 0)) {
        SoNode* node = m_steps.back().node;
        m_steps.pop_back();
        node->removeAuditor(this, SoAuditorType::Path);
        node->unref();
    }
}

int SoPath::getLength() const
{
    const auto kit = std::find_if(m_steps.begin(), m_steps.end(),
                                  [](const Step& step) { return step.node->isOfType(SoBaseKit::getClassTypeId()); });
    return static_cast<int>(kit == m_steps.end() ? m_steps.size() : std::size_t(kit - m_steps.begin()) + 1);
}

SoNode* SoPath::getNodeFromTail(int i) const
{
    const int place = getLength() - 1 - i;
    return place < 0 ? nullptr : getNode(place);
}

void SoPath::resolve(std::size_t i) const
{
    const SoChildList* children = m_steps[i - 1].node->getChildren();
    m_steps[i].index = children ? children->find(m_steps[i].node) : -1;
}

int SoPath::getIndex(int i) const
{
    const auto place = static_cast<std::size_t>(i);
    if (m_steps[place].index == Unresolved)
        resolve(place);
    return m_steps[place].index;
}

bool SoPath::containsNode(const SoNode* node) const
{
    return std::any_of(m_steps.begin(), m_steps.end(), [node](const Step& step) { return step.node == node; });
}

bool SoPath::containsPath(const SoPath& path) const
{
    for (std::size_t start = 0; start + path.m_steps.size() <= m_steps.size(); ++start) {
        bool same = true;
        for (std::size_t i = 0; i < path.m_steps.size() && same; ++i) {
            same = m_steps[start + i].node == path.m_steps[i].node &&
                   (i == 0 || getIndex(static_cast<int>(start + i)) == path.getIndex(static_cast<int>(i)));
        }
        if (same)
            return true;
    }
    return false;
}

int SoPath::findFork(const SoPath& path) const
{
    int fork = -1;
    const int common = std::min(getFullLength(), path.getFullLength());
    while (fork + 1 < common && getNode(fork + 1) == path.getNode(fork + 1) &&
           getIndex(fork + 1) == path.getIndex(fork + 1))
        ++fork;
    return fork;
}

SoPath* SoPath::copy(int start, int num) const
{
    auto* result = new SoPath;
    const int end = num < 0 ? getFullLength() : std::min(getFullLength(), start + num);
    for (int i = start; i < end; ++i)
        result->appendStep(getNode(i), i == start ? -1 : m_steps[static_cast<std::size_t>(i)].index);
    return result;
}

bool SoPath::operator==(const SoPath& other) const
{
    return getFullLength() == other.getFullLength() && findFork(other) == getFullLength() - 1;
}

SoPath* SoPath::getByName(const SbName& name)
{
    return static_cast<SoPath*>(getNamedBase(name, getClassTypeId()));
}

void SoPath::childInserted(SoNode* parent, int index)
{
    for (std::size_t i = 1; i < m_steps.size(); ++i) {
        if (m_steps[i - 1].node == parent && m_steps[i].index >= index)
            ++m_steps[i].index;
    }
}

void SoPath::childRemoved(SoNode* parent, int index)
{
    for (std::size_t i = 1; i < m_steps.size(); ++i) {
        if (m_steps[i - 1].node != parent)
            continue;
        // A place not looked up yet is looked up now; the child that went is not found any more.
        if (m_steps[i].index == Unresolved) {
            resolve(i);
            if (m_steps[i].index == -1 && parent->getChildren())
                m_steps[i].index = Unresolved;
            continue;
        }
        if (m_steps[i].index == index) {
            truncate(static_cast<int>(i));
            return;
        }
        if (m_steps[i].index > index)
            --m_steps[i].index;
    }
}

void SoPath::childReplaced(SoNode* parent, int index)
{
    for (std::size_t i = 1; i < m_steps.size(); ++i) {
        if (m_steps[i - 1].node == parent && getIndex(static_cast<int>(i)) == index) {
            truncate(static_cast<int>(i));
            return;
        }
    }
}

void SoPath::allChildrenRemoved(SoNode* parent)
{
    for (std::size_t i = 1; i < m_steps.size(); ++i) {
        if (m_steps[i - 1].node == parent) {
            truncate(static_cast<int>(i));
            return;
        }
    }
}

#include <vexel/nodes/SoSelection.h>

#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/SoSearchAction.h>
#include <vexel/base/SoPath.h>

SoPath* SoSelection::fromHere(const SoPath* path) const
{
    for (int i = 0; path && i < path->getFullLength(); ++i) {
        if (path->getNode(i) == this)
            return path->copy(i);
    }
    return nullptr;
}

SoPath* SoSelection::pathTo(SoNode* node) const
{
    if (!node)
        return nullptr;
    SoSearchAction search;
    search.setNode(node);
    search.setSearchingAll(true);
    search.apply(const_cast<SoSelection*>(this));
    return search.getPath() ? search.getPath()->copy() : nullptr;
}

// Does something with a path made for it, which is gone afterwards unless the list took it.
template <class Change>
void SoSelection::change(SoPath* ownPath, Change&& change)
{
    if (!ownPath)
        return;
    ownPath->ref();
    change(*ownPath, m_selected.findPath(*ownPath));
    ownPath->unref();
}

void SoSelection::add(SoPath* path)
{
    m_selected.append(path);
    m_onSelect.call(path);
    m_onChange.call(this);
}

void SoSelection::removeAt(int index)
{
    SoPath* path = m_selected[index];
    path->ref();
    m_selected.remove(index);
    m_onDeselect.call(path);
    m_onChange.call(this);
    path->unref();
}

void SoSelection::select(const SoPath* path)
{
    change(fromHere(path), [this](SoPath& own, int index) {
        if (index < 0)
            add(&own);
    });
}

void SoSelection::select(SoNode* node)
{
    change(pathTo(node), [this](SoPath& own, int) { select(&own); });
}

void SoSelection::deselect(const SoPath* path)
{
    change(fromHere(path), [this](SoPath&, int index) { deselect(index); });
}

void SoSelection::deselect(SoNode* node)
{
    change(pathTo(node), [this](SoPath&, int index) { deselect(index); });
}

void SoSelection::deselect(int index)
{
    if (index >= 0 && index < getNumSelected())
        removeAt(index);
}

void SoSelection::toggle(const SoPath* path)
{
    if (isSelected(path))
        deselect(path);
    else
        select(path);
}

void SoSelection::toggle(SoNode* node)
{
    if (isSelected(node))
        deselect(node);
    else
        select(node);
}

void SoSelection::deselectAll()
{
    if (getNumSelected() == 0)
        return;
    const SoPathList before = m_selected;
    m_selected.truncate(0);
    for (int i = before.getLength() - 1; i >= 0; --i)
        m_onDeselect.call(before[i]);
    m_onChange.call(this);
}

bool SoSelection::isSelected(const SoPath* path) const
{
    bool found = false;
    const_cast<SoSelection*>(this)->change(fromHere(path), [&](SoPath&, int index) { found = index >= 0; });
    return found;
}

bool SoSelection::isSelected(SoNode* node) const
{
    bool found = false;
    const_cast<SoSelection*>(this)->change(pathTo(node), [&](SoPath&, int index) { found = index >= 0; });
    return found;
}

void SoSelection::setPickFilterCallback(PickFilter* filter, void* data)
{
    m_filter = filter;
    m_filterData = data;
}

void SoSelection::pick(const SoPath* picked, bool isShiftDown)
{
    SoPathList paths;
    if (picked)
        paths.append(picked->copy());
    pick(paths, isShiftDown);
}

void SoSelection::pick(const SoPathList& picked, bool isShiftDown)
{
    // The filter may answer the same path for several ones.
    SoPathList paths;
    for (int i = 0; i < picked.getLength(); ++i) {
        SoPath* path = m_filter ? m_filter(m_filterData, picked[i]) : picked[i];
        if (!path)
            continue;
        path->ref();
        if (paths.findPath(*path) < 0)
            paths.append(path);
        path->unref();
    }
    const bool toggles = policy.getValue() == TOGGLE || (policy.getValue() == SHIFT && isShiftDown);
    const bool isPresent = paths.getLength() == 1 && getNumSelected() == 1 && isSelected(paths[0]);
    m_onStart.call(this);
    if (!toggles && !isPresent)
        deselectAll();
    for (int i = 0; i < paths.getLength(); ++i) {
        if (toggles)
            toggle(paths[i]);
        else
            select(paths[i]);
    }
    m_onFinish.call(this);
}

void SoSelection::handleEvent(SoHandleEventAction& action)
{
    if (!SoMouseButtonEvent::isButtonPressEvent(action.getEvent(), SoMouseButtonEvent::BUTTON1))
        return;
    const SoPickedPoint* picked = action.getPickedPoint();
    pick(picked ? picked->getPath() : nullptr, action.getEvent()->wasShiftDown());
    if (picked)
        action.setHandled();
}

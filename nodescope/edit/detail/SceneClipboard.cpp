#include "SceneClipboard.h"
#include "EditMessages.h"

#include <vexel/actions/SoSearchAction.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>

#include <QClipboard>
#include <QGuiApplication>

#include <cstdlib>

namespace {

constexpr std::size_t First_buffer_size = 32000;

bool isEmptyOfShapes(const SoNode& separator)
{
    SoSearchAction search;
    search.setType(SoShape::getClassTypeId());
    search.setInterest(SoSearchAction::FIRST);
    search.apply(const_cast<SoNode*>(&separator));
    return !search.getPath();
}

bool isLeftOver(const SoNode& node)
{
    if (node.isOfType(SoSeparator::getClassTypeId()))
        return isEmptyOfShapes(node);
    return node.isOfType(SoGroup::getClassTypeId()) && static_cast<const SoGroup&>(node).getNumChildren() == 0;
}

/** Takes a node of a path out of the node before it, which ends the path there; not out of what a node made itself. */
bool removeFromPath(SoPath& path, int place)
{
    SoNode& parent = *path.getNode(place - 1);
    const int index =
        parent.hasFileChildren() ? parent.getChildren()->find(path.getNode(place), path.getIndex(place)) : -1;
    if (index >= 0)
        parent.getChildren()->remove(index);
    return index >= 0;
}

bool pruneOne(SoPath& path)
{
    for (int place = path.getFullLength() - 1; place > 0; --place) {
        const SoNode& node = *path.getNode(place);
        if (isLeftOver(node))
            return removeFromPath(path, place);
        if (node.isOfType(SoSeparator::getClassTypeId()))
            return false; // it has shapes, and so has all above it
    }
    return false;
}

} // namespace

void SceneClipboard::copy(const SoSelection& selection)
{
    if (selection.getNumSelected() == 0)
        return;
    void* buffer = std::malloc(First_buffer_size);
    if (!buffer) {
        EditMessages::showClipboardFull();
        return;
    }
    SoOutput output;
    output.setBuffer(buffer, First_buffer_size, std::realloc);
    SoWriteAction(&output).apply(selection.getPath(0));
    std::size_t size = 0;
    output.getBuffer(buffer, size); // which may have moved as it grew
    QGuiApplication::clipboard()->setText(QString::fromLatin1(static_cast<const char*>(buffer), int(size)));
    std::free(buffer);
}

void SceneClipboard::cut(SoSelection& selection)
{
    if (selection.getNumSelected() == 0)
        return;
    copy(selection);
    SoPath* const path = selection.getPath(0);
    path->ref();
    selection.deselectAll();
    bool isRemoved = path->getFullLength() > 1 && removeFromPath(*path, path->getFullLength() - 1);
    while (isRemoved)
        isRemoved = pruneOne(*path);
    path->unref();
}

void SceneClipboard::paste(SoSelection& selection)
{
    const QByteArray text = QGuiApplication::clipboard()->text().toLatin1();
    if (text.isEmpty())
        return;
    SoInput input;
    input.setBuffer(text.constData(), std::size_t(text.size()));
    SoPath* path = nullptr;
    if (!SoDB::read(&input, path) || !path)
        return;
    path->ref();
    if (path->getFullLength() > 1)
        selection.addChild(path->getNode(1));
    path->unref();
}

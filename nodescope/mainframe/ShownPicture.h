#pragma once

#include <nodescope/NodescopeApi.h>
#include <vexel/base/SbVec2s.h>

class QImage;
class SbString;
class SoNode;
class SoOffscreenRenderArea;
class SoSceneManager;

/** What the 3D view shows, for pictures of any size: the graph, its background and how it draws what is transparent. */
class NODESCOPE_API ShownPicture {
public:
    /** @param manager  of the view; null: there is none, and defaults are taken */
    ShownPicture(SoNode& root, const SoSceneManager* manager) : m_root(root), m_manager(manager) {}

    SoNode& root() const { return m_root; }
    const SoSceneManager* manager() const { return m_manager; }

    /** Draws it off screen; null, with an error posted, where that fails. */
    QImage render(const SbVec2s& pixels) const;
    /** The same into a file whose name's end chooses the format; false, with an error posted, where that fails. */
    bool renderToFile(const SbVec2s& pixels, const SbString& file) const;

private:
    template <class Use>
    auto withArea(const SbVec2s& pixels, Use&& use) const;

    SoNode& m_root;
    const SoSceneManager* m_manager;
};

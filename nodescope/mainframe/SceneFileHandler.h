#pragma once

#include <nodescope/NodescopeApi.h>

#include <QString>

class SoNode;

/** Opens and saves the shown scene, with all dialogs and prompts that belong to it. The main frame and the command
 * manager reach scene files through it. */
class NODESCOPE_API SceneFileHandler {
public:
    virtual ~SceneFileHandler() = default;

    /** Displays a scene, null for none; with `clearsUndo` nothing can be undone after that. */
    virtual void setScene(SoNode* scene, bool clearsUndo) = 0;
    /** Replaces the scene by an empty one; false when the user keeps the present one. */
    virtual bool newScene() = 0;
    virtual void openFile(const QString& file) = 0;
    /** As openFile(), for a file of the recent list, which may be gone. */
    virtual void openRecentFile(const QString& file) = 0;
    virtual void reload() = 0;
    virtual void save() = 0;
    /** Asks for a name and writes the sub-graph; null: the whole scene. */
    virtual void saveAs(SoNode* subgraph) = 0;
};

#pragma once

class SoNode;

/** What scene files are read into and written from. */
class SceneDocument {
public:
    virtual ~SceneDocument() = default;

    /** The displayed scene; null: none. One that was pasted to from elsewhere may be a new node that nobody references.
     */
    virtual SoNode* scene() const = 0;
    /** Displays a scene in place of the present one; with `resetCommands` nothing can be undone after that. */
    virtual void setSceneGraph(SoNode* root, bool resetCommands) = 0;
    /** Whether the user changed the scene since it was read or written. */
    virtual bool isModified() const = 0;
};

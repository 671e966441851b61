#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/mainframe/SceneFileHandler.h>

#include <memory>

class SceneDocument;
class SoInput;
class SoNodescopeMainFrame;

/** Opens and saves the displayed scene, with the main frame as parent of all dialogs. A scene that cannot be read
 * leaves the present one in place; a file is replaced only by a complete one. */
class NODESCOPE_API SceneFiles : public SceneFileHandler {
public:
    enum class WriteMode {
        KeepFormat, ///< ascii or binary as the existing file of that name; a new one is ascii
        Ascii,
        Binary
    };

    /** Neither is owned. */
    SceneFiles(SoNodescopeMainFrame& frame, SceneDocument& document) : m_frame(frame), m_document(document) {}

    /** Name of the file that the scene was read from or written to last; empty: none. */
    const QString& currentFile() const { return m_currentFile; }

    void setScene(SoNode* scene, bool clearsUndo) override;
    bool newScene() override;
    void openFile(const QString& file) override;
    void openRecentFile(const QString& file) override;
    void reload() override;
    void save() override;
    void saveAs(SoNode* subgraph) override;

    /**
     * Writes a graph; compressed when the name ends in "vxz" or "gz". A failure is shown to the user.
     * @param setAsScene  display the node as the scene afterwards
     * @return false when nothing was written, be it because the node is null
     */
    bool write(SoNode* node, const QString& file, WriteMode mode, bool setAsScene);

private:
    void load(const QString& file, std::unique_ptr<SoInput> input);
    bool mayDiscardChanges();
    void setCurrentFile(const QString& file);
    void useAsCurrentFile(const QString& file);

    SoNodescopeMainFrame& m_frame;
    SceneDocument& m_document;
    QString m_currentFile;
};

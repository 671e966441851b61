#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/preferences/DisplayElement.h>

#include <QStringList>

/**
 * The user's preferences. Every key of the program is read and written here; nothing is cached, so a value that another
 * window wrote is seen by the next read. Keys are a group string followed by the rest of the key. GUI thread only.
 *
 * A key that is missing reads as its default; writing to a store that cannot be written is silently lost.
 */
class NODESCOPE_API SoPreferenceStore {
public:
    static constexpr char TreeViewGroup[] = "/TreeViewPreferences/";
    static constexpr char FieldWatchGroup[] = "/FieldWatchPreferences/";
    static constexpr char NodeOverviewGroup[] = "/NodeOverviewPreferences/";
    static constexpr char MainFrameGroup[] = "/NodescopeViewer/NodescopeMainFrame";

    /** Sizes of an element's font, in points; others in the store count as damaged. */
    static constexpr int SmallestFont = 1;
    static constexpr int LargestFont = 200;

    /** The one store, created on first use. */
    static SoPreferenceStore* getInstance();
    /** Puts what was written on disk and deletes the store; the next getInstance() creates it anew. */
    static void deleteInstance();

    SoPreferenceStore(const SoPreferenceStore&) = delete;
    SoPreferenceStore& operator=(const SoPreferenceStore&) = delete;

    /** Typed access by full key. `exists`, when given, receives whether the key is in the store. */
    ///@{
    bool readBool(const QString& key, bool defaultValue, bool* exists = nullptr) const;
    int readInt(const QString& key, int defaultValue, bool* exists = nullptr) const;
    QString readString(const QString& key, const QString& defaultValue, bool* exists = nullptr) const;
    QStringList readStringList(const QString& key, bool* exists = nullptr) const;
    void writeBool(const QString& key, bool value);
    void writeInt(const QString& key, int value);
    void writeString(const QString& key, const QString& value);
    ///@}

    /** The elements of a page as they are before the user changes anything; empty for a group without elements. */
    DisplayElementMap defaultElements(const QString& group) const;
    /** The elements of a page as stored. An element of which any key is missing keeps its default entirely. */
    DisplayElementMap loadElements(const QString& group) const;
    void saveElements(const QString& group, const DisplayElementMap& elements);

    /** Width in pixels of a list's column; -1 when there is none. */
    int readColumnWidth(const QString& group, int column) const;
    void writeColumnWidth(const QString& group, int column, int width);

    bool readShowCatalogPart(const QString& group) const;
    void writeShowCatalogPart(const QString& group, bool isOn);
    bool readHighlightSelectedNode(const QString& group) const;
    void writeHighlightSelectedNode(const QString& group, bool isOn);
    bool readRealNodekitsCounter(const QString& group) const;
    void writeRealNodekitsCounter(const QString& group, bool isOn);

    /** The 3D view's key "/ViewerPreferences/TransparencyType": a value of SoGLRenderAction::TransparencyType as int;
     * SORTED_OBJECT when it is none. */
    int readTransparencyType() const;
    void writeTransparencyType(int type);
    /** The 3D view's key "/ViewerPreferences/BackgroundColor": text "#rrggbb"; defaultBackground() when it is none. */
    QColor readBackground() const;
    void writeBackground(const QColor& color);
    /** Before it dark and bright things are both seen. */
    static QColor defaultBackground() { return QColor(0x3d, 0x45, 0x4f); }

private:
    SoPreferenceStore() = default;
    ~SoPreferenceStore() = default;
};

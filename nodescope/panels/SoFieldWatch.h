#pragma once

#include <nodescope/panels/SoNodescopeList.h>

class QContextMenuEvent;
class SoNode;

/**
 * Fields of any nodes that the user keeps in view. An entry is a row of its own with its own sensor; it goes when the
 * node of its field goes.
 */
class NODESCOPE_API SoFieldWatch : public SoNodescopeList {
    Q_OBJECT
public:
    explicit SoFieldWatch(QWidget* parent = nullptr, const QString& name = QStringLiteral("SoFieldWatch"));

    /** Watches the field of a row of another list. Null when it is watched already, or holds nodes. */
    SoFieldItem* addEntry(const SoFieldItem& row);
    /** Removes all entries. */
    void clearEntries();
    /** Gives all entries the name of a node. */
    void nodeNameChanged(const SoNode* node);

signals:
    /** All entries were removed. */
    void listCleared();
    /** An entry was chosen: its field is to be edited. */
    void entrySelected(QTreeWidgetItem* entry);
    /** The row from which the entry was made is to be shown: it was double-clicked, or Return pressed. */
    void overviewRequested(QTreeWidgetItem* entry);
    /** The user wants an entry to be removed. */
    void deleteRequested(QTreeWidgetItem* entry);
    /** A row of another list was dropped here, at a place of the screen. */
    void rowDropped(SoFieldItem* row, QPoint place);
    /** The panel got the keyboard. */
    void focusReceived();
    /** A menu is wanted; the place of the event is one of the viewport. */
    void contextMenuRequested(QContextMenuEvent* event);

public slots:
    /** Reads fonts and colours from the preference store. */
    void initPreferences();
    void setPreferences();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

protected slots:
    void fieldSelectionChanged();
    void showContextMenu(const QPoint& place);
};

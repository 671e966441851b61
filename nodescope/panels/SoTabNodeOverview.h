#pragma once

#include <nodescope/NodescopeApi.h>

#include <QTabWidget>

class QTreeWidgetItem;
class SoBaseKit;
class SoFieldContainer;
class SoNode;
class SoNodeOverview;

/** The node overview: field containers side by side, each on a page of its own. There is always one page at least. */
class NODESCOPE_API SoTabNodeOverview : public QTabWidget {
    Q_OBJECT
public:
    explicit SoTabNodeOverview(QWidget* parent = nullptr);

    SoNodeOverview* page(int index) const;
    SoNodeOverview* currentPage() const;
    /** Adds an empty page and makes it current. */
    SoNodeOverview* addPage();
    /** Shows a container on the current page; see SoNodeOverview. */
    void setNodeOverview(SoFieldContainer* container, SoBaseKit* kit);
    /** Closes all pages but the first, which is emptied. */
    void reset();
    /** A node has another name: pages that show it follow. */
    void updateName(SoNode* node);

signals:
    /** What is shown has no field that could be edited. */
    void clearFieldEditorEvent();
    /** The current page shows something else; null: nothing. */
    void containerShown(SoFieldContainer* container);
    /** Another page became current. */
    void currentPageChanged();
    /** Another row of the current page became current; null: none. */
    void fieldRowChanged(QTreeWidgetItem* row, QTreeWidgetItem* previousRow);

    // What the user does on a page; see SoNodeOverview.
    void nodeNameChanged(SoNode* node);
    void overrideRequested(bool on);
    void watchRequested();

public slots:
    /** Closes a page unless it is the only one; -1: the current one. */
    void closeNodeOverview(int index);
    void closeNodeOverview();
    /** Reads fonts, colours and shown fields of all pages from the preference store. */
    void initPreferences();
    /** The same after the store got new values. */
    void setPreferences();
    void tabNodeOverviewChanged(int index);
    /** The user gave a column another width: all pages take it, and the preference store. */
    void overviewColumnListChanged(int column, int width);
    void tabClose(int index);

private:
    void connectPage(SoNodeOverview& page);
    void showTitle(SoNodeOverview& page);
};

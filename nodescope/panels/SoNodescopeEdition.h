#pragma once

#include <nodescope/NodescopeApi.h>

#include <QObject>

class QDockWidget;
class QTreeWidgetItem;
class SoBaseKit;
class SoField;
class SoFieldContainer;
class SoFieldItem;
class SoFieldWatch;
class SoTabNodeOverview;

/** Ties the panels of fields together: the node overview and the field watch, each in a dock. */
class NODESCOPE_API SoNodescopeEdition : public QObject {
    Q_OBJECT
public:
    /** Puts the panels into the docks, which own them from then on. */
    SoNodescopeEdition(QObject* parent, QDockWidget* overviewDock, QDockWidget* watchDock);

    SoTabNodeOverview& overview() const { return *m_overview; }
    SoFieldWatch& fieldWatch() const { return *m_fieldWatch; }
    /** Brings the panels to the screen and shows a container; see SoNodeOverview.
     * @param addTab  on a new page of the overview */
    void showContainer(SoFieldContainer* container, SoBaseKit* kit, bool addTab);
    /** Makes the row current that shows a field on the current page, if there is one; nobody is told. */
    void followField(SoField* field);
    /** Empties the panels. */
    void clear();

signals:
    /** The user chose a field in a list; null: none. */
    void fieldSelected(SoField* field);
    /** The field of a row is to be watched. */
    void fieldWatchRequested(SoFieldItem* row);

public slots:
    /** A row of a field list was chosen; null: none. */
    void setField(QTreeWidgetItem* row, QTreeWidgetItem* previousRow = nullptr);
    /** Watches the field of the overview's current row, unless it holds nodes. */
    void addFieldWatch();

private:
    QDockWidget* m_overviewDock;
    QDockWidget* m_watchDock;
    SoTabNodeOverview* m_overview;
    SoFieldWatch* m_fieldWatch;
};

#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/preferences/DisplayElement.h>

#include <QIcon>
#include <QTimer>
#include <QTreeWidget>

class SoField;
class SoFieldContainer;
class SoFieldItem;

/**
 * A list of fields with their values, kept current while they change. Rows are SoFieldItem, all top-level.
 *
 * Changes are shown several times a second, however often they come, and not before the list is visible.
 */
class NODESCOPE_API SoNodescopeList : public QTreeWidget {
    Q_OBJECT
public:
    explicit SoNodescopeList(QWidget* parent = nullptr);

    /** Whether the names that containers have in a distributed application are shown. */
    static bool showsNetNames();

    SoFieldItem* currentRow() const;
    SoFieldItem* row(int i) const;
    /** The row of a field; null for none. */
    SoFieldItem* findRow(const SoField* field) const;
    /** The first row that can be chosen; null for none. */
    SoFieldItem* firstEnabledRow() const;
    /** Puts rows, which are to be SoFieldItem, behind the others. */
    void addRows(const QList<QTreeWidgetItem*>& rows);
    void removeRow(SoFieldItem* row);
    /** Removes all rows of a container, which may be half destroyed: none of its fields is looked at. */
    void removeRowsOf(const SoFieldContainer& container);

    /** Whether rows of fields that hold parts of a kit are shown; initially they are. */
    void setShowPartRows(bool on);
    bool showsPartRows() const { return m_showsPartRows; }

    /** How fields with their default value and others are written. */
    void setHighlighting(const DisplayElement& defaultValue, const DisplayElement& changedValue);
    const DisplayElement& highlighting(bool isChanged) const { return isChanged ? m_changedValue : m_defaultValue; }

    const QIcon& ignoredIcon() const { return m_ignoredIcon; }
    const QIcon& connectedIcon() const { return m_connectedIcon; }

    void refreshRow(SoFieldItem* row);
    /** Refreshes the rows whose fields changed, together with others that change meanwhile. */
    void refreshLater();

    /** Changes a width, in pixels; 0 hides the column. */
    void setColumnWidth(int column, int width);
    /** The same without telling anybody. */
    void takeColumnWidth(int column, int width);
    /** Gives the columns the widths that the store holds for a page; the width with number i is that of column i + 1.
     * Columns without a stored width keep theirs. */
    void restoreColumnWidths(const QString& group);

signals:
    /** A width was changed through setColumnWidth() or by dragging. */
    void columnWidthChanged(int column, int newWidth);
    /** The rows of a container that was destroyed are gone. */
    void containerGone();

public slots:
    /** Shows only fields that do not have their default value, or all. */
    void showChangedValues(bool on);
    /** Shows or hides the column that the action's text names. */
    void toggleHeaderColumnVisibility(QAction* toggledAction);
    /** Shows the menu of columns at a place of the screen. */
    void headerRightClicked(QPoint place);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void setUpColumns();
    void refreshChangedRows();
    void applyFilters(SoFieldItem& row);
    void applyFilters();

    QTimer m_refreshTimer;
    DisplayElement m_defaultValue;
    DisplayElement m_changedValue;
    QIcon m_ignoredIcon;
    QIcon m_connectedIcon;
    bool m_showsPartRows = true;
    bool m_showsChangedOnly = false;
};

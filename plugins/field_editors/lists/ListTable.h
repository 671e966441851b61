#pragma once

#include <QWidget>
#include <memory>
#include <plugins/field_editors/lists/ListEdits.h>

class FieldBinding;
class ListColumns;
class ListModel;
class QAction;
class QKeyEvent;
class QTableView;
class QToolBar;
class SoMField;

/** The values of a list field as a table that can be edited like one of a spreadsheet. */
class ListTable : public QWidget {
    Q_OBJECT
public:
    /** Neither is owned, and both outlive the table. */
    ListTable(FieldBinding& binding, const ListColumns& columns, QWidget* parent = nullptr);
    ~ListTable() override;

    /** Row of the current cell; -1: none. */
    int currentRow() const;

public slots:
    void insertRow();
    void removeRows();
    void fill();
    void copy();
    void paste();

signals:
    void currentRowChanged(int row);
    /** Empty: what was wrong is done with. */
    void problemChanged(const QString& problem);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpView();
    void setUpActions();
    void updateActions();
    QAction* actionOf(const QKeyEvent& event) const;
    std::vector<CellRange> selectedRanges() const;
    CellRange selectedSpan() const;

    FieldBinding& m_binding;
    const ListColumns& m_columns;
    ListEdits m_edits;
    ListModel* m_model;
    QTableView* m_view;
    QToolBar* m_bar;
    std::vector<QAction*> m_actions; ///< those that change the list
    QAction* m_copy = nullptr;
};

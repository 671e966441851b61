#pragma once

#include <QAbstractTableModel>
#include <QStringList>

class FieldBinding;
class ListColumns;
class SoMField;

/** The values of a bound list field as a table. Nothing is copied: what is shown is read from the field. */
class ListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /** Neither is owned, and both outlive the model. */
    ListModel(FieldBinding& binding, const ListColumns& columns, QObject* parent = nullptr);

    /** Null: no field is bound. */
    const SoMField* list() const;
    /** Why a text can't stand in the cell; empty: it can. */
    QString problemOf(const QModelIndex& cell, const QString& text) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& cell, int role) const override;
    bool setData(const QModelIndex& cell, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& cell) const override;

signals:
    /** Why a value was not set. */
    void refused(const QString& problem);

private:
    void takeField();
    void takeChange();

    FieldBinding& m_binding;
    const ListColumns& m_columns;
    QStringList m_headers; ///< those of the columns, which are asked for with each cell
    int m_rowCount = 0;    ///< as the view knows it; the list may be a turn ahead
};

#pragma once

#include <QStyledItemDelegate>

/** Lets a cell be typed; a text that is no value is marked while it is typed. */
class CellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& cell) const override;
};

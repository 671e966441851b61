#pragma once

#include <QStyledItemDelegate>

/** Paints rows so that their colours stay readable on whatever stands behind them: dark palettes, selected, hovered. */
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

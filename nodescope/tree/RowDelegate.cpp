#include "RowDelegate.h"

#include <nodescope/preferences/ReadableColor.h>

#include <QPalette>

namespace {

// What the style sheet puts behind rows under the pointer.
const QColor Hover_background(0xd9, 0xe4, 0xf7);

} // namespace

void RowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The current row is the selected one; a frame around one of its cells would only dim its text.
    option->state &= ~QStyle::State_HasFocus;
    const QColor background =
        option->state & QStyle::State_MouseOver ? Hover_background : option->palette.color(QPalette::Base);
    const QColor text = option->palette.color(QPalette::Normal, QPalette::Text);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        option->palette.setColor(group, QPalette::Text, ReadableColor::on(background, text));
        option->palette.setColor(group, QPalette::HighlightedText, Qt::white);
    }
}

#include "CellDelegate.h"

#include "ListModel.h"

#include <plugins/field_editors/values/Marking.h>

#include <QLineEdit>

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& cell) const
{
    auto* const edit = new QLineEdit(parent);
    edit->setFrame(false);
    edit->setAlignment(Qt::Alignment(cell.data(Qt::TextAlignmentRole).toInt()));
    const auto* const model = static_cast<const ListModel*>(cell.model());
    connect(edit, &QLineEdit::textEdited, model,
            [edit, model, place = QPersistentModelIndex(cell)](const QString& text) {
                Marking::set(*edit, model->problemOf(place, text));
            });
    return edit;
}

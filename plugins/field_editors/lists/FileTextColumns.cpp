#include "FileTextColumns.h"

#include <plugins/field_editors/values/ReferenceText.h>
#include <vexel/base/SbString.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/nodes/SoNode.h>

#include <QCoreApplication>

namespace {

const SoBase* reference(const SoMField& list, int row)
{
    if (list.isOfType(SoMFNode::getClassTypeId()))
        return static_cast<const SoMFNode&>(list)[row];
    return list.getReferences()[static_cast<std::size_t>(row)];
}

} // namespace

QStringList FileTextColumns::headers() const
{
    return {QCoreApplication::translate("ListColumns", "Value")};
}

QString FileTextColumns::text(const SoMField& list, int row, int) const
{
    return list.holdsReferences() ? ReferenceText::of(reference(list, row)) : list.get1(row).toQString();
}

bool FileTextColumns::setText(SoMField& list, int row, int, const QString& text, QString& problem) const
{
    const bool isValue = !list.holdsReferences() && list.set1(row, SbString(text));
    if (!isValue)
        problem = QCoreApplication::translate("ListColumns", "\"%1\" is no value of type %2.")
                      .arg(text, list.getTypeId().getName().toQString());
    return isValue;
}

void FileTextColumns::copyCell(SoMField& list, int fromRow, int toRow, int) const
{
    list.set1(toRow, list.get1(fromRow));
}

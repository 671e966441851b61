#include "EditMessages.h"

#include <vexel/base/SbName.h>
#include <vexel/nodes/SoNode.h>

#include <QMessageBox>

void EditMessages::showCannotDelete(const SoNode& node)
{
    QMessageBox::information(nullptr, tr("Nodescope Delete Node"),
                             tr("<i>%1</i> can't be deleted.").arg(node.getTypeId().getName().getString()));
}

void EditMessages::showCannotDeleteContainer()
{
    QMessageBox::warning(nullptr, tr("Nodescope Delete Node"),
                         tr("This SoNodeKitListPart container can't be deleted."));
}

void EditMessages::showCannotDeletePart(const SbName& part)
{
    QMessageBox::warning(nullptr, tr("Nodescope Delete Node"),
                         tr("<i>\"%1\"</i> part can't be deleted.").arg(part.getString()));
}

void EditMessages::showCannotSetPart(const SbName& part)
{
    QMessageBox::warning(nullptr, tr("Nodescope Set Node"), tr("Can't set %1.").arg(part.getString()));
}

void EditMessages::showCannotAdd()
{
    QMessageBox::information(nullptr, tr("Add node"), tr("Can not add this node"));
}

void EditMessages::showClipboardFull()
{
    QMessageBox::warning(nullptr, tr("Copy"), tr("Can't copy data to clipboard. Out of memory"));
}

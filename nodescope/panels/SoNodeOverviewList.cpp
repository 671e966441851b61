#include "SoNodeOverviewList.h"
#include "SoFieldItem.h"

#include <nodescope/preferences/SoPreferenceStore.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodekits/SoNodekitCatalog.h>

namespace {

/** An object of the container's type with default values; null when there cannot be one. */
SoFieldContainer* comparisonFor(const SoFieldContainer& container)
{
    return static_cast<SoFieldContainer*>(container.getTypeId().createInstance());
}

bool isPart(const SoFieldContainer& container, const SbName& field)
{
    return container.isOfType(SoBaseKit::getClassTypeId()) &&
           static_cast<const SoBaseKit&>(container).getNodekitCatalog().getPartNumber(field) !=
               SoNodekitCatalog::NotFound;
}

} // namespace

SoNodeOverviewList::SoNodeOverviewList(QWidget* parent) : SoNodescopeList(parent)
{
    setObjectName(QStringLiteral("SoNodeOverviewList"));
    setAccessibleName(SoNodescopeList::tr("Fields"));
    setDragDropMode(DragOnly); // to the field watch
    restoreColumnWidths(SoPreferenceStore::NodeOverviewGroup);
    applyPreferences();
}

void SoNodeOverviewList::applyPreferences()
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    const DisplayElementMap elements = store.loadElements(SoPreferenceStore::NodeOverviewGroup);
    setHighlighting(elements.value(QStringLiteral("Default Value")), elements.value(QStringLiteral("Changed Value")));
    setShowPartRows(store.readShowCatalogPart(SoPreferenceStore::NodeOverviewGroup));
}

void SoNodeOverviewList::showContainer(SoFieldContainer* container)
{
    clear();
    if (!container)
        return;
    SoFieldContainer* const comparison = comparisonFor(*container);
    if (comparison)
        comparison->ref();
    const SoFieldData& fields = container->getFieldData();
    QList<QTreeWidgetItem*> rows;
    for (int i = 0; i < fields.getNumFields(); ++i)
        rows.append(new SoFieldItem(*container, i, comparison, isPart(*container, fields.getFieldName(i))));
    if (comparison)
        comparison->unref(); // the rows have it
    addRows(rows);
    if (SoFieldItem* const first = firstEnabledRow())
        setCurrentItem(first);
    scrollToTop();
}

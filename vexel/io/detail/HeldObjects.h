#pragma once

#include <vexel/base/SoPath.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/nodes/SoNode.h>

/** The container that a connection comes from; null for one from a global field, which is written out as such. */
const SoFieldContainer* sourceOf(const SoField& field);

/**
 * Calls @p visitHeld for each container that a written field of @p container refers to, and @p visitSource for each one
 * that a connection of such a field comes from.
 */
template <class VisitHeld, class VisitSource>
void forEachHeldInFields(const SoFieldContainer& container, VisitHeld&& visitHeld, VisitSource&& visitSource)
{
    const SoFieldData& data = container.getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        const SoField* field = data.getField(&container, i);
        if (!container.shouldWriteField(*field))
            continue;
        for (SoBase* base : field->getReferences()) {
            if (!base)
                continue;
            if (base->isOfType(SoFieldContainer::getClassTypeId()))
                visitHeld(static_cast<const SoFieldContainer&>(*base));
            else if (base->isOfType(SoPath::getClassTypeId()) && static_cast<SoPath*>(base)->getHead())
                visitHeld(static_cast<const SoFieldContainer&>(*static_cast<SoPath*>(base)->getHead()));
        }
        if (const SoFieldContainer* source = sourceOf(*field))
            visitSource(*source);
    }
}

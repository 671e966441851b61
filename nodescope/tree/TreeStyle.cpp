#include "TreeStyle.h"

#include <nodescope/preferences/SoPreferenceStore.h>

namespace {

constexpr const char* Element_names[] = {"Node Type", "Node/Part Name", "Reference Count", "Node From Field"};

} // namespace

void TreeStyle::load()
{
    const SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    const DisplayElementMap stored = store.loadElements(SoPreferenceStore::TreeViewGroup);
    const DisplayElementMap defaults = store.defaultElements(SoPreferenceStore::TreeViewGroup);
    for (std::size_t i = 0; i < ElementCount; ++i) {
        const QString name = QLatin1String(Element_names[i]);
        m_elements[i] = stored[name];
        m_hasOwnFont[i] = m_elements[i].font != defaults[name].font;
    }
    m_countsAllReferences = store.readRealNodekitsCounter(SoPreferenceStore::TreeViewGroup);
}

void TreeStyle::save() const
{
    SoPreferenceStore& store = *SoPreferenceStore::getInstance();
    DisplayElementMap elements;
    for (std::size_t i = 0; i < ElementCount; ++i)
        elements.insert(QLatin1String(Element_names[i]), m_elements[i]);
    store.saveElements(SoPreferenceStore::TreeViewGroup, elements);
}

const QFont& TreeStyle::font(int column, bool isFieldRow) const
{
    if (isFieldRow)
        return fieldFont();
    // All columns have the font of the types until the user gives one a font of its own.
    const bool isOwn = column >= 0 && column <= ReferenceCount && m_hasOwnFont[std::size_t(column)];
    return isOwn ? m_elements[std::size_t(column)].font : typeFont();
}

QColor TreeStyle::color(int column, bool isFieldRow) const
{
    if (column == Type && isFieldRow)
        return element(Field).color;
    return column >= 0 && column <= ReferenceCount ? m_elements[std::size_t(column)].color : QColor(Qt::black);
}

#include "TreeStyle.h"

#include <nodescope/preferences/SoPreferenceStore.h>

void TreeStyle::load()
{
    m_elements = SoPreferenceStore::getInstance()->loadElements(SoPreferenceStore::TreeViewGroup);
}

void TreeStyle::save() const
{
    SoPreferenceStore::getInstance()->saveElements(SoPreferenceStore::TreeViewGroup, m_elements);
}

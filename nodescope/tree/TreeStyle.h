#pragma once

#include <nodescope/preferences/DisplayElement.h>

/** The fonts and colours of the tree's texts, and which of them are shown, as the preference store keeps them. */
class TreeStyle {
public:
    void load();
    void save() const;

    const DisplayElementMap& elements() const { return m_elements; }
    void setElements(const DisplayElementMap& elements) { m_elements = elements; }

    QFont typeFont() const { return m_elements.value(QStringLiteral("Node Type")).font; }
    QFont fieldFont() const { return m_elements.value(QStringLiteral("Node From Field")).font; }
    /** Whether rows of nodes that are held in fields have their own font. */
    bool marksFieldRows() const { return m_elements.value(QStringLiteral("Node From Field")).isShown; }
    bool showsNames() const { return m_elements.value(QStringLiteral("Node/Part Name")).isShown; }
    bool showsReferenceCounts() const { return m_elements.value(QStringLiteral("Reference Count")).isShown; }

private:
    DisplayElementMap m_elements;
};

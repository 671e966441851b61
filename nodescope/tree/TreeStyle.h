#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/preferences/DisplayElement.h>

#include <array>

/** The fonts and colours of the tree's texts, and which of them are shown, as the preference store keeps them. */
class NODESCOPE_API TreeStyle {
public:
    void load();
    void save() const;

    const QFont& typeFont() const { return element(Type).font; }
    const QFont& fieldFont() const { return element(Field).font; }
    /** The look of a column's texts; that of field rows is their own. */
    ///@{
    const QFont& font(int column, bool isFieldRow) const;
    QColor color(int column, bool isFieldRow) const;
    ///@}
    /** Whether rows of nodes that are held in fields have their own font and colour. */
    bool marksFieldRows() const { return element(Field).isShown; }
    bool showsNames() const { return element(Name).isShown; }
    bool showsReferenceCounts() const { return element(ReferenceCount).isShown; }
    /** Whether the references by which a kit holds its parts inside itself are counted, too. */
    bool countsAllReferences() const { return m_countsAllReferences; }

private:
    enum Element { Type, Name, ReferenceCount, Field, ElementCount }; ///< the first ones as the tree's columns

    const DisplayElement& element(Element which) const { return m_elements[which]; }

    std::array<DisplayElement, ElementCount> m_elements;
    std::array<bool, ElementCount> m_hasOwnFont{};
    bool m_countsAllReferences = false;
};

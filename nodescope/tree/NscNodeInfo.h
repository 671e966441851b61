#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/tree/NodeCategory.h>

class QPixmap;
class QString;
class SoNode;
class SoType;

/**
 * Category, category name and icon of nodes and node types.
 *
 * An object keeps a plain pointer to its node, which the caller keeps alive. Icons are loaded when first asked for and
 * shared; GUI thread only. No operation accepts a null node.
 */
class NODESCOPE_API NscNodeInfo {
public:
    NscNodeInfo(SoNode* node);

    Nsc::NodeCategory category() const { return m_category; }
    SoNode* node() const { return m_node; }
    /** The shared icon; null for a category without one. */
    QPixmap* pixmap() const { return m_pixmap; }

    static Nsc::NodeCategory category(SoNode* node);
    static Nsc::NodeCategory category(SoType type);

    /** "Appearance" to "Transform"; empty for Unknown and for what is no category. */
    static QString categoryName(SoNode* node);
    static QString categoryName(SoType type);
    static QString categoryName(Nsc::NodeCategory category);

    /** Key of the category's icon, as "treeview.shape"; empty for Unknown and for what is no category. */
    static QString iconPath(SoNode* node);
    static QString iconPath(SoType type);
    static QString iconPath(Nsc::NodeCategory category);

    static QPixmap* pixmap(SoNode* node);
    static QPixmap* pixmap(SoType type);
    static QPixmap* pixmap(Nsc::NodeCategory category);

    /** Forgets the shared icons without destroying them: objects made before keep theirs. */
    static void clean();

    /** The shared icons, null until first asked for. */
    static QPixmap* m_unknownPixmap;
    static QPixmap* m_appearancePixmap;
    static QPixmap* m_callbackPixmap;
    static QPixmap* m_cameraPixmap;
    static QPixmap* m_groupPixmap;
    static QPixmap* m_lightPixmap;
    static QPixmap* m_manipulatorPixmap;
    static QPixmap* m_nodekitPixmap;
    static QPixmap* m_propertyPixmap;
    static QPixmap* m_selectionPixmap;
    static QPixmap* m_separatorPixmap;
    static QPixmap* m_shapePixmap;
    static QPixmap* m_switchPixmap;
    static QPixmap* m_topologyPixmap;
    static QPixmap* m_transformPixmap;

private:
    SoNode* m_node;
    Nsc::NodeCategory m_category;
    QPixmap* m_pixmap;
};

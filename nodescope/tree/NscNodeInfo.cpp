#include "NscNodeInfo.h"
#include "detail/TypeClassifier.h"

#include <vexel/nodes/SoNode.h>

#include <QPixmap>
#include <QString>

#include <utility>
#include <vector>

QPixmap* NscNodeInfo::m_unknownPixmap = nullptr;
QPixmap* NscNodeInfo::m_appearancePixmap = nullptr;
QPixmap* NscNodeInfo::m_callbackPixmap = nullptr;
QPixmap* NscNodeInfo::m_cameraPixmap = nullptr;
QPixmap* NscNodeInfo::m_groupPixmap = nullptr;
QPixmap* NscNodeInfo::m_lightPixmap = nullptr;
QPixmap* NscNodeInfo::m_manipulatorPixmap = nullptr;
QPixmap* NscNodeInfo::m_nodekitPixmap = nullptr;
QPixmap* NscNodeInfo::m_propertyPixmap = nullptr;
QPixmap* NscNodeInfo::m_selectionPixmap = nullptr;
QPixmap* NscNodeInfo::m_separatorPixmap = nullptr;
QPixmap* NscNodeInfo::m_shapePixmap = nullptr;
QPixmap* NscNodeInfo::m_switchPixmap = nullptr;
QPixmap* NscNodeInfo::m_topologyPixmap = nullptr;
QPixmap* NscNodeInfo::m_transformPixmap = nullptr;

namespace {

struct CategoryRow {
    Nsc::NodeCategory category;
    const char* name;
    QPixmap** pixmap; ///< null for a category without an icon
};

const CategoryRow Categories[] = {
    {Nsc::Unknown, "", &NscNodeInfo::m_unknownPixmap},
    {Nsc::Appearance, "Appearance", &NscNodeInfo::m_appearancePixmap},
    {Nsc::Callback, "Callback", &NscNodeInfo::m_callbackPixmap},
    {Nsc::Camera, "Camera", &NscNodeInfo::m_cameraPixmap},
    {Nsc::Group, "Group", &NscNodeInfo::m_groupPixmap},
    {Nsc::Light, "Light", &NscNodeInfo::m_lightPixmap},
    {Nsc::Manipulator, "Manipulator", &NscNodeInfo::m_manipulatorPixmap},
    {Nsc::Nodekit, "Nodekit", &NscNodeInfo::m_nodekitPixmap},
    {Nsc::Property, "Property", &NscNodeInfo::m_propertyPixmap},
    {Nsc::Selection, "Selection", &NscNodeInfo::m_selectionPixmap},
    {Nsc::Separator, "Separator", &NscNodeInfo::m_separatorPixmap},
    {Nsc::Shape, "Shape", &NscNodeInfo::m_shapePixmap},
    {Nsc::Switch, "Switch", &NscNodeInfo::m_switchPixmap},
    {Nsc::Topology, "Topology", &NscNodeInfo::m_topologyPixmap},
    {Nsc::Transform, "Transform", &NscNodeInfo::m_transformPixmap},
    {Nsc::ReservedManipulator, "Manipulator", nullptr},
    {Nsc::ReservedAppearance, "Appearance", nullptr},
};

const CategoryRow* rowOf(Nsc::NodeCategory category)
{
    for (const CategoryRow& row : Categories) {
        if (row.category == category)
            return &row;
    }
    return nullptr;
}

} // namespace

NscNodeInfo::NscNodeInfo(SoNode* node) : m_node(node), m_category(category(node)), m_pixmap(pixmap(m_category)) {}

Nsc::NodeCategory NscNodeInfo::category(SoNode* node)
{
    return category(node->getTypeId());
}

Nsc::NodeCategory NscNodeInfo::category(SoType type)
{
    // Asked for every row of a tree: each type goes through the rules once.
    static std::vector<Nsc::NodeCategory> known;
    const std::size_t key = type.getKey();
    if (key >= known.size())
        known.resize(key + 1, Nsc::Unknown);
    if (known[key] == Nsc::Unknown)
        known[key] = classifyType(type);
    return known[key];
}

QString NscNodeInfo::categoryName(SoNode* node)
{
    return categoryName(category(node));
}

QString NscNodeInfo::categoryName(SoType type)
{
    return categoryName(category(type));
}

QString NscNodeInfo::categoryName(Nsc::NodeCategory category)
{
    const CategoryRow* row = rowOf(category);
    return row ? QString::fromLatin1(row->name) : QString();
}

QString NscNodeInfo::iconPath(SoNode* node)
{
    return iconPath(category(node));
}

QString NscNodeInfo::iconPath(SoType type)
{
    return iconPath(category(type));
}

QString NscNodeInfo::iconPath(Nsc::NodeCategory category)
{
    const QString name = categoryName(category);
    return name.isEmpty() ? QString() : QStringLiteral("treeview.") + name.toLower();
}

QPixmap* NscNodeInfo::pixmap(SoNode* node)
{
    return pixmap(category(node));
}

QPixmap* NscNodeInfo::pixmap(SoType type)
{
    return pixmap(category(type));
}

QPixmap* NscNodeInfo::pixmap(Nsc::NodeCategory category)
{
    const CategoryRow* row = rowOf(category);
    if (!row || !row->pixmap)
        return nullptr;
    if (!*row->pixmap) {
        const QString file = category == Nsc::Unknown ? QStringLiteral("help") : categoryName(category).toLower();
        *row->pixmap = new QPixmap(QStringLiteral(":/Nodescope_icons/Icons/%1.png").arg(file));
    }
    return *row->pixmap;
}

void NscNodeInfo::clean()
{
    // Whoever still has one of them may go on using it.
    static auto* const Forgotten = new std::vector<QPixmap*>;
    for (const CategoryRow& row : Categories) {
        if (row.pixmap && *row.pixmap)
            Forgotten->push_back(std::exchange(*row.pixmap, nullptr));
    }
}

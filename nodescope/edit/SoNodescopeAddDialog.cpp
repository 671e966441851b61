#include "SoNodescopeAddDialog.h"

#include <nodescope/tree/NscNodeInfo.h>
#include <nodescope/tree/SoNodescopeTreeView.h>

#include <vexel/nodes/SoNode.h>

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <algorithm>
#include <map>

namespace {

struct CategoryRow {
    const char* name;
    const char* icon;
    Nsc::NodeCategory category;
};

constexpr CategoryRow Categories[] = {
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Appearance"), "appearance", Nsc::Appearance},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Callback"), "callback", Nsc::Callback},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Camera"), "camera", Nsc::Camera},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Dragger"), "manipulator", Nsc::ReservedManipulator},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Group"), "group", Nsc::Group},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Light"), "light", Nsc::Light},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Manipulator"), "manipulator", Nsc::Manipulator},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "NodeKit"), "nodekit", Nsc::Nodekit},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Property"), "property", Nsc::Property},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Selection"), "selection", Nsc::Selection},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Separator"), "separator", Nsc::Separator},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Shape"), "shape", Nsc::Shape},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Switch"), "switch", Nsc::Switch},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Topology"), "topology", Nsc::Topology},
    {QT_TRANSLATE_NOOP("SoNodescopeAddDialog", "Transform"), "transform", Nsc::Transform},
};

constexpr int Category_item = QTreeWidgetItem::UserType;
constexpr QSize Size_at_first(340, 520);

QString iconFile(const char* name)
{
    return QStringLiteral(":/Nodescope_icons/Icons/%1.png").arg(QLatin1String(name));
}

bool isOffered(SoType type)
{
    const std::string_view name = type.getName().getView();
    return type.canCreateInstance() && name.substr(0, 7) != "Unknown" &&
           NscNodeInfo::category(type) != Nsc::ReservedAppearance;
}

} // namespace

SoNodescopeAddDialog::SoNodescopeAddDialog(SoNodescopeTreeView& treeView, QWidget* parent)
    : QDialog(parent), m_treeView(treeView)
{
    setWindowTitle(tr("Add Nodes"));
    setWindowIcon(QIcon(iconFile("NodescopeIcon")));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(9, 9, 9, 9);
    layout->setSpacing(6);
    layout->addLayout(makeTypeList());
    layout->addLayout(makeButtons());
    fillTypeList();
    selectionChanged();
    resize(Size_at_first);

    connect(m_add, &QPushButton::clicked, this, &SoNodescopeAddDialog::addNode);
    connect(m_types, &QTreeWidget::itemDoubleClicked, this, &SoNodescopeAddDialog::itemDoubleClick);
    connect(m_searchText, &QLineEdit::textChanged, this, &SoNodescopeAddDialog::findNode);
    connect(m_types, &QTreeWidget::itemSelectionChanged, this, &SoNodescopeAddDialog::selectionChanged);
}

QLayout* SoNodescopeAddDialog::makeTypeList()
{
    m_types = new QTreeWidget;
    m_types->setColumnCount(1);
    m_types->setHeaderLabel(tr("Type"));
    m_types->setHeaderHidden(true);
    m_types->setRootIsDecorated(true);
    m_types->setIconSize(QSize(20, 20));
    m_types->setUniformRowHeights(true);
    m_types->setExpandsOnDoubleClick(false); // itemDoubleClick() does
    m_types->setAccessibleName(tr("Type"));
    m_types->installEventFilter(this);

    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setAutoFillBackground(true);
    frame->setBackgroundRole(QPalette::Base);
    auto* picture = new QLabel;
    picture->setPixmap(QPixmap(iconFile("find")));
    m_searchText = new QLineEdit;
    m_searchText->setFrame(false);
    m_searchText->setAccessibleName(tr("Search"));
    m_searchText->installEventFilter(this);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(4, 2, 4, 2);
    row->setSpacing(6);
    row->addWidget(picture);
    row->addWidget(m_searchText);

    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(m_types);
    column->addWidget(frame);
    return column;
}

QLayout* SoNodescopeAddDialog::makeButtons()
{
    m_add = new QPushButton(tr("&Add"));
    m_add->setDefault(true);
    auto* cancel = new QPushButton(tr("&Cancel"));
    connect(cancel, &QPushButton::clicked, this, &SoNodescopeAddDialog::reject);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_add);
    row->addWidget(cancel);
    return row;
}

void SoNodescopeAddDialog::fillTypeList()
{
    std::map<Nsc::NodeCategory, QTreeWidgetItem*> categories;
    for (const CategoryRow& row : Categories) {
        auto* item = new QTreeWidgetItem(m_types, {tr(row.name)}, Category_item);
        item->setIcon(0, QIcon(iconFile(row.icon)));
        categories[row.category] = item;
    }
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!isOffered(type))
            continue;
        const QStringList texts{QString::fromLatin1(type.getName().getString())};
        const auto category = categories.find(NscNodeInfo::category(type));
        if (category != categories.end())
            new QTreeWidgetItem(category->second, texts);
        else
            new QTreeWidgetItem(m_types, texts);
    }
    m_types->sortItems(0, Qt::AscendingOrder);
}

void SoNodescopeAddDialog::selectionChanged()
{
    const QTreeWidgetItem* item = m_types->currentItem();
    m_add->setEnabled(item && item->parent());
}

void SoNodescopeAddDialog::addNode()
{
    const QTreeWidgetItem* item = m_types->currentItem();
    if (item && item->parent())
        m_treeView.insertNode(item->text(0));
}

void SoNodescopeAddDialog::itemDoubleClick(QTreeWidgetItem* item)
{
    if (item->childCount() > 0)
        item->setExpanded(!item->isExpanded());
    else
        addNode();
}

void SoNodescopeAddDialog::findNode()
{
    search(m_types->currentItem());
}

void SoNodescopeAddDialog::search(QTreeWidgetItem* start)
{
    const QString text = m_searchText->text();
    if (text.isEmpty())
        return;
    QList<QTreeWidgetItem*> items;
    for (QTreeWidgetItemIterator each(m_types, QTreeWidgetItemIterator::Selectable); *each; ++each)
        items.append(*each);
    std::rotate(items.begin(), items.begin() + std::max(0, items.indexOf(start)), items.end());
    const auto found = std::find_if(items.begin(), items.end(), [&text](const QTreeWidgetItem* item) {
        return item->type() != Category_item && item->text(0).contains(text, Qt::CaseInsensitive);
    });
    if (found == items.end())
        return;
    m_types->setCurrentItem(*found);
    m_types->scrollToItem(*found); // which opens its category
}

bool SoNodescopeAddDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() == Qt::Key_F3 && !(key.modifiers() & Qt::ControlModifier)) {
        QTreeWidgetItem* const current = m_types->currentItem();
        QTreeWidgetItemIterator next(m_types, QTreeWidgetItemIterator::Selectable);
        while (current && *next && *next != current)
            ++next;
        search(current && *next ? *++next : nullptr);
        return true;
    }
    const bool isTyped = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
                         !key.text().isEmpty() && key.text().at(0).isLetterOrNumber();
    if (watched != m_types || !isTyped)
        return false;
    // The list would search by its own rules; the keyboard stays with it, so that arrow keys go on from the match.
    m_searchText->setText(m_searchText->text() + key.text());
    return true;
}

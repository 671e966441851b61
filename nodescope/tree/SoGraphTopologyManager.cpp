#include "SoGraphTopologyManager.h"
#include "NodeRowRegistry.h"
#include "SoNodescopeTreeView.h"
#include "SoTreeViewItem.h"
#include "detail/RowMarks.h"
#include "detail/RowSources.h"
#include "detail/RowSynchronizer.h"

#include <vexel/fields/SoField.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/nodes/SoWWWInline.h>
#include <vexel/sensors/SoNodeSensor.h>

#include <QTimer>

#include <algorithm>

namespace {

bool readsItsChildren(const SoNode& node)
{
    return node.isOfType(SoFile::getClassTypeId()) || node.isOfType(SoWWWInline::getClassTypeId());
}

} // namespace

SoGraphTopologyManager::SoGraphTopologyManager(SoNodescopeTreeView* treeView)
    : m_updateTimer(new QTimer(this)),
      m_sensor(std::make_unique<SoNodeSensor>(&SoGraphTopologyManager::sensorTriggered, this)), m_treeView(treeView),
      m_rows(treeView->rowRegistry()), m_synchronizer(std::make_unique<RowSynchronizer>(*treeView))
{
    m_sensor->setPriority(0); // at once, while what is removed is still there
    connect(m_updateTimer, &QTimer::timeout, this, &SoGraphTopologyManager::updateTreeViewDisplay);
}

SoGraphTopologyManager::~SoGraphTopologyManager() = default;

void SoGraphTopologyManager::setRoot(SoNode* root)
{
    m_sensor->detach();
    if (root)
        m_sensor->attach(root);
}

void SoGraphTopologyManager::updateTreeViewDisplay()
{
    m_updateTimer->stop();
    m_treeView->viewport()->update();
}

// A change of children changes reference counts, and nobody tells of those.
void SoGraphTopologyManager::repaintLater()
{
    if (!m_updateTimer->isActive())
        m_updateTimer->start(m_updateDelay);
}

void SoGraphTopologyManager::sensorTriggered(void* manager, SoSensor* sensor)
{
    static_cast<SoGraphTopologyManager*>(manager)->graphChanged(*static_cast<SoNodeSensor*>(sensor));
}

void SoGraphTopologyManager::graphChanged(const SoNodeSensor& sensor)
{
    SoNode* node = sensor.getTriggerNode();
    const SoTriggerType type = sensor.getTriggerType();
    if (!node)
        return;
    if (type == SO_TRIGGER_UNSPECIFIED || type == SO_TRIGGER_MULTIPLE_VALUES)
        contentsChanged(node, sensor.getTriggerField());
    else if (node == sensor.getAttachedNode())
        rootChanged(sensor);
    else
        childrenChanged(node, type, sensor.getTriggerChild(), sensor.getTriggerChildIndex());
}

// The scene is the only child of the root until something is pasted beside it.
void SoGraphTopologyManager::rootChanged(const SoNodeSensor& sensor)
{
    const int type = sensor.getTriggerType();
    const int index = sensor.getTriggerChildIndex();
    const int count = sensor.getAttachedNode()->getChildren()->getLength();
    if (count == 0 || (count == 1 && type != SO_TRIGGER_CHILD_REMOVED)) {
        m_treeView->reset(count == 0 ? nullptr : sensor.getTriggerChild());
        return;
    }
    if (type == SO_TRIGGER_CHILD_REMOVED || type == SO_TRIGGER_CHILD_REPLACED)
        delete m_treeView->takeTopLevelItem(index); // whole while the view chooses another current row
    if (type != SO_TRIGGER_CHILD_REMOVED)
        m_treeView->createItem(sensor.getTriggerChild(), nullptr, nullptr, index);
}

void SoGraphTopologyManager::childrenChanged(SoNode* parent, int type, SoNode* child, int index)
{
    switch (type) {
    case SO_TRIGGER_CHILD_ADDED:
    case SO_TRIGGER_CHILD_INSERTED:
        insertRows(child, parent, index, nullptr);
        break;
    case SO_TRIGGER_CHILD_REPLACED:
        for (SoTreeViewItem* row : rowsToKeep(*parent))
            m_synchronizer->childReplaced(*row, *child, placeOf(*parent, index));
        break;
    case SO_TRIGGER_CHILD_REMOVED:
        removeRows(parent, nullptr, index);
        break;
    default:
        rebuildRows(parent);
        break;
    }
    repaintLater();
}

void SoGraphTopologyManager::contentsChanged(SoNode* node, const SoField* field)
{
    if (!field && readsItsChildren(*node))
        reloadFileRows(node);
    else if (!field || makesRows(*field))
        rebuildRows(node);
}

// A graph that contains itself is shown once on each way down: a row below one of the same node has no rows below it.
QList<SoTreeViewItem*> SoGraphTopologyManager::rowsToKeep(const SoNode& node)
{
    QList<SoTreeViewItem*> rows = m_rows.rows(&node);
    const auto cut = [](const SoTreeViewItem* row) { return row->showsAncestorNode(row); };
    rows.erase(std::remove_if(rows.begin(), rows.end(), cut), rows.end());
    return rows;
}

// A child that makes no row has a place below 0.
int SoGraphTopologyManager::placeOf(const SoNode& parent, int index) const
{
    return index < 0 ? index : index - firstChildRowSource(parent);
}

void SoGraphTopologyManager::insertRows(SoNode* child, SoNode* parent, int index, SoField* field)
{
    if (field) {
        rebuildRows(parent);
        return;
    }
    const int place = index < 0 ? childRowSourceCount(*parent) - 1 : placeOf(*parent, index);
    for (SoTreeViewItem* row : rowsToKeep(*parent))
        m_synchronizer->childInserted(*row, *child, place);
}

void SoGraphTopologyManager::removeRows(SoNode* parent, SoField* field, int index)
{
    if (field) {
        rebuildRows(parent);
        return;
    }
    for (SoTreeViewItem* row : rowsToKeep(*parent))
        m_synchronizer->childRemoved(*row, placeOf(*parent, index));
}

void SoGraphTopologyManager::rebuildRows(SoNode* node)
{
    for (SoTreeViewItem* row : rowsToKeep(*node))
        m_synchronizer->synchronize(*row);
}

void SoGraphTopologyManager::reloadFileRows(SoNode* node)
{
    for (SoTreeViewItem* row : rowsToKeep(*node))
        m_synchronizer->reload(*row);
    emit fileRowsReloaded();
}

SoGraphTopologyManager::Move::Move(SoGraphTopologyManager& manager, const SoNode* moved)
    : m_manager(manager), m_marks(std::make_unique<RowMarks>())
{
    m_manager.m_synchronizer->keepMarksOf(moved, m_marks.get());
}

SoGraphTopologyManager::Move::~Move()
{
    m_manager.m_synchronizer->keepMarksOf(nullptr, nullptr);
}

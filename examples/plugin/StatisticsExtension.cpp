#include "StatisticsExtension.h"

#include "StatisticsPage.h"

#include <extension/NscServices.h>
#include <extension/NscShell.h>
#include <vexel/base/SbName.h>
#include <vexel/nodes/SoNode.h>

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QToolBar>

StatisticsExtension::StatisticsExtension(const SbString& name)
    : NscExtension({name}), m_dock(new QDockWidget(tr("Statistics"))),
      m_toolBar(new QToolBar(tr("Statistics Tool Bar"))), m_menu(new QMenu(tr("&Statistics"))),
      m_nodeMenu(new QMenu(tr("Statistics"))), m_status(new QLabel), m_page(new StatisticsPage),
      m_countAction(new QAction(tr("&Count"), this)), m_copyAction(new QAction(tr("C&opy Counts"), this)),
      m_text(new QLabel)
{
    m_dock->setObjectName(QStringLiteral("StatisticsDock")); // by which the window remembers its place
    m_toolBar->setObjectName(QStringLiteral("StatisticsToolBar"));
    m_text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_text->setMargin(m_text->fontMetrics().averageCharWidth());
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_dock->setWidget(m_text);
    m_toolBar->addAction(m_countAction);
    for (QMenu* menu : {m_menu.get(), m_nodeMenu.get()})
        menu->addActions({m_countAction, m_copyAction});
    connect(m_countAction, &QAction::triggered, this, &StatisticsExtension::count);
    connect(m_copyAction, &QAction::triggered, this, &StatisticsExtension::copy);
    showState();
}

StatisticsExtension::~StatisticsExtension() = default; // the widgets leave the window when they are deleted

// [activate]
void StatisticsExtension::activate()
{
    NscShell& shell = *NscShell::getInstance();
    shell.addDockWidget(m_dock.get(), Qt::LeftDockWidgetArea);
    shell.addToolBar(m_toolBar.get(), Qt::TopToolBarArea);
    shell.addMenu(m_menu.get());
    shell.addStatusWidget(m_status.get(), true, 0);
    shell.addPreferencePage(this, m_page.get(), SLOT(loadPreferences()), SLOT(savePreferences()));
    shell.registerExtension(SoNode::getClassTypeId(), false, this); // for the menu of every node

    shell.addViewToggle(this, true);
    connect(m_dock->toggleViewAction(), &QAction::toggled, this,
            [this](bool isVisible) { NscShell::getInstance()->setViewToggle(this, isVisible); });

    NscServices& services = *NscServices::getInstance();
    connect(&services, &NscServices::selectedNodeChanged, this, &StatisticsExtension::follow);
    follow(services.getSelectedNode());
}
// [end]

void StatisticsExtension::show()
{
    m_dock->show();
    m_dock->raise();
}

void StatisticsExtension::hide()
{
    m_dock->hide();
}

// [follow]
void StatisticsExtension::follow(SoFieldContainer* container)
{
    SoNode* const node =
        container && container->isOfType(SoNode::getClassTypeId()) ? static_cast<SoNode*>(container) : nullptr;
    const auto update = [](void* extension, SoSensor*) {
        auto* const self = static_cast<StatisticsExtension*>(extension);
        self->m_isOld = true;
        self->showState();
    };
    m_node.setFunction(update);             // the graph changed, once for any number of changes
    m_node.setDeleteCallback(update, this); // the node is gone; the sensor lets go of it
    m_node.setData(this);
    m_node.attach(node); // which does not keep the node alive
    m_isCounted = false;
    m_isOld = false;
    if (node && StatisticsPage::countsAtOnce())
        count();
    showState();
}
// [end]

void StatisticsExtension::count()
{
    m_counts = GraphCounts::of(m_node.getAttachedNode());
    m_isCounted = true;
    m_isOld = false;
    showState();
}

void StatisticsExtension::copy() const
{
    QGuiApplication::clipboard()->setText(m_text->text());
}

void StatisticsExtension::showState()
{
    const SoNode* const node = m_node.getAttachedNode();
    m_countAction->setEnabled(node);
    m_copyAction->setEnabled(node && m_isCounted);
    m_status->clear();
    if (!node) {
        m_text->setText(tr("Select a node to see what it consists of."));
    } else if (!m_isCounted) {
        m_text->setText(tr("Not counted."));
    } else {
        showCounts();
    }
}

void StatisticsExtension::showCounts()
{
    m_text->setText(tr("%1\nNodes: %2\nShapes: %3\nTriangles: %4\nLines: %5\nPoints: %6%7")
                        .arg(m_node.getAttachedNode()->getTypeId().getName().getString())
                        .arg(m_counts.nodes)
                        .arg(m_counts.shapes)
                        .arg(m_counts.triangles)
                        .arg(m_counts.lines)
                        .arg(m_counts.points)
                        .arg(m_isOld ? tr("\n\nThe graph has changed since.") : QString()));
    m_status->setText(tr("Nodes: %1, triangles: %2").arg(m_counts.nodes).arg(m_counts.triangles));
}

void StatisticsExtension::loadPreferences()
{
    m_page->load();
}

void StatisticsExtension::savePreferences()
{
    m_page->save();
}

#include "ChildWindowPanel.h"

#include <nodescope/entry/EntryFunctions.h>
#include <vexel/nodes/SoSeparator.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Milliseconds_between_changes = 500;
constexpr int Milliseconds_between_services = 50;

} // namespace

ChildWindowPanel::ChildWindowPanel()
{
    setWindowTitle("Child window host");
    auto* count = new QLabel;
    m_inspect = new QPushButton("&Inspect Scene");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(count);
    layout->addWidget(m_inspect);

    auto* quit = new QAction("&Quit", this);
    quit->setShortcut(QKeySequence::Quit);
    addAction(quit);
    connect(quit, &QAction::triggered, qApp, &QApplication::quit);

    connect(&m_changes, &QTimer::timeout, this, [this, count] {
        m_scene.step();
        count->setText(QString("%1 balls").arg(m_scene.numBalls()));
    });
    m_changes.start(Milliseconds_between_changes);
    connect(m_inspect, &QPushButton::clicked, this, &ChildWindowPanel::inspect);
    connect(&m_service, &QTimer::timeout, this, [this] {
        if (!_processEvents())
            m_service.stop();
    });
}

// [start]
void ChildWindowPanel::inspect()
{
    _processEvents(); // an inspection that was just quit goes first
    _startNode(m_scene.root(), this);
    m_service.start(Milliseconds_between_services);
}
// [end]

#pragma once

#include "GraphCounts.h"

#include <extension/NscExtension.h>
#include <vexel/sensors/SoNodeSensor.h>

#include <memory>

class QAction;
class QDockWidget;
class QLabel;
class QMenu;
class QToolBar;
class SoFieldContainer;
class StatisticsPage;

/** Counts what the graph of the selected node consists of. */
class StatisticsExtension : public NscExtension {
    Q_OBJECT
public:
    explicit StatisticsExtension(const SbString& name);
    ~StatisticsExtension() override;

    void activate() override;
    void show() override;
    void hide() override;
    QMenu* getNodeMenu() override { return m_nodeMenu.get(); }

public slots:
    void loadPreferences();
    void savePreferences();

private:
    void follow(SoFieldContainer* container);
    void count();
    void copy() const;
    void showCounts();
    void showState();

    SoNodeSensor m_node;
    bool m_isCounted = false;
    bool m_isOld = false; ///< the graph changed since it was counted
    GraphCounts m_counts;

    std::unique_ptr<QDockWidget> m_dock;
    std::unique_ptr<QToolBar> m_toolBar;
    std::unique_ptr<QMenu> m_menu;
    std::unique_ptr<QMenu> m_nodeMenu;
    std::unique_ptr<QLabel> m_status;
    std::unique_ptr<StatisticsPage> m_page;
    QAction* m_countAction;
    QAction* m_copyAction;
    QLabel* m_text;
};

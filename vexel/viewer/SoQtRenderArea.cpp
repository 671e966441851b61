#include <vexel/viewer/SoQtRenderArea.h>

#include <vexel/actions/SoEvent.h>
#include <vexel/viewer/SoSceneManager.h>
#include <vexel/viewer/SoSceneManagerImpl.h>
#include <vexel/viewer/detail/EventTranslator.h>
#include <vexel/viewer/detail/InspectorHook.h>
#include <vexel/viewer/detail/RenderWidget.h>

#include <QEvent>

SoQtRenderArea::SoQtRenderArea(QWidget* parent, const char* name)
    : m_sceneManager(std::make_unique<SoSceneManager>()), m_inspectorHook(std::make_unique<InspectorHook>(*this)),
      m_glWidget(new RenderWidget(m_sceneManager.get(), parent))
{
    m_glWidget->setObjectName(QString::fromUtf8(name));
    m_glWidget->installEventFilter(this);
    m_sceneManager->getSceneManagerImpl()->setRenderArea(this);
    m_sceneManager->setRenderCallback(
        [](void* area, SoSceneManager*) {
            if (RenderWidget* widget = static_cast<SoQtRenderArea*>(area)->m_glWidget)
                widget->update();
        },
        this);
    connect(m_glWidget, &QObject::destroyed, this, [this] { m_glWidget = nullptr; });
}

SoQtRenderArea::~SoQtRenderArea()
{
    m_inspectorHook.reset(); // while there is still something to inspect
    delete m_glWidget;
}

QWidget* SoQtRenderArea::getWidget() const
{
    return m_glWidget;
}

QWidget* SoQtRenderArea::getGLWidget() const
{
    return m_glWidget;
}

void SoQtRenderArea::setSceneGraph(SoNode* root)
{
    m_sceneManager->setSceneGraph(root);
}

SoNode* SoQtRenderArea::getSceneGraph() const
{
    return m_sceneManager->getSceneGraph();
}

bool SoQtRenderArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_glWidget &&
        (m_inspectorHook->handleEvent(*event) || handleWidgetEvent(*event) || offerToScene(*event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool SoQtRenderArea::handleWidgetEvent(QEvent&)
{
    return false;
}

bool SoQtRenderArea::offerToScene(const QEvent& event)
{
    const std::unique_ptr<SoEvent> translated = translateEvent(event, *m_glWidget);
    return translated && m_sceneManager->processEvent(*translated);
}

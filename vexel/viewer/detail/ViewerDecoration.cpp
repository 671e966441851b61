#include <vexel/viewer/detail/ViewerDecoration.h>

#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/viewer/SoQtFullViewer.h>
#include <vexel/viewer/detail/ThumbWheel.h>

#include <QGridLayout>
#include <QToolButton>

namespace {

constexpr int Margin = 4;

QIcon viewerIcon(const char* name)
{
    return QIcon(QStringLiteral(":/Vexel_viewer/%1.png").arg(QLatin1String(name)));
}

} // namespace

ViewerDecoration::ViewerDecoration(SoQtFullViewer* viewer, QWidget* glWidget, QWidget* parent)
    : QWidget(parent), m_viewer(viewer)
{
    auto* left = new ThumbWheel(Qt::Vertical, tr("Turn up and down"), this);
    auto* bottom = new ThumbWheel(Qt::Horizontal, tr("Turn left and right"), this);
    auto* right = new ThumbWheel(Qt::Vertical, tr("Move nearer and away"), this);
    connect(left, &ThumbWheel::turned, this, &ViewerDecoration::leftTurned);
    connect(bottom, &ThumbWheel::turned, this, &ViewerDecoration::bottomTurned);
    connect(right, &ThumbWheel::turned, this, &ViewerDecoration::rightTurned);

    auto* rightSide = new QWidget(this);
    auto* rightLayout = new QVBoxLayout(rightSide);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addWidget(makeTools());
    rightLayout->addStretch();
    rightLayout->addWidget(right, 0, Qt::AlignHCenter);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Margin);
    layout->addWidget(left, 0, 0, Qt::AlignBottom);
    layout->addWidget(glWidget, 0, 1);
    layout->addWidget(rightSide, 0, 2);
    layout->addWidget(bottom, 1, 1, Qt::AlignLeft);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(0, 1);
    m_parts = {left, rightSide, bottom};

    connect(viewer, &SoQtFullViewer::modeChanged, this, &ViewerDecoration::updateButtons);
    updateButtons();
}

QToolButton* ViewerDecoration::addButton(QVBoxLayout* layout, const char* icon, const QString& name, bool isCheckable)
{
    auto* button = new QToolButton(this);
    button->setIcon(viewerIcon(icon));
    button->setIconSize(QSize(24, 24));
    button->setAutoRaise(true);
    button->setCheckable(isCheckable);
    button->setToolTip(name);
    button->setAccessibleName(name);
    layout->addWidget(button);
    return button;
}

QWidget* ViewerDecoration::makeTools()
{
    auto* tools = new QWidget(this);
    auto* layout = new QVBoxLayout(tools);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    m_pick = addButton(layout, "pick", tr("Pick (Esc)"), true);
    m_view = addButton(layout, "view", tr("Move the camera (Esc)"), true);
    QToolButton* home = addButton(layout, "home", tr("Home (H)"), false);
    QToolButton* setHome = addButton(layout, "set-home", tr("Set home"), false);
    QToolButton* all = addButton(layout, "view-all", tr("View all (A)"), false);
    m_seek = addButton(layout, "seek", tr("Seek (S)"), true);
    m_headlight = addButton(layout, "headlight", tr("Headlight"), true);
    m_projection = addButton(layout, "perspective", tr("Perspective or parallel (P)"), false);

    connect(m_pick, &QToolButton::clicked, this, [this] { m_viewer->setViewing(false); });
    connect(m_view, &QToolButton::clicked, this, [this] { m_viewer->setViewing(true); });
    connect(home, &QToolButton::clicked, this, [this] { m_viewer->resetToHomePosition(); });
    connect(setHome, &QToolButton::clicked, this, [this] { m_viewer->saveHomePosition(); });
    connect(all, &QToolButton::clicked, this, [this] { m_viewer->viewAll(); });
    connect(m_seek, &QToolButton::clicked, this, [this](bool on) { m_viewer->setSeekMode(on); });
    connect(m_headlight, &QToolButton::clicked, this, [this](bool on) { m_viewer->setHeadlight(on); });
    connect(m_projection, &QToolButton::clicked, this, [this] { m_viewer->toggleCameraType(); });
    return tools;
}

void ViewerDecoration::updateButtons()
{
    m_pick->setChecked(!m_viewer->isViewing());
    m_view->setChecked(m_viewer->isViewing());
    m_seek->setChecked(m_viewer->isSeekMode());
    m_headlight->setChecked(m_viewer->isHeadlight());
    const bool isParallel = m_viewer->getCamera()->isOfType(SoOrthographicCamera::getClassTypeId());
    m_projection->setIcon(viewerIcon(isParallel ? "orthographic" : "perspective"));
}

void ViewerDecoration::setShown(bool on)
{
    m_isShown = on;
    for (QWidget* part : m_parts)
        part->setVisible(on);
    const int margin = on ? Margin : 0;
    layout()->setContentsMargins(margin, margin, margin, margin);
}

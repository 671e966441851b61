#include "SoNodeOverview.h"
#include "SoFieldItem.h"
#include "SoNodeOverviewList.h"
#include "detail/FieldValueText.h"

#include <vexel/nodekits/SoBaseKit.h>

#include <QCheckBox>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int Refresh_delay = 40; // milliseconds
constexpr int Least_name_width = 80;

/** A widget under the name by which the page is known. */
template <class Widget>
Widget* named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <class Layout>
Layout* named(const char* name, int margin, int spacing)
{
    auto* const layout = new Layout;
    layout->setObjectName(QLatin1String(name));
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(spacing);
    return layout;
}

void addSpacer(QHBoxLayout& row)
{
    row.addItem(new QSpacerItem(0, 20, QSizePolicy::Minimum, QSizePolicy::Minimum));
}

/** What the toolkit would make of a name that the user types. */
SbName latin1Name(const QString& text)
{
    return SbName(QString::fromLatin1(text.toLatin1()));
}

/** Changes a text that the user may be editing. */
void showText(QLineEdit& line, const QString& text)
{
    if (line.text() == text)
        return;
    const int cursor = line.cursorPosition();
    line.setText(text);
    line.setCursorPosition(cursor);
}

} // namespace

SoNodeOverview::SoNodeOverview(QWidget* parent, const QString& name) : QWidget(parent)
{
    setObjectName(name);
    makeHeader();
    m_nodeSensor.setPriority(0);
    m_nodeSensor.setFunction([](void* page, SoSensor*) { static_cast<SoNodeOverview*>(page)->nodeChanged(); });
    m_nodeSensor.setDeleteCallback([](void* page, SoSensor*) { static_cast<SoNodeOverview*>(page)->forget(); }, this);
    m_nodeSensor.setData(this);
    m_refreshTimer.setSingleShot(true);
    m_refreshTimer.setInterval(Refresh_delay);

    connect(&m_refreshTimer, &QTimer::timeout, this, &SoNodeOverview::refresh);
    connect(m_showChangedBox, &QCheckBox::toggled, m_list, &SoNodescopeList::showChangedValues);
    connect(m_overrideBox, &QCheckBox::released, this, &SoNodeOverview::overrideButtonStateChanged);
    connect(m_watchButton, &QPushButton::clicked, this, &SoNodeOverview::watchRequested);
    connect(m_nameValue, &QLineEdit::textEdited, this, &SoNodeOverview::nameEdited);
    connect(m_list, &SoNodescopeList::containerGone, this, &SoNodeOverview::forget);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &SoNodeOverview::updateWatchButton);
    languageChange();
    resetLabels();
}

SoNodeOverview::SoNodeOverview(SoFieldContainer* container, SoBaseKit* kit, QWidget* parent, const QString& name)
    : SoNodeOverview(parent, name)
{
    setNodeOverview(container, kit);
}

void SoNodeOverview::makeHeader()
{
    auto* const frame = named(new QFrame, "m_upperFrame");
    frame->setFrameShape(QFrame::StyledPanel);
    frame->setFrameShadow(QFrame::Sunken);
    auto* const frameLayout = named<QVBoxLayout>("m_upperFrameLayout", 3, 0);
    frameLayout->addLayout(makeInfoRow());
    frameLayout->addLayout(makeCheckRow());
    frame->setLayout(frameLayout);

    m_list = named(new SoNodeOverviewList, "m_nodeOverviewList");
    auto* const layout = named<QVBoxLayout>("m_nodeOverviewLayout", 0, 0);
    layout->addWidget(frame);
    layout->addWidget(m_list);
    setLayout(layout);
}

QHBoxLayout* SoNodeOverview::makeInfoRow()
{
    m_nameLabel = named(new QLabel, "m_nodeNameLabel");
    m_nameValue = named(new QLineEdit, "m_nodeNameValue");
    m_nameValue->setMinimumWidth(Least_name_width);
    m_idLabel = named(new QLabel, "m_nodeIdLabel");
    m_addressLabel = named(new QLabel, "m_adressLabel");
    for (QLabel* const label : {m_idLabel, m_addressLabel})
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const row = named<QHBoxLayout>("m_nodeInfoLayout", 4, 9);
    row->addWidget(m_nameLabel);
    row->addWidget(m_nameValue);
    addSpacer(*row);
    if (SoNodescopeList::showsNetNames()) {
        m_netNameLabel = named(new QLabel, "m_nodeNetNameLabel");
        row->addWidget(m_netNameLabel);
        addSpacer(*row);
    }
    row->addWidget(m_idLabel);
    addSpacer(*row);
    row->addWidget(m_addressLabel);
    return row;
}

QHBoxLayout* SoNodeOverview::makeCheckRow()
{
    m_overrideBox = named(new QCheckBox, "m_overrideCheckBox");
    m_showChangedBox = named(new QCheckBox, "m_showChangedCheckBox");
    m_watchButton = named(new QPushButton, "m_watchButton");
    m_watchButton->setEnabled(false);
    auto* const row = named<QHBoxLayout>("m_checkLayout", 4, 7);
    row->addWidget(m_overrideBox);
    row->addWidget(m_showChangedBox);
    row->addItem(new QSpacerItem(220, 20, QSizePolicy::Maximum, QSizePolicy::Minimum));
    row->addWidget(m_watchButton);
    return row;
}

void SoNodeOverview::languageChange()
{
    m_nameValue->setAccessibleName(tr("Name"));
    setWindowTitle(tr("Node Overview"));
    m_overrideBox->setText(tr("Override"));
    m_showChangedBox->setText(tr("Show Changed"));
    m_watchButton->setText(tr("Watch"));
}

void SoNodeOverview::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        languageChange();
    QWidget::changeEvent(event);
}

SoNode* SoNodeOverview::node() const
{
    return m_nodeSensor.getAttachedNode();
}

void SoNodeOverview::resetLabels()
{
    m_nameLabel->setText(tr("<b> Node Name </b>: "));
    m_nameValue->clear();
    m_nameValue->setEnabled(false);
    m_idLabel->setText(tr("<b> Node Id </b>: "));
    m_addressLabel->setText(tr("<b> Node Address </b>: "));
    if (m_netNameLabel)
        m_netNameLabel->setText(tr("<b> Node NetName </b>: "));
    m_overrideBox->setEnabled(false);
    m_overrideBox->setChecked(false);
}

void SoNodeOverview::clear()
{
    m_nodeSensor.detach();
    m_container = nullptr;
    m_list->showContainer(nullptr);
    resetLabels();
    updateWatchButton();
}

void SoNodeOverview::forget()
{
    if (!m_container)
        return;
    clear();
    emit containerGone();
}

void SoNodeOverview::setNodeOverview(SoFieldContainer* container, SoBaseKit* kit)
{
    if (!container) {
        clear();
        return;
    }
    m_container = container;
    m_nodeSensor.detach();
    const bool isNode = container->isOfType(SoNode::getClassTypeId());
    if (isNode)
        m_nodeSensor.attach(static_cast<SoNode*>(container));
    m_partName = isNode && kit ? kit->getPartString(node()).toQString() : QString();
    m_isPart = !m_partName.isEmpty();
    m_nameLabel->setText(m_isPart ? tr("<b> Part Name </b>:") : tr("<b> Node Name </b>:"));
    m_nameValue->setReadOnly(m_isPart);
    m_nameValue->setEnabled(true);
    updateName();
    if (m_netNameLabel)
        m_netNameLabel->setText(QStringLiteral("<b> Node NetName </b>: %1"));
    const QString address = "0x" + QString::number(quintptr(container), 16);
    m_addressLabel->setText(tr("<b> Node Address </b>: %1").arg(address));
    m_overrideBox->setEnabled(container->getField("override") != nullptr);
    m_overrideBox->setChecked(false);
    refresh();
    m_showChangedBox->setChecked(false);
    m_list->showContainer(container);
    updateWatchButton();
}

void SoNodeOverview::updateName()
{
    QString name = m_isPart ? m_partName : m_container->getName().toQString();
    if (m_netNameLabel && SoNodescopeList::showsNetNames()) {
        const QString netName = m_container->getNetName().toQString();
        name = netName.isEmpty() ? QStringLiteral("&lt No NetName&gt ") : netName;
    }
    showText(*m_nameValue, name);
}

void SoNodeOverview::nameEdited(const QString& text)
{
    if (!m_container)
        return;
    m_container->setName(latin1Name(text));
    const QString name = m_container->getName().toQString();
    showText(*m_nameValue, name);
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        m_list->row(i)->setText(SoFieldItem::NodeNameColumn, name);
    if (node())
        emit nodeNameChanged(node());
}

void SoNodeOverview::overrideButtonStateChanged()
{
    emit overrideRequested(m_overrideBox->isChecked());
}

void SoNodeOverview::nodeChanged()
{
    m_needsRefresh = true;
    if (isVisible() && !m_refreshTimer.isActive())
        m_refreshTimer.start();
}

void SoNodeOverview::refresh()
{
    m_needsRefresh = false;
    if (!node())
        return;
    m_overrideBox->setChecked(node()->isOverride());
    m_idLabel->setText(tr("<b> Node Id </b>: ") + QString::number(node()->getNodeId()));
}

void SoNodeOverview::showEvent(QShowEvent* event)
{
    if (m_needsRefresh)
        refresh();
    QWidget::showEvent(event);
}

void SoNodeOverview::updateWatchButton()
{
    const SoFieldItem* const row = m_list->currentRow();
    m_watchButton->setEnabled(row && !FieldValueText::holdsNodes(row->field()));
}

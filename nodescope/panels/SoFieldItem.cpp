#include "SoFieldItem.h"
#include "SoNodescopeList.h"
#include "detail/FieldValueText.h"

#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>

#include <QIcon>
#include <QPixmap>

namespace {

constexpr int Most_tool_tip_characters = 400;

SoNodescopeList* listOf(const SoFieldItem& row)
{
    return static_cast<SoNodescopeList*>(row.treeWidget());
}

} // namespace

SoFieldItem::SoFieldItem(SoFieldContainer& container, int index, SoFieldContainer* comparison, bool isPart)
    : SoFieldItem(container, *container.getFieldData().getField(&container, index), index, comparison, isPart)
{
    setText(NodeTypeColumn, container.getTypeId().getName().toQString());
    setText(NodeNameColumn, container.getName().toQString());
    setText(FieldTypeColumn, m_field.getTypeId().getName().toQString());
    setText(FieldNameColumn, container.getFieldData().getFieldName(index).toQString());
    setText(NetNameColumn, container.getNetName().toQString());
}

SoFieldItem::SoFieldItem(const SoFieldItem& other)
    : SoFieldItem(other.m_container, other.m_field, other.m_index, other.m_comparison, other.m_isPart)
{
    for (const int column : {NodeTypeColumn, NodeNameColumn, FieldTypeColumn, FieldNameColumn, NetNameColumn})
        setText(column, other.text(column));
}

SoFieldItem::SoFieldItem(SoFieldContainer& container, SoField& field, int index, SoFieldContainer* comparison,
                         bool isPart)
    : m_container(container), m_field(field), m_comparison(comparison), m_index(index), m_isPart(isPart)
{
    if (m_comparison) {
        m_comparison->ref();
        if (index < m_comparison->getFieldData().getNumFields())
            m_defaultField = m_comparison->getFieldData().getField(m_comparison, index);
    }
    m_sensor.setPriority(0); // marking the row costs less than waiting in a queue
    m_sensor.setFunction(fieldChanged);
    m_sensor.setData(this);
    m_sensor.setDeleteCallback(fieldGone, this);
    m_sensor.attach(&m_field);
    refresh();
}

SoFieldItem::~SoFieldItem()
{
    if (m_comparison)
        m_comparison->unref();
}

bool SoFieldItem::isChanged() const
{
    return !m_field.isDefault();
}

void SoFieldItem::fieldChanged(void* row, SoSensor*)
{
    auto& self = *static_cast<SoFieldItem*>(row);
    self.m_hasValueText = false;
    if (self.m_needsRefresh)
        return;
    self.m_needsRefresh = true;
    if (SoNodescopeList* const list = listOf(self))
        list->refreshLater();
}

void SoFieldItem::fieldGone(void* row, SoSensor*)
{
    auto& self = *static_cast<SoFieldItem*>(row);
    if (SoNodescopeList* const list = listOf(self))
        list->removeRowsOf(self.m_container); // this row too
}

void SoFieldItem::refresh()
{
    m_needsRefresh = false;
    m_hasValueText = false;
    const bool isDisabled = !FieldValueText::isEditable(m_field);
    if (isDisabled != this->isDisabled())
        setDisabled(isDisabled);
}

const QString& SoFieldItem::valueText() const
{
    if (!m_hasValueText) {
        m_valueText = FieldValueText::of(m_field);
        m_hasValueText = true;
    }
    return m_valueText;
}

QString SoFieldItem::valueToolTip() const
{
    QString text = valueText().left(Most_tool_tip_characters);
    if (m_defaultField && isChanged()) {
        const QString standard = FieldValueText::of(*m_defaultField).left(Most_tool_tip_characters);
        text += "\n" + SoNodescopeList::tr("Default: %1").arg(standard);
    }
    return text.toHtmlEscaped().prepend(QLatin1String("<qt style='white-space:pre-wrap'>"));
}

QVariant SoFieldItem::iconData(int column) const
{
    const SoNodescopeList* const list = listOf(*this);
    if (list && column == IgnoredColumn && m_field.isIgnored())
        return list->ignoredIcon();
    if (list && column == ConnectedColumn && m_field.isConnected())
        return list->connectedIcon();
    if (column == ValueColumn && FieldValueText::isPicture(m_field))
        return QIcon(QPixmap());
    return QVariant();
}

QVariant SoFieldItem::data(int column, int role) const
{
    const SoNodescopeList* const list = listOf(*this);
    switch (role) {
    case Qt::DisplayRole:
        return column == ValueColumn ? QVariant(valueText()) : QTreeWidgetItem::data(column, role);
    case Qt::DecorationRole:
        return iconData(column);
    case Qt::ToolTipRole:
        return column == ValueColumn ? QVariant(valueToolTip()) : QTreeWidgetItem::data(column, Qt::DisplayRole);
    case Qt::ForegroundRole:
        return list ? QVariant(list->highlighting(isChanged()).color) : QVariant();
    case Qt::FontRole:
        return list ? QVariant(list->highlighting(isChanged()).font) : QVariant();
    default:
        return QTreeWidgetItem::data(column, role);
    }
}

bool SoFieldItem::operator<(const QTreeWidgetItem& other) const
{
    const auto& otherField = static_cast<const SoFieldItem&>(other).m_field;
    switch (treeWidget() ? treeWidget()->sortColumn() : int(HiddenColumn)) {
    case HiddenColumn:
        return m_index < static_cast<const SoFieldItem&>(other).m_index;
    case IgnoredColumn:
        return m_field.isIgnored() < otherField.isIgnored();
    case ConnectedColumn:
        return m_field.isConnected() < otherField.isConnected();
    default:
        return QTreeWidgetItem::operator<(other);
    }
}

#pragma once

#include <nodescope/NodescopeApi.h>
#include <vexel/sensors/SoFieldSensor.h>

#include <QTreeWidgetItem>

class SoFieldContainer;

/**
 * A row of a field list: one field of a container.
 *
 * A change of the field only marks the row; its texts are made when they are asked for. The row does not keep the
 * container alive: the list takes the row out when the container goes.
 */
class NODESCOPE_API SoFieldItem : public QTreeWidgetItem {
public:
    enum Column {
        HiddenColumn,
        IgnoredColumn,
        ConnectedColumn,
        NodeTypeColumn,
        NodeNameColumn,
        FieldTypeColumn,
        FieldNameColumn,
        ValueColumn,
        NetNameColumn /**< of lists that show network names */
    };

    /**
     * @param index       of the field in the container's field data
     * @param comparison  an object of the same type with default values, or null; the row holds a reference
     * @param isPart      whether the field holds a part of a kit
     */
    SoFieldItem(SoFieldContainer& container, int index, SoFieldContainer* comparison, bool isPart);
    /** A row of the same field for another list. */
    SoFieldItem(const SoFieldItem& other);
    SoFieldItem& operator=(const SoFieldItem&) = delete;
    ~SoFieldItem() override;

    SoFieldContainer& container() const { return m_container; }
    SoField& field() const { return m_field; }
    /** The same field of the comparison object; null when there is none. */
    SoField* defaultField() const { return m_defaultField; }
    /** Number of the field in its container's field data. */
    int index() const { return m_index; }
    bool isPart() const { return m_isPart; }
    bool isChanged() const;

    /** Whether the field changed since the row was refreshed last. */
    bool needsRefresh() const { return m_needsRefresh; }
    /** Makes the value's text be made anew, and the row be enabled or not. */
    void refresh();

    QVariant data(int column, int role) const override;
    bool operator<(const QTreeWidgetItem& other) const override;

private:
    SoFieldItem(SoFieldContainer& container, SoField& field, int index, SoFieldContainer* comparison, bool isPart);
    static void fieldChanged(void* row, SoSensor* sensor);
    static void fieldGone(void* row, SoSensor* sensor);
    const QString& valueText() const;
    QString valueToolTip() const;
    QVariant iconData(int column) const;

    SoFieldContainer& m_container;
    SoField& m_field;
    SoFieldContainer* m_comparison;
    SoField* m_defaultField = nullptr;
    SoFieldSensor m_sensor;
    mutable QString m_valueText;
    int m_index;
    bool m_isPart;
    mutable bool m_hasValueText = false;
    bool m_needsRefresh = false;
};

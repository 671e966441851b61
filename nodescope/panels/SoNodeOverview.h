#pragma once

#include <nodescope/NodescopeApi.h>
#include <vexel/sensors/SoNodeSensor.h>

#include <QPersistentModelIndex>
#include <QTimer>
#include <QWidget>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class SoBaseKit;
class SoFieldContainer;
class SoNode;
class SoNodeOverviewList;

/**
 * A page that shows one field container: its name, number, address, and its fields with their values.
 *
 * The container is not kept alive; the page empties itself when it goes.
 */
class NODESCOPE_API SoNodeOverview : public QWidget {
    Q_OBJECT
public:
    explicit SoNodeOverview(QWidget* parent = nullptr, const QString& name = QStringLiteral("SoNodeOverview"));
    /** A page that shows a container from the start. */
    SoNodeOverview(SoFieldContainer* container, SoBaseKit* kit, QWidget* parent = nullptr,
                   const QString& name = QStringLiteral("SoNodeOverview"));

    /**
     * @param container  to be shown; nothing is shown for null
     * @param kit        the kit that has the container as a part; null for none
     */
    void setNodeOverview(SoFieldContainer* container, SoBaseKit* kit);
    void clear();

    /** Null when nothing is shown. */
    SoFieldContainer* container() const { return m_container; }
    SoNodeOverviewList& list() const { return *m_list; }
    /** Shows the container's name anew. */
    void updateName();

    /** The row of the tree from which the container was shown; no valid index when that is gone or unknown. */
    const QPersistentModelIndex& treeRow() const { return m_treeRow; }
    void setTreeRow(const QPersistentModelIndex& row) { m_treeRow = row; }

signals:
    /** The user gave the node another name. */
    void nodeNameChanged(SoNode* node);
    /** The user wants the override flag of the node that is shown to be set or taken away. */
    void overrideRequested(bool on);
    /** The user wants the current field to be watched. */
    void watchRequested();
    /** What was shown was destroyed. */
    void containerGone();

public slots:
    /** Sets all texts of the user interface. */
    void languageChange();
    void overrideButtonStateChanged();
    void nameEdited(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void makeHeader();
    QHBoxLayout* makeInfoRow();
    QHBoxLayout* makeCheckRow();
    SoNode* node() const;
    void forget();
    void resetLabels();
    void nodeChanged();
    void refresh();
    void updateWatchButton();

    SoFieldContainer* m_container = nullptr;
    bool m_isPart = false;
    bool m_needsRefresh = false;
    QString m_partName;
    SoNodeSensor m_nodeSensor;
    QTimer m_refreshTimer;
    QPersistentModelIndex m_treeRow;
    QLabel* m_nameLabel;
    QLineEdit* m_nameValue;
    QLabel* m_netNameLabel = nullptr; ///< where network names are shown
    QLabel* m_idLabel;
    QLabel* m_addressLabel;
    QCheckBox* m_overrideBox;
    QCheckBox* m_showChangedBox;
    QPushButton* m_watchButton;
    SoNodeOverviewList* m_list;
};

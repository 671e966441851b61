#pragma once

#include <nodescope/NodescopeApi.h>

#include <QList>
#include <QObject>

#include <memory>

class NodeRowRegistry;
class QTimer;
class RowMarks;
class RowSynchronizer;
class SoField;
class SoNode;
class SoNodeSensor;
class SoNodescopeTreeView;
class SoSensor;
class SoTreeViewItem;

/**
 * Keeps the rows in step with the graph: each change of children, or of fields that hold nodes, changes the rows that
 * it concerns, wherever the changed node is shown, before the caller of the change gets control back.
 *
 * The graph is watched by one sensor on its root, so it must be changed on the thread of the user interface. While no
 * root is set, changes are not mirrored.
 */
class NODESCOPE_API SoGraphTopologyManager : public QObject {
    Q_OBJECT
public:
    /** @param treeView  the view whose rows are kept; it owns the manager */
    explicit SoGraphTopologyManager(SoNodescopeTreeView* treeView);
    ~SoGraphTopologyManager() override;

    /** Watches the graph below this node, whose only child is the node of the top-level row; null for none. */
    void setRoot(SoNode* root);
    /** Time in milliseconds after which texts that no notification announces, as reference counts, are painted anew. */
    void setUpdateDelay(int milliseconds) { m_updateDelay = milliseconds; }

    /** Each row of @p parent gets a row for a child that it has got, unless it is there already.
     * @param index  place among the children; -1 for the last
     * @param field  the field that holds the child; null for a child in the child list */
    void insertRows(SoNode* child, SoNode* parent, int index, SoField* field);
    /** Takes the row of a child that has gone from @p parent out of each of its rows. */
    void removeRows(SoNode* parent, SoField* field, int index);
    /** Brings the child rows of each row of a node in step with it, whatever has changed. */
    void rebuildRows(SoNode* node);
    /** Makes the child rows of each row of a file or inline node anew. */
    void reloadFileRows(SoNode* node);

    /** Keeps what is opened, marked and current in the rows of a node that is moved while this object lives. */
    class NODESCOPE_API Move {
    public:
        Move(SoGraphTopologyManager& manager, const SoNode* moved);
        ~Move();
        Move(const Move&) = delete;
        Move& operator=(const Move&) = delete;

    private:
        SoGraphTopologyManager& m_manager;
        std::unique_ptr<RowMarks> m_marks;
    };

signals:
    /** The contents of a file or inline node are others now; what could be undone in them cannot be any more. */
    void fileRowsReloaded();

public slots:
    void updateTreeViewDisplay();

private:
    static void sensorTriggered(void* manager, SoSensor* sensor);
    void graphChanged(const SoNodeSensor& sensor);
    void rootChanged(const SoNodeSensor& sensor);
    void childrenChanged(SoNode* parent, int type, SoNode* child, int index);
    void contentsChanged(SoNode* node, const SoField* field);
    QList<SoTreeViewItem*> rowsToKeep(const SoNode& node);
    int placeOf(const SoNode& parent, int index) const;
    void repaintLater();

    QTimer* m_updateTimer;
    std::unique_ptr<SoNodeSensor> m_sensor;
    SoNodescopeTreeView* m_treeView;
    NodeRowRegistry& m_rows;
    std::unique_ptr<RowSynchronizer> m_synchronizer;
    int m_updateDelay = 0;
};

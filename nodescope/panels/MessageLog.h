#pragma once

#include <nodescope/NodescopeApi.h>

#include <QAbstractTableModel>
#include <deque>
#include <mutex>

/** Messages in the order in which they came, a line each. The oldest go when there are too many. */
class NODESCOPE_API MessageLog : public QAbstractTableModel {
    Q_OBJECT
public:
    enum class Kind { Problem, Note };
    enum Column { TimeColumn, KindColumn, SourceColumn, TextColumn, ColumnCount };
    /** So many lines are kept. */
    static constexpr int Limit = 10000;

    explicit MessageLog(QObject* parent = nullptr) : QAbstractTableModel(parent) {}

    /** Adds the lines of a text, which appear when the event loop has time. May be called from any thread. */
    void add(Kind kind, const QString& source, const QString& text);
    /** The same for a message of the form "source: text". */
    void add(Kind kind, const QString& message);
    /** Makes lines appear now that were added. */
    void takeOver();
    void clear();
    /** The columns of a line, separated by tabs. */
    QString lineText(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    struct Line {
        qint64 time; ///< milliseconds since the start of 1970
        Kind kind;
        QString source;
        QString text;
    };

    void wait(Line line);
    QString cellText(const Line& line, int column) const;

    std::deque<Line> m_lines;
    std::mutex m_mutex; ///< guards m_waiting
    std::deque<Line> m_waiting;
};

#pragma once

#include <QWidget>

class QCheckBox;

/** The preferences of the statistics, kept in a settings file of the plug-in's own. */
class StatisticsPage : public QWidget {
    Q_OBJECT
public:
    StatisticsPage();

    /** Whether another node is counted as soon as it is selected. */
    static bool countsAtOnce();

public slots:
    void load();
    void save();

private:
    QCheckBox* m_countsAtOnce;
};

#pragma once

#include <QLabel>

/** The line below an input that says why what stands in it is no value; it takes no place while all is well. */
class ProblemLine : public QLabel {
    Q_OBJECT
public:
    explicit ProblemLine(QWidget* parent = nullptr);

public slots:
    /** Empty: all is well. */
    void setProblem(const QString& problem);
};

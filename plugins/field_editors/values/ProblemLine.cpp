#include "ProblemLine.h"

#include "Marking.h"

ProblemLine::ProblemLine(QWidget* parent) : QLabel(parent)
{
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    Marking::setWarning(*this);
    hide();
}

void ProblemLine::setProblem(const QString& problem)
{
    setText(problem);
    setVisible(!problem.isEmpty());
}

#pragma once

#include <QString>
#include <QStringList>

/** How a program ended and what it wrote. */
struct ProgramRun {
    int status = -1; ///< exit status; -1 when it crashed or did not end
    QString out;
    QString err;
};

/** Runs one of the built programs to its end. */
ProgramRun runProgram(const QString& program, const QStringList& arguments);

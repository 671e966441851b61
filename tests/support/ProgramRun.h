#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string>

class QProcess;

/** How a program ended and what it wrote. */
struct ProgramRun {
    int status = -1; ///< exit status; -1 when it crashed or did not end
    std::string out;
    std::string err;
};

/** Where one of the built programs lies. */
QString pathOfProgram(const QString& program);

/** Starts one of the built programs, named without its folder, in the environment that the process was given, if any.
 */
void startProgram(QProcess& process, const QString& program, const QStringList& arguments);

/** Runs one of the built programs to its end. */
ProgramRun runProgram(const QString& program, const QStringList& arguments);

/** Runs a program of the system to its end; it is sought in the path. */
ProgramRun runOtherProgram(const QString& program, const QStringList& arguments);

/** What stands in a file; nothing when there is none. */
QByteArray contentOf(const QString& fileName);

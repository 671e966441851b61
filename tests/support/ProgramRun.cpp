#include "ProgramRun.h"

#include <QFile>
#include <QProcess>

namespace {

constexpr int Deadline = 120000; // milliseconds; nothing is waited for that long unless it hangs

ProgramRun runToItsEnd(QProcess& process)
{
    const bool hasEnded = process.waitForFinished(Deadline);
    if (!hasEnded)
        process.kill();
    const bool isGood = hasEnded && process.exitStatus() == QProcess::NormalExit;
    return {isGood ? process.exitCode() : -1, process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

} // namespace

QString pathOfProgram(const QString& program)
{
    return QStringLiteral(PROGRAM_FOLDER "/") + program;
}

void startProgram(QProcess& process, const QString& program, const QStringList& arguments)
{
    QProcessEnvironment environment = process.processEnvironment();
    if (environment.isEmpty())
        environment = QProcessEnvironment::systemEnvironment();
    // The plug-ins of an installed tree are no subject here, and their messages would stand among those compared.
    environment.insert("VXL_NODESCOPE_CONFIGURATION_FILE", QStringLiteral(EMPTY_CONFIGURATION));
    process.setProcessEnvironment(environment);
    process.start(pathOfProgram(program), arguments);
}

ProgramRun runProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    startProgram(process, program, arguments);
    return runToItsEnd(process);
}

ProgramRun runOtherProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return runToItsEnd(process);
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

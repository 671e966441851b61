#include "VexelRun.h"

#include <QFile>
#include <QProcess>

namespace {

constexpr int Deadline = 120000; // milliseconds; nothing is waited for that long unless it hangs

} // namespace

VexelRun runVexel(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(PROGRAM), arguments);
    const bool hasEnded = process.waitForFinished(Deadline);
    if (!hasEnded)
        process.kill();
    const bool isGood = hasEnded && process.exitStatus() == QProcess::NormalExit;
    return {isGood ? process.exitCode() : -1, process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

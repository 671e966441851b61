#include "DesktopInput.h"

#include <QProcess>
#include <QRegularExpression>

namespace {

const QString Program = QStringLiteral("xdotool");
constexpr int Deadline = 60000; // milliseconds; nothing takes that long unless it never comes

} // namespace

bool DesktopInput::perform(const QStringList& words)
{
    QProcess process;
    process.start(Program, words);
    const bool hasEnded = process.waitForFinished(Deadline);
    if (!hasEnded)
        process.kill();
    return hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

void DesktopInput::begin(const QStringList& words)
{
    QProcess::startDetached(Program, words);
}

bool DesktopInput::focusWindow(qint64 process, const QString& title)
{
    return perform({"search", "--sync", "--onlyvisible", "--all", "--pid", QString::number(process), "--name",
                    "^" + QRegularExpression::escape(title), "windowfocus", "--sync"});
}

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/** How the program ended and what it wrote. */
struct VexelRun {
    int status = -1; ///< exit status; -1 when it crashed or did not end
    std::string out;
    std::string err;
};

/** Runs the command line for scene files to its end. */
VexelRun runVexel(const QStringList& arguments);

QByteArray contentOf(const QString& fileName);

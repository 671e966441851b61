#pragma once

#include <QString>
#include <QStringList>
#include <vector>

class QIODevice;

/** What a configuration text says about plug-ins and extensions. */
struct Configuration {
    struct Name {
        QString plugin;
        QString extension;
    };
    struct Active {
        Name name;
        std::vector<Name> controlled;
    };

    QStringList libraries;      ///< names without folder and extension
    std::vector<Active> active; ///< extensions of the profile in force
    QStringList problems;       ///< what is wrong in the text, each with its place

    /** Reads all that can be used. Nothing can of a text that is no XML or has another root. */
    static Configuration read(QIODevice& device);
};

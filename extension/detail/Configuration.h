#pragma once

#include <QString>
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

    std::vector<QString> libraries;
    std::vector<Active> active; ///< extensions of the profile in force
    QString problem;            ///< what makes the text unusable, and where; empty: nothing

    static Configuration read(QIODevice& device);
};

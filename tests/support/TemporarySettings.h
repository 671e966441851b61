#pragma once

#include <QTemporaryDir>

/** Sends all settings that the program reads or writes to a folder that is deleted at the end. */
class TemporarySettings {
public:
    TemporarySettings();

private:
    QTemporaryDir m_folder;
};

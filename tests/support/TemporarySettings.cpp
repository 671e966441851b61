#include "TemporarySettings.h"

TemporarySettings::TemporarySettings()
{
    qputenv("XDG_CONFIG_HOME", m_folder.path().toLocal8Bit());
}

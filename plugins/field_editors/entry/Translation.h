#pragma once

#include <QTranslator>

/** The texts of the plug-in in the language of the system, as long as this lives; English where there are none. */
class Translation {
public:
    Translation();

private:
    QTranslator m_translator; ///< takes itself from the application
};

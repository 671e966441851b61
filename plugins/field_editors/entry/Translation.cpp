#include "Translation.h"

#include <QCoreApplication>
#include <QLocale>

Translation::Translation()
{
    if (m_translator.load(QLocale::system(), QStringLiteral("field_editors"), QStringLiteral("_"),
                          QStringLiteral(":/Field_editor_translations")))
        QCoreApplication::installTranslator(&m_translator);
}

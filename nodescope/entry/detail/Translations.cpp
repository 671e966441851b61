#include "Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>
#include <vector>

namespace {

std::vector<std::unique_ptr<QTranslator>>& translators()
{
    static std::vector<std::unique_ptr<QTranslator>> all;
    return all;
}

/** Nothing when there is no translation for the system's language: texts are English then. */
void installFrom(const QString& folder, const QString& name)
{
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QLocale::system(), name, QStringLiteral("_"), folder))
        return;
    QCoreApplication::installTranslator(translator.get());
    translators().push_back(std::move(translator));
}

} // namespace

void Translations::install()
{
    installFrom(QStringLiteral(":/Nodescope_translations"), QStringLiteral("nodescope"));
}

void Translations::installForQt()
{
    installFrom(QLibraryInfo::location(QLibraryInfo::TranslationsPath), QStringLiteral("qtbase"));
}

void Translations::remove()
{
    translators().clear(); // which takes them from the application
}

#include "ConfigurationSource.h"

#include <vexel/base/SbFileHelper.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoInput.h>

#include <QFile>

namespace {

constexpr char Built_in_name[] = "NscMinimal_xml.h";

} // namespace

void ConfigurationSource::registerMinimalConfiguration()
{
    QFile text(QStringLiteral(":/Nodescope_configuration/NscMinimal.xml"));
    text.open(QIODevice::ReadOnly);
    SoInput::addInMemoryTextFile(Built_in_name, QString::fromUtf8(text.readAll()));
}

ConfigurationSource::Source ConfigurationSource::resolveConfiguration()
{
    const SbString named =
        SoPreferences::getString("VXL_NODESCOPE_CONFIGURATION_FILE", "$VXLHOME/data/Nodescope/NscConfiguration.xml");
    for (const SbString& candidate : {named, SbString("./NscConfiguration.xml")}) {
        const SbString path = SbFileHelper::expandString(candidate);
        if (SbFileHelper::isAccessible(path, SbFileHelper::READ))
            return {path, true};
    }
    SbString text;
    SoInput::readTextFile(Built_in_name, text);
    return {text, false};
}

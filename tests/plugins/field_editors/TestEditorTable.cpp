#include "EditorFixture.h"

#include <QXmlStreamReader>
#include <algorithm>

namespace {

/** The extensions that the built-in configuration takes from this plug-in. */
QStringList configuredNames(const QString& element)
{
    QFile file(CONFIGURATION);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QStringList names;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == element &&
            xml.attributes().value("plugin") == QLatin1String("NscDefaults"))
            names += xml.attributes().value("extension").toString();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return names;
}

class EditorTableTest : public EditorTest {
protected:
    static bool isOffered(NscExtension& editor, SoType type)
    {
        const std::vector<NscExtension*> offered = NscShell::getInstance()->getExtensions(type);
        return std::find(offered.begin(), offered.end(), &editor) != offered.end();
    }
};

/** "SField" stands for SoSField and its kind, "MFVec2s" for SoMFVec2s. */
SoType typeOf(const QString& name)
{
    return SoType::fromName(SbName(name));
}

TEST_F(EditorTableTest, hasEveryEditorOfTheConfiguration)
{
    const QStringList names = configuredNames("controlledExtension");
    EXPECT_EQ(39, names.size());
    EXPECT_EQ(QStringList("Field Editor"), configuredNames("activeExtension"));
    for (const QString& name : names) {
        const std::unique_ptr<NscExtension> editor(EditorTable::create(SbString(name)));
        ASSERT_TRUE(editor) << name.toStdString();
        EXPECT_TRUE(qobject_cast<NscFieldEditor*>(editor.get())) << name.toStdString();
        EXPECT_EQ(name, editor->getInfo().name.toQString());
    }
    EXPECT_EQ(nullptr, EditorTable::create("SFNothing"));
}

TEST_F(EditorTableTest, eachEditorIsOfferedForTheTypeOfItsNameAndTheGeneralOnesForAll)
{
    const QStringList names = configuredNames("controlledExtension");
    for (const QString& name : names) {
        ASSERT_FALSE(typeOf(name).isBad()) << name.toStdString();
        NscExtension& editor = addEditor(name.toLatin1());
        for (const QString& other : names) {
            const bool isGeneral = name.endsWith("Field") || name == "SField";
            const bool isMeant = isGeneral ? typeOf(other).isDerivedFrom(typeOf(name)) : other == name;
            EXPECT_EQ(isMeant, isOffered(editor, typeOf(other))) << name.toStdString() << ' ' << other.toStdString();
        }
    }
}

TEST_F(EditorTableTest, editorsFitIntoANarrowDock)
{
    constexpr int Narrow = 300;
    for (const char* name :
         {"MFColor", "MFString", "SFBitMask", "SFBool", "SFColor", "SFEnum", "SFImage", "SFName", "SFString"}) {
        NscFieldEditor& editor = addEditor(name);
        EXPECT_LE(editor.getWidget()->minimumSizeHint().width(), Narrow) << name;
    }
}

} // namespace

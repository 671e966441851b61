#pragma once

#include <extension/NscPluginsManager.h>
#include <tests/nodescope/entry/InspectionFixture.h>
#include <vexel/base/SbString.h>

#include <QSettings>

/** An inspection whose configuration loads plug-ins that were built for tests. */
class PluginTest : public InspectionTest {
protected:
    PluginTest()
    {
        SoPreferences::setValue("VXL_NODESCOPE_PLUGIN_PATH", PLUGIN_FOLDER);
        SoPreferences::setValue("TEST_PLUGIN_LOG", "");
        m_disk.clear();
    }
    ~PluginTest() override { SoPreferences::removeValue("VXL_NODESCOPE_PLUGIN_PATH"); }

    /** @param extensions  XML of the default profile */
    void start(const QByteArray& extensions)
    {
        write("empty.xml", "<configuration><plugins><loadPlugin file=\"extension_test_Plugin\"/>"
                           "<loadPlugin file=\"extension_test_Window\"/></plugins>"
                           "<profiles default=\"Main\"><profile name=\"Main\">" +
                               extensions + "</profile></profiles></configuration>");
        _startNode(m_root, nullptr);
    }
    /** Ends as by a user who closes the window. */
    static void closeWindow()
    {
        frame().close();
        _processEvents();
    }
    static std::string preference(const char* name)
    {
        return SoPreferences::getString(name, "").toUtf8().toStdString();
    }

    QSettings m_disk{"Nodescope", "Nodescope"};
};

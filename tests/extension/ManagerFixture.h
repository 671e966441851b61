#pragma once

#include <extension/NscPluginsManager.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoPreferences.h>

#include <QStringList>
#include <gtest/gtest.h>

/** Reads configurations; the libraries of these tests are in the plug-in path. */
class PluginsManagerTest : public testing::Test {
protected:
    PluginsManagerTest()
    {
        SoPreferences::setValue("TEST_PLUGIN_LOG", "");
        SoPreferences::setValue("VXL_NODESCOPE_PLUGIN_PATH", PLUGIN_FOLDER);
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<PluginsManagerTest*>(data)->m_posted << error->getDebugString().toQString();
            },
            this);
    }
    ~PluginsManagerTest() override
    {
        NscPluginsManager::releaseInstance();
        SoDebugError::setHandlerCallback(nullptr);
        SoPreferences::removeValue("VXL_NODESCOPE_PLUGIN_PATH");
    }

    static bool read(const QString& text) { return NscPluginsManager::getInstance()->read(text, false); }
    static std::string log() { return SoPreferences::getString("TEST_PLUGIN_LOG", "").toUtf8().toStdString(); }
    /** All problems, a line each. */
    static std::string problems()
    {
        std::string texts;
        for (const SbString& problem : NscPluginsManager::getInstance()->getProblems())
            texts += problem.toUtf8().toStdString() + '\n';
        return texts;
    }

    QStringList m_posted;
};

inline QString configuration(const QString& libraries, const QString& profiles)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<configuration >\n<plugins>\n" + libraries + "</plugins>\n" +
           profiles + "</configuration>\n";
}

inline QString library(const char* name)
{
    return QStringLiteral("<loadPlugin file=\"%1\"/>\n").arg(name);
}

inline QString profile(const QString& content)
{
    return "<profiles default=\"Main\">\n<profile name=\"Other\"><activeExtension plugin=\"TestPlugin\" "
           "extension=\"other\"/></profile>\n<profile name=\"Main\">\n" +
           content + "</profile>\n</profiles>\n";
}

/** An active extension of the test plug-in, and those that it controls. */
inline QString active(const QString& name, const QStringList& controlled = {})
{
    QString text = "<activeExtension plugin=\"TestPlugin\" extension=\"" + name + "\">\n";
    for (const QString& each : controlled)
        text += "<controlledExtension plugin=\"TestPlugin\" extension=\"" + each + "\"/>\n";
    return text + "</activeExtension>\n";
}

#pragma once

#include <nodescope/entry/EntryFunctions.h>
#include <nodescope/entry/SoNodescopeImpl.h>
#include <nodescope/mainframe/SoNodescopeMainFrame.h>
#include <nodescope/mainframe/SoNodescopeViewer.h>
#include <nodescope/shell/NscServicesImpl.h>
#include <nodescope/shell/NscShellImpl.h>
#include <tests/support/ModalAnswers.h>
#include <vexel/base/SoPreferences.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

/** An inspection with an empty configuration, in a folder of its own. */
class InspectionTest : public testing::Test {
protected:
    InspectionTest()
    {
        SoDB::init();
        SoPreferences::setValue("VXL_NODESCOPE_CONFIGURATION_FILE",
                                write("empty.xml", "<configuration></configuration>\n"));
        m_root->ref();
        m_root->addChild(new SoMaterial);
    }
    ~InspectionTest() override
    {
        _stop();
        m_root->unref();
        SoPreferences::removeValue("VXL_NODESCOPE_CONFIGURATION_FILE");
    }

    QString path(const char* name) const { return m_folder.filePath(name); }
    QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }
    static SoNodescopeMainFrame& frame() { return SoNodescopeViewer::getInstance()->mainFrame(); }

    QTemporaryDir m_folder;
    SoSeparator* m_root = new SoSeparator;
};

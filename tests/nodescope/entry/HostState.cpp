#include "HostState.h"

#include <vexel/base/SoDebugError.h>
#include <vexel/base/SoErrorStack.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>
#include <vexel/sensors/SoSensorManager.h>

#include <QApplication>
#include <QStyle>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

QtMessageHandler messageHandler()
{
    const QtMessageHandler handler = qInstallMessageHandler(nullptr);
    qInstallMessageHandler(handler);
    return handler;
}

template <class Error>
HostState::Handler handlerOf()
{
    return {Error::getHandlerCallback(), Error::getHandlerData()};
}

} // namespace

HostState::HostState(const SoNode& root, const QWidget& window)
    : m_numWidgets(QApplication::allWidgets().size()), m_numTopLevels(QApplication::topLevelWidgets().size()),
      m_numObjectsOfWindow(window.findChildren<QObject*>().size()),
      m_numObjectsOfApplication(qApp->findChildren<QObject*>().size()), m_numToolkitObjects(SoBase::getNumLiving()),
      m_style(QApplication::style()->objectName()), m_styleSheet(qApp->styleSheet()),
      m_palette(QApplication::palette()), m_font(QApplication::font()),
      m_language(QCoreApplication::translate("SoNodescopeMainFrame", "&Edit")),
      m_quitsOnLastWindow(QApplication::quitOnLastWindowClosed()), m_cursor(QApplication::overrideCursor()),
      m_messageHandler(messageHandler()), m_errorHandlers{handlerOf<SoError>(), handlerOf<SoDebugError>(),
                                                          handlerOf<SoReadError>(), handlerOf<SoErrorStack>()}
{
    note(root);
    for (int i = 0; i < root.getChildren()->getLength(); ++i)
        note(*(*root.getChildren())[i]);
}

void HostState::note(const SoNode& node)
{
    m_references.push_back(node.getRefCount());
    m_listeners.push_back(node.getAuditors().size());
}

void HostState::expectSameAs(const HostState& before) const
{
    EXPECT_EQ(m_numWidgets, before.m_numWidgets);
    EXPECT_EQ(m_numTopLevels, before.m_numTopLevels);
    EXPECT_EQ(m_numObjectsOfWindow, before.m_numObjectsOfWindow);
    EXPECT_EQ(m_numObjectsOfApplication, before.m_numObjectsOfApplication);
    EXPECT_EQ(m_references, before.m_references);
    EXPECT_EQ(m_listeners, before.m_listeners);
    EXPECT_EQ(m_numToolkitObjects, before.m_numToolkitObjects);
    EXPECT_EQ(m_style, before.m_style);
    EXPECT_EQ(m_styleSheet, before.m_styleSheet);
    EXPECT_EQ(m_palette, before.m_palette);
    EXPECT_EQ(m_font, before.m_font);
    EXPECT_EQ(m_language, before.m_language);
    EXPECT_EQ(m_quitsOnLastWindow, before.m_quitsOnLastWindow);
    EXPECT_EQ(m_cursor, before.m_cursor);
    EXPECT_EQ(m_messageHandler, before.m_messageHandler);
    EXPECT_EQ(m_errorHandlers, before.m_errorHandlers);
}

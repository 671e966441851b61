#pragma once

#include <extension/NscFieldEditor.h>
#include <plugins/field_editors/EditorTable.h>
#include <plugins/field_editors/panel/FieldEditorPanel.h>
#include <tests/nodescope/entry/InspectionFixture.h>

#include <QDockWidget>
#include <memory>
#include <vector>

/** An inspection with the panel of field editors and those editors that a test asks for. */
class EditorTest : public InspectionTest {
protected:
    EditorTest() { _startNode(m_root, nullptr); }
    ~EditorTest() override
    {
        m_panel.reset();
        m_editors.clear();
    }

    /** Gives the inspection an editor by its name in the configuration. */
    NscFieldEditor& addEditor(const char* name)
    {
        m_editors.emplace_back(EditorTable::create(name));
        m_editors.back()->activate();
        return static_cast<NscFieldEditor&>(*m_editors.back());
    }
    /** Shows a field in the panel, as a click on its row does. */
    void select(SoField& field)
    {
        if (!m_panel) {
            m_panel = std::make_unique<FieldEditorPanel>(NscExtension::Info{"Field Editor"});
            m_panel->activate();
        }
        NscServices::getInstance()->setSelectedField(&field);
        frame().activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frame()));
        EXPECT_TRUE(QTest::qWaitFor([this] { return dock().isVisible(); }));
    }
    QDockWidget& dock() { return *frame().findChild<QDockWidget*>("FieldEditor"); }
    /** The first widget of a kind that the user sees in the panel. */
    template <class Widget>
    Widget* seen(const QString& name = QString())
    {
        for (Widget* widget : dock().findChildren<Widget*>(name)) {
            if (widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    void undo() { NscServices::getInstance()->undo(); }
    void redo() { NscServices::getInstance()->redo(); }

    std::vector<std::unique_ptr<NscExtension>> m_editors;
    std::unique_ptr<FieldEditorPanel> m_panel;
};

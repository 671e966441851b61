#pragma once

#include <gtest/gtest.h>

#include <nodescope/tree/SoNodescopeTreeView.h>
#include <nodescope/tree/SoTreeViewItem.h>

#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSelection.h>

#include <string>

Q_DECLARE_METATYPE(SoTreeViewItem*)

/** A tree view that shows a scene below a selection node, as the viewer arranges it. */
class TreeTest : public testing::Test {
protected:
    void SetUp() override
    {
        SoDB::init();
        selection = new SoSelection;
        selection->ref();
        selection->policy = SoSelection::SINGLE;
        view = std::make_unique<SoNodescopeTreeView>();
        view->setSceneGraph(selection);
        view->resize(500, 600);
    }
    void TearDown() override
    {
        view.reset();
        selection->deselectAll(); // a path refers to where it begins
        selection->unref();
    }

    /** Shows a scene given as text; the answered root is held by the selection node. */
    SoSeparator* show(const std::string& text)
    {
        SoInput in;
        in.setBuffer(text.data(), text.size());
        SoSeparator* root = SoDB::readAll(&in);
        show(root);
        return root;
    }
    void show(SoNode* root)
    {
        root->ref();
        selection->removeAllChildren();
        selection->addChild(root);
        root->unref();
    }

    SoTreeViewItem* top() const { return static_cast<SoTreeViewItem*>(view->topLevelItem(0)); }
    SoTreeViewItem* row(std::initializer_list<int> places) const
    {
        SoTreeViewItem* found = top();
        for (const int place : places)
            found = found->childRow(place);
        return found;
    }
    /** The rows as text: one line each, indented, with type and name. */
    std::string rows() const
    {
        std::string text;
        append(text, top(), 0);
        return text;
    }

    SoSelection* selection = nullptr;
    std::unique_ptr<SoNodescopeTreeView> view;

private:
    static void append(std::string& text, const SoTreeViewItem* row, std::size_t depth)
    {
        if (!row)
            return;
        text += std::string(depth, ' ') + row->text(SoTreeViewItem::TypeColumn).toStdString();
        if (const QString name = row->text(SoTreeViewItem::NameColumn); !name.isEmpty())
            text += " " + name.toStdString();
        text += row->fromField() ? " *\n" : "\n";
        for (int i = 0; i < row->childCount(); ++i)
            append(text, row->childRow(i), depth + 1);
    }
};

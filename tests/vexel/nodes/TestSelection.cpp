#include <gtest/gtest.h>

#include <string>

#include <vexel/base/SoPath.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSelection.h>

namespace {

class Selection : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }

    void SetUp() override
    {
        root = new SoSeparator;
        root->ref();
        selection = new SoSelection;
        root->addChild(selection);
        for (SoCube*& cube : cubes)
            selection->addChild(cube = new SoCube);
        selection->addSelectionCallback([](void* data, SoPath*) { static_cast<std::string*>(data)->append("+"); },
                                        &log);
        selection->addDeselectionCallback([](void* data, SoPath*) { static_cast<std::string*>(data)->append("-"); },
                                          &log);
        selection->addStartCallback([](void* data, SoSelection*) { static_cast<std::string*>(data)->append("<"); },
                                    &log);
        selection->addFinishCallback([](void* data, SoSelection*) { static_cast<std::string*>(data)->append(">"); },
                                     &log);
        selection->addChangeCallback(changed, &log);
    }
    void TearDown() override
    {
        selection->deselectAll();
        root->unref();
    }

    static void changed(void* data, SoSelection*) { static_cast<std::string*>(data)->append("c"); }

    void pick(int cube, bool shift = false)
    {
        SoPath* path = nullptr;
        if (cube >= 0) {
            path = new SoPath(root);
            path->ref();
            path->append(0);
            path->append(cube);
        }
        selection->pick(path, shift);
        if (path)
            path->unref();
    }
    std::string selected() const
    {
        std::string text;
        for (int i = 0; i < 3; ++i)
            text += selection->isSelected(cubes[i]) ? 'x' : '.';
        return text;
    }

    SoSeparator* root = nullptr;
    SoSelection* selection = nullptr;
    SoCube* cubes[3] = {};
    std::string log;
};

} // namespace

TEST_F(Selection, KeepsPathsFromTheSelectionNodeOn)
{
    auto* path = new SoPath(root);
    path->ref();
    path->append(0);
    path->append(1);
    selection->select(path);
    selection->select(path);
    selection->select(cubes[1]);
    EXPECT_EQ(selection->getNumSelected(), 1);
    EXPECT_EQ(selection->getPath(0)->getHead(), selection);
    EXPECT_EQ(selection->getPath(0)->getTail(), cubes[1]);
    EXPECT_TRUE(selection->isSelected(path));
    selection->toggle(path);
    EXPECT_EQ(selection->getNumSelected(), 0);
    EXPECT_EQ(log, "+c-c");
    path->setHead(root);
    selection->select(path);
    selection->select(static_cast<SoNode*>(nullptr));
    selection->deselect(7);
    EXPECT_EQ(log, "+c-c");
    path->unref();
}

TEST_F(Selection, SinglePicksReplaceEachOther)
{
    selection->policy = SoSelection::SINGLE;
    pick(0);
    pick(2, true);
    EXPECT_EQ(selected(), "..x");
    EXPECT_EQ(log, "<+c><-c+c>");
    pick(-1);
    EXPECT_EQ(selected(), "...");
}

TEST_F(Selection, TogglingPicksAddAndTakeAway)
{
    selection->policy = SoSelection::TOGGLE;
    pick(0);
    pick(2);
    EXPECT_EQ(selected(), "x.x");
    pick(0);
    pick(-1);
    EXPECT_EQ(selected(), "..x");
}

TEST_F(Selection, ShiftKeyTurnsSingleIntoToggling)
{
    pick(0);
    pick(1, true);
    EXPECT_EQ(selected(), "xx.");
    pick(2);
    EXPECT_EQ(selected(), "..x");
}

TEST_F(Selection, DeselectsAllWithOneChange)
{
    selection->select(cubes[0]);
    selection->select(cubes[1]);
    log.clear();
    selection->deselectAll();
    selection->deselectAll();
    EXPECT_EQ(log, "--c");
    selection->removeChangeCallback(changed, &log);
    selection->select(cubes[0]);
    EXPECT_EQ(log, "--c+");
}

TEST_F(Selection, FilterChoosesWhatIsSelected)
{
    selection->setPickFilterCallback(
        [](void*, const SoPath* picked) -> SoPath* {
            return picked->getTail() == picked->getHead() ? nullptr : picked->copy(0, 2);
        },
        nullptr);
    pick(1);
    ASSERT_EQ(selection->getNumSelected(), 1);
    EXPECT_EQ(selection->getPath(0)->getTail(), selection);
}

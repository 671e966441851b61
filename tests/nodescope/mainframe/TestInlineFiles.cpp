#include "SceneFilesFixture.h"

#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoWWWInline.h>

namespace {

class InlineFilesTest : public SceneFilesTest {
protected:
    InlineFilesTest() { m_inline->ref(); }
    ~InlineFilesTest() override { m_inline->unref(); }

    SoNode* request(const QString& url)
    {
        m_inline->name.setValue(url);
        m_inline->requestChildrenFromURL();
        return m_inline->getChildData();
    }

    SoWWWInline* m_inline = new SoWWWInline;
};

} // namespace

TEST_F(InlineFilesTest, AreReadWhenTheyAreAskedFor)
{
    SoNode* const scene = request(write("part.vx", "#Vexel V2.1 ascii\nSeparator { Cube { } Cone { } }\n"));
    ASSERT_TRUE(scene);
    EXPECT_EQ(static_cast<SoGroup*>(scene)->getNumChildren(), 2);
}

TEST_F(InlineFilesTest, ThatAreMissingLeaveTheNodeAsItIs)
{
    EXPECT_FALSE(request(path("missing.vx")));
}

TEST_F(InlineFilesTest, AreNotReadAfterTheWindowIsGone)
{
    m_frame.reset();
    EXPECT_FALSE(request(write("part.vx", "#Vexel V2.1 ascii\nCube { }\n")));
}

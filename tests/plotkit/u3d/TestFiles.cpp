#include "Exports.h"
#include "FileReader.h"

#include <plotkit/SoToU3DAction.h>
#include <plotkit/VectorFormat.h>
#include <vexel/base/SbString.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class U3DFile : public testing::Test {
protected:
    QString path(const char* name) const { return m_folder.filePath(name); }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files); }
    void fill(const QString& name, const QByteArray& contents)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    QTemporaryDir m_folder;
    ReadScene m_scene = ReadScene::ofText("Cube {} Sphere {} Cone {}");
};

TEST_F(U3DFile, appearsWhenItIsComplete)
{
    SoToU3DAction action;
    ASSERT_TRUE(action.openFile(SbString(path("a.u3d"))));
    action.apply(m_scene.root());
    EXPECT_TRUE(!files().contains("a.u3d"));
    EXPECT_TRUE(action.closeFile());
    EXPECT_EQ(QStringList{"a.u3d"}, files());
    EXPECT_EQ(3u, FileReader::read(path("a.u3d").toStdString()).meshes.size());
}

TEST_F(U3DFile, isMadeForEachOneThatIsOpened)
{
    SoToU3DAction action;
    for (const char* const name : {"a.u3d", "b.u3d"}) {
        ASSERT_TRUE(action.openFile(SbString(path(name))));
        action.apply(m_scene.root());
        EXPECT_TRUE(action.closeFile());
    }
    QFile first(path("a.u3d"));
    QFile second(path("b.u3d"));
    ASSERT_TRUE(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    EXPECT_TRUE(first.readAll() == second.readAll());
}

TEST_F(U3DFile, thatCannotBeWrittenLeavesNothing)
{
    SoToU3DAction action;
    EXPECT_FALSE(action.openFile(SbString(path("none/a.u3d"))));
    action.apply(m_scene.root());
    EXPECT_FALSE(action.closeFile());
    EXPECT_TRUE(files().isEmpty());
    EXPECT_TRUE(action.getErrorText().startsWith("cannot write \"" + SbString(path("none/a.u3d")) + "\": "));
}

TEST_F(U3DFile, thatNothingWasPutIntoLeavesTheOldOne)
{
    fill(path("a.u3d"), "old");
    SoToU3DAction action;
    ASSERT_TRUE(action.openFile(SbString(path("a.u3d"))));
    action.apply(nullptr);
    EXPECT_FALSE(action.closeFile());
    EXPECT_EQ(QStringList{"a.u3d"}, files());
    EXPECT_EQ(3, QFile(path("a.u3d")).size());
}

TEST_F(U3DFile, canBeCanceledAfterEachShape)
{
    for (int last = 1; last <= 4; ++last) {
        SoToU3DAction action;
        ASSERT_TRUE(action.openFile(SbString(path("a.u3d"))));
        std::vector<double> parts;
        action.setProgressCallback([&](double part) {
            parts.push_back(part);
            return int(parts.size()) < last;
        });
        action.apply(m_scene.root());
        EXPECT_EQ(std::size_t(last), parts.size());
        EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
        EXPECT_FALSE(action.closeFile());
        EXPECT_TRUE(files().isEmpty());
    }
}

TEST_F(U3DFile, canBeCanceledInTheMiddleOfALargeShape)
{
    std::string points;
    std::string strip;
    for (int i = 0; i < 70000; ++i)
        points += std::to_string(i / 2) + " " + std::to_string(i % 2) + " 0,";
    const ReadScene large = ReadScene::ofText("Coordinate3 { point [" + points +
                                              "] } Separator { LineSet {} }"
                                              "TriangleStripSet { numVertices 70000 }");
    std::size_t numParts = 1000;
    for (std::size_t last = 0; last < numParts; ++last) {
        SoToU3DAction action;
        ASSERT_TRUE(action.openFile(SbString(path("a.u3d"))));
        std::vector<double> parts;
        action.setProgressCallback([&](double part) {
            parts.push_back(part);
            return parts.size() != last;
        });
        action.apply(large.root());
        EXPECT_TRUE(std::is_sorted(parts.begin(), parts.end()));
        EXPECT_EQ(last == 0, action.closeFile());
        if (last == 0)
            numParts = parts.size();
        EXPECT_EQ(last == 0 ? numParts : last, parts.size());
        EXPECT_EQ(last == 0, files().contains("a.u3d"));
        QFile::remove(path("a.u3d"));
    }
    // Some within each of two shapes, one after each of them, and the last one.
    EXPECT_GE(numParts, 2u * 2 + 2 + 1);
}

TEST_F(U3DFile, isCompleteWhenProgressIs)
{
    SoToU3DAction action;
    ASSERT_TRUE(action.openFile(SbString(path("a.u3d"))));
    double part = 0;
    action.setProgressCallback([&](double done) {
        part = done;
        return true;
    });
    action.apply(m_scene.root());
    EXPECT_EQ(1, part);
    EXPECT_TRUE(action.closeFile());
}

TEST_F(U3DFile, leavesTheGraphToItself)
{
    const auto references = m_scene.root()->getRefCount();
    const auto living = SoBase::getNumLiving();
    exported(m_scene.root());
    EXPECT_EQ(references, m_scene.root()->getRefCount());
    EXPECT_EQ(living, SoBase::getNumLiving());
}

TEST_F(U3DFile, isOneOfTheFormats)
{
    const VectorFormat* const format = VectorFormat::ofFile("x/Scene.U3D");
    ASSERT_NE(nullptr, format);
    EXPECT_STREQ("U3D", format->name);
    const std::unique_ptr<VectorExport> output = format->create();
    output->setBackgroundColor(SbColorRGBA(1, 0, 0, 1));
    ASSERT_TRUE(output->openFile(SbString(path("b.u3d"))));
    output->apply(m_scene.root());
    EXPECT_TRUE(output->closeFile());
    EXPECT_EQ(3u, FileReader::read(path("b.u3d").toStdString()).meshes.size());
}

} // namespace

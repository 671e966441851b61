#include <gtest/gtest.h>

#include <cstdlib>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "SceneText.h"

namespace {

const char Text[] = "#Vexel V2.1 ascii\n\nDEF top Separator {\n  renderCulling ON\n  Group {\n  }\n}\n";

class Files : public testing::Test {
protected:
    void SetUp() override { SoDB::init(); }

    SbString path(const char* name) const { return SbString(folder.filePath(QString::fromUtf8(name))); }
    void put(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name).toQString());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    QByteArray bytesOf(const char* name) const
    {
        QFile file(path(name).toQString());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /** What a file turns into when it is read and written as ascii; the empty text when it cannot be read. */
    std::string rewrittenFile(const char* name) const
    {
        SoInput in;
        if (!in.openFile(path(name)))
            return std::string();
        SoSeparator* root = SoDB::readAll(&in);
        if (!root)
            return std::string();
        root->ref();
        std::string text = written(root);
        root->unref();
        return text;
    }
    bool write(const char* name, SoNode* root, bool isBinary) const
    {
        SoOutput out;
        out.setBinary(isBinary);
        if (!out.openFile(path(name)))
            return false;
        SoWriteAction(&out).apply(root);
        return out.closeFile();
    }

    QTemporaryDir folder;
};

TEST_F(Files, AreTheSameSceneInEveryForm)
{
    const Scene scene(Text);
    for (const bool isBinary : {false, true}) {
        for (const char* name : {"a.vx", "a.vxz", "a.vx.gz"}) {
            ASSERT_TRUE(write(name, scene.root, isBinary));
            EXPECT_EQ(bytesOf(name).startsWith("\x1f\x8b"), QByteArray(name) != "a.vx") << name;
            EXPECT_EQ(rewrittenFile(name), Text) << name << isBinary;
        }
    }
}

TEST_F(Files, SayWhatIsWrongWithThem)
{
    put("cut.vxz", QByteArray("\x1f\x8b\x08\x00\x00\x00\x00\x00", 8));
    put("other.vx", "solid cube\nfacet");
    put("empty.vx", QByteArray());
    for (const auto& [name, message] : {std::pair{"cut.vxz", "damaged or cut off"},
                                        {"gone.vx", "no such file"},
                                        {"other.vx", "not a Vexel scene file; its first line is \"solid cube\""},
                                        {"empty.vx", "not a Vexel scene file"}}) {
        const ReadErrors errors;
        EXPECT_EQ(rewrittenFile(name), "") << name;
        ASSERT_EQ(errors.texts.size(), 1u) << name;
        EXPECT_NE(errors.texts[0].find(message), std::string::npos) << errors.texts[0];
        EXPECT_NE(errors.texts[0].find(name), std::string::npos) << errors.texts[0];
    }
    const ReadErrors errors;
    SoInput in;
    EXPECT_FALSE(in.openFile(path("gone.vx"), true));
    EXPECT_TRUE(errors.texts.empty());
}

TEST_F(Files, StayAsTheyWereUntilTheNewOneIsComplete)
{
    put("a.vx", "old");
    {
        SoOutput out;
        ASSERT_TRUE(out.openFile(path("a.vx")));
        SoWriteAction(&out).apply(Scene(Text).root);
        EXPECT_EQ(bytesOf("a.vx"), "old");
        // Given up before it was closed.
    }
    EXPECT_EQ(bytesOf("a.vx"), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"a.vx"});
    ASSERT_TRUE(write("a.vx", Scene(Text).root, false));
    EXPECT_EQ(bytesOf("a.vx"), Text);

    SoOutput out;
    EXPECT_FALSE(out.openFile(path("nowhere/a.vx")));
    EXPECT_FALSE(out.getError().isEmpty());
}

TEST_F(Files, AreLookedForInTheDirectoryList)
{
    QDir(folder.path()).mkdir("parts");
    put("parts/a.vx", Text);
    SoInput in;
    EXPECT_TRUE(in.findFile("a.vx").isEmpty());
    in.addDirectoryLast(path("parts"));
    in.addDirectoryFirst(path("nothing"));
    EXPECT_EQ(in.findFile("a.vx"), path("parts/a.vx"));
    ASSERT_TRUE(in.openFile("a.vx"));
    EXPECT_EQ(in.getCurFileName(), path("parts/a.vx"));
    in.closeFile();
    EXPECT_TRUE(in.getCurFileName().isEmpty());
    in.removeDirectory(path("parts"));
    EXPECT_EQ(in.getDirectories().size(), 1u);
    qputenv("SCENE_PARTS", path("parts").toUtf8());
    EXPECT_EQ(in.findFile("$SCENE_PARTS/a.vx"), path("parts/a.vx"));
}

TEST_F(Files, TellTheirProgress)
{
    class Watched : public SoInput {
    public:
        std::vector<double> parts;

    protected:
        void progressChanged(double percent) override { parts.push_back(percent); }
    };
    QByteArray text("#Vexel V2.1 ascii\nSeparator {\n");
    for (int i = 0; i < 400000; ++i)
        text += "Group { }\n";
    put("long.vx", text + "}\n");
    Watched in;
    ASSERT_TRUE(in.openFile(path("long.vx")));
    SoSeparator* root = SoDB::readAll(&in);
    root->ref();
    EXPECT_EQ(root->getNumChildren(), 400000);
    EXPECT_GT(in.parts.size(), 20u);
    EXPECT_TRUE(std::is_sorted(in.parts.begin(), in.parts.end()));
    EXPECT_GT(in.parts.back(), 90);
    EXPECT_LE(in.parts.back(), 100);
    root->unref();
}

TEST_F(Files, OfTextCanStandInMemory)
{
    put("text.txt", "on disk");
    SbString text;
    EXPECT_TRUE(SoInput::readTextFile(path("text.txt"), text));
    EXPECT_EQ(text, "on disk");
    SoInput::addInMemoryTextFile("Some.h", "first");
    SoInput::addInMemoryTextFile("Some.h", "second");
    EXPECT_TRUE(SoInput::readTextFile("Some.h", text));
    EXPECT_EQ(text, "second");
    EXPECT_FALSE(SoInput::readTextFile("Other.h", text));
}

TEST_F(Files, GoToABufferThatGrows)
{
    const Scene scene(Text);
    SoOutput out;
    out.setBuffer(std::malloc(8), 8, std::realloc);
    SoWriteAction(&out).apply(scene.root);
    void* buffer = nullptr;
    std::size_t size = 0;
    ASSERT_TRUE(out.getBuffer(buffer, size));
    EXPECT_EQ(size, sizeof Text - 1);
    EXPECT_STREQ(static_cast<const char*>(buffer), Text);
    std::free(buffer);

    char small[8];
    SoOutput cut;
    cut.setBuffer(small, sizeof small, nullptr);
    SoWriteAction(&cut).apply(scene.root);
    ASSERT_TRUE(cut.getBuffer(buffer, size));
    EXPECT_STREQ(small, "#Vexel ");
    EXPECT_FALSE(cut.getError().isEmpty());
}

} // namespace

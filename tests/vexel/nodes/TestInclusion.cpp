#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SbString.h>
#include <vexel/base/SoReadError.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoWWWInline.h>

namespace {

class IncludedFiles : public testing::Test {
protected:
    static void SetUpTestSuite() { SoDB::init(); }
    void SetUp() override
    {
        SoReadError::setHandlerCallback(
            [](const SoError* error, void* data) {
                static_cast<std::vector<std::string>*>(data)->push_back(error->getDebugString().toUtf8().toStdString());
            },
            &errors);
    }
    void TearDown() override { SoReadError::setHandlerCallback(nullptr, nullptr); }

    SbString write(const char* name, const std::string& text)
    {
        const QString path = folder.filePath(QLatin1String(name));
        QDir().mkpath(path.section(QLatin1Char('/'), 0, -2));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(("#Vexel V2.1 ascii\n" + text).c_str());
        return SbString(path);
    }

    SoSeparator* read(const SbString& name)
    {
        SoInput in;
        if (!in.openFile(name))
            return nullptr;
        SoSeparator* root = SoDB::readAll(&in);
        if (root)
            root->ref();
        return root;
    }

    QTemporaryDir folder;
    std::vector<std::string> errors;
};

} // namespace

TEST_F(IncludedFiles, AreFoundBesideTheIncludingFile)
{
    write("parts/inner.vx", "Cube { width 7 }");
    write("parts/part.vx", "File { name \"inner.vx\" }");
    SoSeparator* root = read(write("main.vx", "Separator { File { name \"parts/part.vx\" } }"));
    ASSERT_NE(root, nullptr);
    EXPECT_TRUE(errors.empty());
    auto* file = static_cast<SoFile*>(root->getChild(0));
    ASSERT_EQ(file->getChildren()->getLength(), 1);
    EXPECT_TRUE(file->getFullName().endsWith("parts/part.vx"));
    auto* part = static_cast<SoSeparator*>((*file->getChildren())[0]);
    auto* inner = static_cast<SoFile*>(part->getChild(0));
    ASSERT_EQ(inner->getChildren()->getLength(), 1);

    SoNode* copy = file->copy();
    copy->ref();
    EXPECT_EQ(copy->getChildren()->getLength(), 1);
    EXPECT_NE((*copy->getChildren())[0], part);
    copy->unref();

    SoOutput out;
    SoWriteAction action(&out);
    action.apply(root);
    EXPECT_EQ(out.getText(), "#Vexel V2.1 ascii\n\nSeparator {\n  File {\n    name \"parts/part.vx\"\n  }\n}\n");
    root->unref();
}

TEST_F(IncludedFiles, ThatIncludeThemselvesAreReportedOnce)
{
    write("a.vx", "Cube { } File { name \"b.vx\" }");
    write("b.vx", "Separator { File { name \"a.vx\" } Cube { } }");
    SoSeparator* root = read(SbString(folder.filePath("a.vx")));
    ASSERT_NE(root, nullptr);
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_NE(errors[0].find("includes itself"), std::string::npos);
    auto* file = static_cast<SoFile*>(root->getChild(1));
    ASSERT_EQ(file->getChildren()->getLength(), 1);
    EXPECT_EQ(static_cast<SoSeparator*>((*file->getChildren())[0])->getNumChildren(), 2);
    root->unref();
}

TEST_F(IncludedFiles, ThatMultiplyStopSomewhere)
{
    for (int i = 0; i < 40; ++i) {
        const std::string next = std::to_string(i + 1) + ".vx";
        write((std::to_string(i) + ".vx").c_str(),
              "Separator { File { name \"" + next + "\" } File { name \"" + next + "\" } }");
    }
    write("40.vx", "Cube { }");
    SoSeparator* root = read(SbString(folder.filePath("0.vx")));
    ASSERT_NE(root, nullptr);
    // Once for each of the two nodes in the file that was opened.
    ASSERT_EQ(errors.size(), 2u);
    EXPECT_NE(errors[0].find("10000"), std::string::npos);
    root->unref();
}

TEST_F(IncludedFiles, AreReadWhenTheProgramSetsTheName)
{
    const SbString name = write("one.vx", "Cube { }");
    auto* file = new SoFile;
    file->ref();
    file->name = name;
    EXPECT_EQ(file->getChildren()->getLength(), 1);
    file->name = SbString("not there.vx");
    EXPECT_EQ(file->getChildren()->getLength(), 0);
    EXPECT_TRUE(file->getFullName().isEmpty());
    EXPECT_EQ(errors.size(), 1u);
    file->unref();
}

TEST_F(IncludedFiles, InlineScenesAreFetchedByTheProgram)
{
    SoSeparator* root = read(write("sub/main.vx", "WWWInline { name \"far.vx\" bboxSize 2 2 2 }"));
    ASSERT_NE(root, nullptr);
    auto* node = static_cast<SoWWWInline*>(root->getChild(0));
    EXPECT_TRUE(node->getFullURLName().endsWith("sub/far.vx"));
    EXPECT_FALSE(node->isURLDataRequested());
    EXPECT_EQ(node->getChildren()->getLength(), 1);
    EXPECT_EQ(node->getChildData(), nullptr);
    int numFetched = 0;
    SoWWWInline::setFetchURLCallBack(
        [](const SbString&, void* data, SoWWWInline* inlined) {
            ++*static_cast<int*>(data);
            inlined->setChildData(new SoCube);
        },
        &numFetched);
    node->requestChildrenFromURL();
    EXPECT_EQ(numFetched, 1);
    EXPECT_TRUE(node->isURLDataHere());
    ASSERT_EQ(node->getChildren()->getLength(), 2);
    EXPECT_EQ((*node->getChildren())[1], node->getChildData());
    node->setChildData(nullptr);
    EXPECT_EQ(node->getChildren()->getLength(), 1);
    SoWWWInline::setFetchURLCallBack(nullptr, nullptr);
    root->unref();
}

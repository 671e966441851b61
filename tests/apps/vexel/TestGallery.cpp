#include <tests/support/ProgramRun.h>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

namespace {

std::vector<std::string> scenes()
{
    std::vector<std::string> names;
    for (const QString& name : QDir(GALLERY).entryList({"*.vx", "*.vxz"}, QDir::Files))
        names.push_back(name.toStdString());
    return names;
}

/** What a reader must find wrong with a scene. */
int errorsIn(const std::string& scene)
{
    return scene == "errors.vx" ? 6 : 0;
}

class Gallery : public testing::TestWithParam<std::string> {
protected:
    QString scene() const { return QStringLiteral(GALLERY "/") + QString::fromStdString(GetParam()); }
    QString path(const char* name) const { return m_folder.filePath(name); }

    void convert(const QString& from, const QString& to, const char* form)
    {
        const ProgramRun run = runProgram("vexel", {"convert", from, to, form});
        EXPECT_EQ(run.status, from == scene() && errorsIn(GetParam()) ? 1 : 0) << run.err;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(Gallery, HasTheErrorsThatItIsMeantToHave)
{
    const ProgramRun run = runProgram("vexel", {"check", scene()});
    const int errors = errorsIn(GetParam());
    EXPECT_EQ(run.status, errors ? 1 : 0);
    EXPECT_EQ(run.out, scene().toStdString() + (errors ? ": " + std::to_string(errors) + " errors\n" : ": good\n"));
    EXPECT_EQ(QByteArray::fromStdString(run.err).count('\n'), errors) << run.err;
}

TEST_P(Gallery, ReadsBackTheSameInEveryForm)
{
    // Pictures that scenes name are sought beside them.
    ASSERT_TRUE(QFile::link(QStringLiteral(GALLERY "/textures"), path("textures")));
    convert(scene(), path("first.vx"), "--ascii");
    const QByteArray first = contentOf(path("first.vx"));
    ASSERT_FALSE(first.isEmpty());

    const struct {
        const char* name;
        const char* form;
    } ways[] = {{"a.vx", "--ascii"}, {"b.vx", "--binary"}, {"a.vxz", "--ascii"}, {"b.vxz", "--binary"}};
    for (const auto& way : ways) {
        convert(path("first.vx"), path(way.name), way.form);
        convert(path(way.name), path("again.vx"), "--ascii");
        EXPECT_TRUE(contentOf(path("again.vx")) == first) << "by way of " << way.name << " " << way.form;
    }
}

TEST_P(Gallery, IsAPictureOfManyColours)
{
    const ProgramRun run = runProgram("vexel", {"render", scene(), path("scene.png"), "--size", "160x120"});
    EXPECT_EQ(run.status, errorsIn(GetParam()) ? 1 : 0) << run.err;
    const QImage picture(path("scene.png"));
    ASSERT_EQ(picture.size(), QSize(160, 120));
    // A background alone has as many colours as rows.
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(picture.pixel(x, y));
    }
    EXPECT_GT(colours.size(), 300u);
}

INSTANTIATE_TEST_SUITE_P(Scenes, Gallery, testing::ValuesIn(scenes()), [](const auto& info) {
    return QString::fromStdString(info.param).section('.', 0, 0).toStdString();
});

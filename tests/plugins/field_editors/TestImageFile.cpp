#include <plugins/field_editors/values/ImageFile.h>
#include <plugins/field_editors/values/ImageTexels.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/io/SoDB.h>

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using Bytes = std::vector<std::uint8_t>;

class ImageFileTest : public testing::Test {
protected:
    ImageFileTest() { SoDB::init(); }

    std::string path(const char* name) const { return m_folder.filePath(name).toStdString(); }
    QString load(const char* name) { return ImageFile::load(m_folder.filePath(name), m_loaded); }
    QString save(const char* name, const SoSFImage& image) { return ImageFile::save(m_folder.filePath(name), image); }
    QByteArray content(const char* name)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void write(const char* name, const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QTemporaryDir m_folder;
    SoSFImage m_loaded;
};

struct Kind {
    int components;
    Bytes bytes; ///< of 3 x 2 texels
};

class ImageKinds : public ImageFileTest, public testing::WithParamInterface<Kind> {};

TEST_P(ImageKinds, areTheSameAfterSavingAndLoading)
{
    SoSFImage image;
    image.setValue(SbVec2i32(3, 2), GetParam().components, GetParam().bytes.data());
    EXPECT_EQ("", save("image.png", image));
    EXPECT_EQ("", load("image.png"));
    EXPECT_EQ(GetParam().components, m_loaded.getNumComponents());
    EXPECT_EQ(SbVec2i32(3, 2), m_loaded.getSize());
    EXPECT_EQ(GetParam().bytes, m_loaded.getBytes());
    EXPECT_TRUE(m_loaded.isSame(image));
}

INSTANTIATE_TEST_SUITE_P(
    Components, ImageKinds,
    testing::Values(Kind{1, {0, 1, 2, 100, 200, 255}}, Kind{2, {0, 255, 1, 128, 2, 64, 100, 32, 200, 1, 255, 0}},
                    Kind{3, {255, 0, 0, 0, 255, 0, 0, 0, 255, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
                    Kind{3, {7, 7, 7, 7, 7, 7, 7, 7, 7, 8, 8, 8, 8, 8, 8, 9, 9, 9}},
                    Kind{4, {255, 0, 0, 255, 0, 255, 0, 128, 0, 0, 255, 64, 1, 2, 3, 4, 5, 6, 7, 8, 9, 1, 2, 3}}));

TEST_F(ImageFileTest, picturesBeginAtTheTopAndFieldsAtTheBottom)
{
    QImage picture(1, 2, QImage::Format_RGB32);
    picture.setPixelColor(0, 0, Qt::red);
    picture.setPixelColor(0, 1, Qt::blue);
    ImageTexels::setPicture(m_loaded, picture);
    EXPECT_EQ((Bytes{0, 0, 255, 255, 0, 0}), m_loaded.getBytes());
    EXPECT_EQ(QColor(Qt::red), ImageTexels::picture(m_loaded).pixelColor(0, 0));
}

TEST_F(ImageFileTest, samplesLieInTheMiddleOfTheirPixels)
{
    SoSFImage image;
    const Bytes bytes{1, 2, 3, 4, 5, 6};
    image.setValue(SbVec2i32(6, 1), 1, bytes.data());
    const QImage reduced = ImageTexels::sampled(image, QSize(2, 1));
    EXPECT_EQ(2, qRed(reduced.pixel(0, 0)));
    EXPECT_EQ(5, qRed(reduced.pixel(1, 0)));
    const QImage enlarged = ImageTexels::sampled(image, QSize(12, 2));
    EXPECT_EQ(1, qRed(enlarged.pixel(1, 1)));
    EXPECT_EQ(2, qRed(enlarged.pixel(2, 0)));
    EXPECT_EQ(6, qRed(enlarged.pixel(11, 1)));
    EXPECT_TRUE(ImageTexels::sampled(SoSFImage(), QSize(2, 2)).isNull());
}

TEST_F(ImageFileTest, paletteFilesAreGreyOrColored)
{
    QImage picture(2, 1, QImage::Format_Indexed8);
    picture.setColorTable({qRgb(10, 10, 10), qRgb(200, 200, 200)});
    picture.setPixel(0, 0, 1);
    picture.setPixel(1, 0, 0);
    ImageTexels::setPicture(m_loaded, picture);
    EXPECT_EQ((Bytes{200, 10}), m_loaded.getBytes());
    picture.setColor(1, qRgb(200, 0, 0));
    ImageTexels::setPicture(m_loaded, picture);
    EXPECT_EQ((Bytes{200, 0, 0, 10, 10, 10}), m_loaded.getBytes());
}

TEST_F(ImageFileTest, theContentOfAFileSaysItsFormat)
{
    SoSFImage image;
    image.setValue(SbVec2i32(2, 2), 3, nullptr);
    EXPECT_EQ("", save("image.bmp", image));
    ASSERT_TRUE(QFile::rename(m_folder.filePath("image.bmp"), m_folder.filePath("image.png")));
    EXPECT_EQ("", load("image.png"));
    EXPECT_EQ(SbVec2i32(2, 2), m_loaded.getSize());
}

TEST_F(ImageFileTest, whatCannotBeReadIsNamedWithTheReason)
{
    EXPECT_EQ(path("none.png") + " cannot be read: File not found", load("none.png").toStdString());
    write("text.png", "no image");
    EXPECT_EQ(path("text.png") + " cannot be read: Unsupported image format", load("text.png").toStdString());
    SoSFImage image;
    image.setValue(SbVec2i32(64, 64), 3, nullptr);
    EXPECT_EQ("", save("cut.png", image));
    write("cut.png", content("cut.png").left(60));
    EXPECT_EQ(path("cut.png") + " cannot be read: Unable to read image data", load("cut.png").toStdString());
    EXPECT_TRUE(m_loaded.isEmpty());
}

TEST_F(ImageFileTest, whatCannotBeWrittenIsNamedWithTheReasonAndLeavesTheOldFile)
{
    SoSFImage image;
    image.setValue(SbVec2i32(1, 1), 3, nullptr);
    EXPECT_EQ(path("none/a.png") + " cannot be written: No such file or directory",
              save("none/a.png", image).toStdString());
    write("old.txt", "old");
    EXPECT_EQ(path("old.txt") + " cannot be written: Unsupported image format", save("old.txt", image).toStdString());
    EXPECT_EQ("old", content("old.txt"));
    // More than the format can hold.
    image.setValue(SbVec2i32(70000, 1), 3, nullptr);
    write("old.jpg", "old");
    EXPECT_NE("", save("old.jpg", image));
    EXPECT_EQ("old", content("old.jpg"));
    EXPECT_EQ(QStringList({"old.jpg", "old.txt"}), QDir(m_folder.path()).entryList(QDir::Files, QDir::Name))
        << "no half file is left";
}

} // namespace

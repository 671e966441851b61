#include "EditorFixture.h"
#include "ShownWidget.h"

#include <plugins/field_editors/values/ImagePreview.h>
#include <plugins/field_editors/values/ImageWidget.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/nodes/SoTexture2.h>

#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

class Image : public ShownWidget<ImageWidget, SoSFImage> {
public:
    void show(int width, int height, int components, const std::vector<std::uint8_t>& bytes = {})
    {
        image.setValue(SbVec2i32(width, height), components, bytes.empty() ? nullptr : bytes.data());
        showField(image);
    }
    std::string kind() { return child<QLabel>()->text().toStdString(); }
    QPushButton& button(const QString& text)
    {
        for (QPushButton* each : widget.findChildren<QPushButton*>()) {
            if (each->text() == text)
                return *each;
        }
        throw std::logic_error("no such button");
    }
    void push(const QString& text) { QTest::mouseClick(&button(text), Qt::LeftButton); }
    /** The picture in the preview, without what lies beside it. */
    QImage picture()
    {
        auto& preview = *child<ImagePreview>();
        return preview.grab().toImage();
    }
    QColor colorAt(double x, double y)
    {
        const QImage all = picture();
        return all.pixelColor(int(all.width() * x), int(all.height() * y));
    }
    QString path(const char* name) const { return m_folder.filePath(name); }
    void writePicture(const char* name)
    {
        QImage picture(3, 2, QImage::Format_RGB888);
        picture.fill(Qt::green);
        EXPECT_TRUE(picture.save(path(name)));
    }
    void choose(ModalAnswers& answers, const QString& title, const char* name)
    {
        answers.expectFileDialog(title, [this, name](QFileDialog& dialog) {
            dialog.setDirectory(m_folder.path());
            dialog.selectFile(path(name));
        });
    }

    SoSFImage image;

private:
    QTemporaryDir m_folder;
};

TEST(ImageWidgetTest, saysSizeAndKind)
{
    Image shown;
    shown.show(256, 128, 4);
    EXPECT_EQ("256 x 128, RGBA", shown.kind());
    shown.show(2, 1, 3);
    EXPECT_EQ("2 x 1, RGB", shown.kind());
    shown.show(2, 1, 2);
    EXPECT_EQ("2 x 1, gray and alpha", shown.kind());
    shown.show(2, 1, 1);
    EXPECT_EQ("2 x 1, gray", shown.kind());
    shown.show(0, 0, 0);
    EXPECT_EQ("No image", shown.kind());
    EXPECT_FALSE(shown.button("Save...").isEnabled());
    EXPECT_FALSE(shown.button("Clear").isEnabled());
}

TEST(ImageWidgetTest, showsRowsFromTheBottom)
{
    Image shown;
    shown.widget.resize(300, 300);
    shown.show(1, 2, 3, {0, 0, 255, 255, 0, 0});
    EXPECT_EQ(QColor(Qt::red), shown.colorAt(0.5, 0.1));
    EXPECT_EQ(QColor(Qt::blue), shown.colorAt(0.5, 0.9));
}

TEST(ImageWidgetTest, followsChangesOfTheSameImage)
{
    Image shown;
    shown.show(1, 1, 3, {255, 0, 0});
    EXPECT_EQ(QColor(Qt::red), shown.colorAt(0.5, 0.5));
    shown.show(1, 1, 3, {0, 255, 0});
    EXPECT_EQ(QColor(0, 255, 0), shown.colorAt(0.5, 0.5));
}

TEST(ImageWidgetTest, groundIsChequeredWhereTheImageIsTransparent)
{
    Image shown;
    shown.widget.resize(300, 300);
    shown.show(1, 1, 2, {255, 0});
    const QImage picture = shown.picture();
    const int left = (picture.width() - picture.height()) / 2;
    EXPECT_EQ(QColor(110, 110, 110), picture.pixelColor(left + 12, 4));
    EXPECT_EQ(QColor(150, 150, 150), picture.pixelColor(left + 4, 4));
    EXPECT_EQ(QColor(110, 110, 110), picture.pixelColor(left + 4, 12));
}

TEST(ImageWidgetTest, anImageThatIsGoneIsShownNoMore)
{
    Image shown;
    auto gone = std::make_unique<SoSFImage>();
    gone->setValue(SbVec2i32(1, 1), 1, nullptr);
    shown.showField(*gone);
    gone.reset();
    EXPECT_EQ(nullptr, shown.child<ImagePreview>()->image());
    shown.widget.resize(200, 200);
    shown.picture();
}

TEST(ImageWidgetTest, loadsAFile)
{
    Image shown;
    shown.show(0, 0, 0);
    shown.writePicture("a.png");
    ModalAnswers answers;
    shown.choose(answers, "Load Image", "a.png");
    shown.push("Load...");
    QTRY_COMPARE(shown.edits, 1);
    EXPECT_EQ(SbVec2i32(3, 2), shown.last.getSize());
    EXPECT_EQ(3, shown.last.getNumComponents());
    EXPECT_EQ(255, shown.last.getBytes()[1]);
}

TEST(ImageWidgetTest, saysWhyAFileIsNotLoaded)
{
    Image shown;
    shown.show(0, 0, 0);
    QFile file(shown.path("a.png"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no image");
    file.close();
    ModalAnswers answers;
    shown.choose(answers, "Load Image", "a.png");
    bool isAnswered = false;
    answers.expectBox("Load Image", [&](QMessageBox& box) {
        EXPECT_EQ(shown.path("a.png") + " cannot be read: Unsupported image format", box.text());
        isAnswered = true;
    });
    shown.push("Load...");
    QTRY_VERIFY(isAnswered);
    EXPECT_EQ(0, shown.edits);
}

TEST(ImageWidgetTest, savesToAFile)
{
    Image shown;
    shown.show(1, 2, 3, {0, 0, 255, 255, 0, 0});
    ModalAnswers answers;
    shown.choose(answers, "Save Image", "saved");
    shown.push("Save...");
    QTRY_VERIFY(QFile::exists(shown.path("saved.png")));
    const QImage saved(shown.path("saved.png"));
    EXPECT_EQ(QSize(1, 2), saved.size());
    EXPECT_EQ(QColor(Qt::red), saved.pixelColor(0, 0));
    EXPECT_EQ(QColor(Qt::blue), saved.pixelColor(0, 1));
    EXPECT_EQ(0, shown.edits);
}

TEST(ImageWidgetTest, saysWhyAFileIsNotSaved)
{
    Image shown;
    shown.show(1, 1, 3);
    ModalAnswers answers;
    shown.choose(answers, "Save Image", "a.odd");
    bool isAnswered = false;
    answers.expectBox("Save Image", [&](QMessageBox& box) {
        EXPECT_EQ(shown.path("a.odd") + " cannot be written: Unsupported image format", box.text());
        isAnswered = true;
    });
    shown.push("Save...");
    QTRY_VERIFY(isAnswered);
    EXPECT_FALSE(QFile::exists(shown.path("a.odd")));
}

TEST(ImageWidgetTest, takesTheImageAway)
{
    Image shown;
    shown.show(1, 1, 3);
    shown.last.copyFrom(shown.image);
    shown.push("Clear");
    EXPECT_EQ(1, shown.edits);
    EXPECT_TRUE(shown.last.isEmpty());
}

TEST(ImageWidgetTest, anImageThatCannotBeEditedIsStillSaved)
{
    Image shown;
    shown.show(1, 1, 3);
    shown.widget.setReadOnly(true);
    EXPECT_FALSE(shown.button("Load...").isEnabled());
    EXPECT_TRUE(shown.button("Save...").isEnabled());
    EXPECT_FALSE(shown.button("Clear").isEnabled());
}

TEST(ImageWidgetTest, theFileDialogClosesWithTheFieldThatItIsFor)
{
    Image shown;
    shown.show(1, 1, 3);
    shown.push("Load...");
    QPointer<QFileDialog> dialog(shown.child<QFileDialog>());
    ASSERT_TRUE(dialog && dialog->isVisible());
    shown.widget.forgetInput();
    EXPECT_FALSE(dialog && dialog->isVisible());
}

using ImageEditorTest = EditorTest;

TEST_F(ImageEditorTest, clearingIsUndone)
{
    addEditor("SFImage");
    auto* const texture = new SoTexture2;
    m_root->addChild(texture);
    const std::uint8_t bytes[] = {1, 2, 3};
    texture->image.setValue(SbVec2i32(1, 1), 3, bytes);
    select(texture->image);
    for (QPushButton* button : dock().findChildren<QPushButton*>()) {
        if (button->text() == "Clear")
            QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_TRUE(texture->image.isEmpty());
    undo();
    EXPECT_EQ((std::vector<std::uint8_t>{1, 2, 3}), texture->image.getBytes());
}

} // namespace

#include <nodescope/mainframe/PictureExport.h>
#include <nodescope/mainframe/PicturePrinter.h>
#include <nodescope/mainframe/ShownPicture.h>
#include <tests/support/ModalAnswers.h>
#include <vexel/base/SoDebugError.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QPrinter>
#include <QTemporaryDir>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

const QStringList Filters{
    "JPG - JPEG",           "BMP - Windows Bitmap",    "TIFF - Tag Image File Format", "PS - PostScript",
    "RGB - SGI Image File", "PDF - using Plotkit",     "U3D - using Plotkit",          "PS - using Plotkit",
    "CGM - using Plotkit",  "EMF/GDI - using Plotkit", "HPGL - using Plotkit"};

/** A red cube on blue ground, in a view that is twice as wide as high. */
class PictureTest : public testing::Test {
protected:
    PictureTest()
    {
        SoDB::init();
        m_root->ref();
        auto* material = new SoMaterial;
        material->diffuseColor = SbColor(1, 0, 0);
        m_root->addChild(material);
        m_root->addChild(new SoCube);
        m_manager.setSceneGraph(m_root);
        m_manager.setBackgroundColorRGBA(SbColorRGBA(0, 0, 1, 1));
        m_manager.setViewportRegion(SbViewportRegion(200, 100));
        SoDebugError::setHandlerCallback(
            [](const SoError* error, void* errors) {
                *static_cast<QStringList*>(errors) << error->getDebugString().toQString();
            },
            &m_errors);
    }
    ~PictureTest() override
    {
        SoDebugError::setHandlerCallback(nullptr);
        m_manager.setSceneGraph(nullptr);
        m_root->unref();
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files, QDir::Name); }
    ShownPicture picture() { return {*m_root, &m_manager}; }
    void exportAs(const QString& file, const QString& filter, const QString& sceneFile = QString())
    {
        ModalAnswers answers;
        answers.expectFileDialog("Choose a filename to export under", [&](QFileDialog& dialog) {
            EXPECT_EQ(Filters, dialog.nameFilters());
            EXPECT_EQ(QFileDialog::AcceptSave, dialog.acceptMode());
            m_proposal = dialog.selectedFiles().value(0);
            dialog.selectNameFilter(filter);
            dialog.selectFile(file);
        });
        PictureExport::printFile(m_window, picture(), sceneFile);
    }

    QWidget m_window;
    QTemporaryDir m_folder;
    SoSeparator* m_root = new SoSeparator;
    SoSceneManager m_manager;
    QStringList m_errors;
    QString m_proposal;
};

struct NameRow {
    const char* test;
    const char* chosen;
    const char* filter;
    const char* written;
    QByteArray begin; ///< of the file's content
};

class ExportUnder : public PictureTest, public testing::WithParamInterface<NameRow> {};

TEST_P(ExportUnder, theChosenName)
{
    const NameRow& row = GetParam();
    exportAs(path(row.chosen), row.filter);
    EXPECT_EQ(QStringList(row.written), files());
    QFile file(path(row.written));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith(row.begin));
    EXPECT_EQ(QStringList(), m_errors);
}

INSTANTIATE_TEST_SUITE_P(
    Formats, ExportUnder,
    testing::Values(NameRow{"jpg", "shot", "JPG - JPEG", "shot.jpg", "\xff\xd8"},
                    NameRow{"jpeg", "shot.jpeg", "JPG - JPEG", "shot.jpeg", "\xff\xd8"},
                    NameRow{"bmp", "shot", "BMP - Windows Bitmap", "shot.bmp", "BM"},
                    NameRow{"tiff", "shot", "TIFF - Tag Image File Format", "shot.tiff", "II*"},
                    NameRow{"rasterPostScript", "shot", "PS - PostScript", "shot.ps", "%!PS"},
                    NameRow{"rgb", "shot.rgb", "RGB - SGI Image File", "shot.rgb", "\x01\xda"},
                    NameRow{"pdf", "report", "PDF - using Plotkit", "report.pdf", "%PDF"},
                    NameRow{"pdfInTheName", "report.pdf.txt", "PDF - using Plotkit", "report.pdf.txt", "%PDF"},
                    NameRow{"capitals", "report.PDF", "PDF - using Plotkit", "report.PDF.pdf", "%PDF"},
                    NameRow{"u3d", "model", "U3D - using Plotkit", "model.u3d", QByteArray("U3D\0", 4)},
                    NameRow{"cgm", "plan", "CGM - using Plotkit", "plan.cgm", QByteArray("\0", 1)},
                    NameRow{"emf", "plan.emf", "EMF/GDI - using Plotkit", "plan.emf", QByteArray("\x01\0\0\0", 4)},
                    NameRow{"hpgl", "plan", "HPGL - using Plotkit", "plan.hpgl", "IN;"},
                    NameRow{"vectorPostScript", "a.b", "PS - using Plotkit", "a.b.ps", "%!PS"}),
    [](const auto& test) { return std::string(test.param.test); });

TEST_F(PictureTest, aRasterPictureHasItsSizeAndTheGroundOfTheView)
{
    exportAs(path("shot.bmp"), "BMP - Windows Bitmap");
    const QImage image(path("shot.bmp"));
    EXPECT_EQ(QSize(1208, 1024), image.size());
    EXPECT_EQ(QColor(0, 0, 255), image.pixelColor(2, 2));
    EXPECT_GT(image.pixelColor(604, 512).red(), 200);
    EXPECT_LT(image.pixelColor(604, 512).blue(), 50);
}

TEST_F(PictureTest, theNameOfTheSceneIsProposed)
{
    exportAs(path("x.jpg"), "JPG - JPEG", path("valley.old.vx"));
    EXPECT_EQ(path("valley.old"), m_proposal);
    exportAs(path("y.jpg"), "JPG - JPEG");
    EXPECT_EQ(QDir::current().filePath("Untitled File"), m_proposal);
}

TEST_F(PictureTest, aRasterFileThatCannotBeWrittenIsNamed)
{
    exportAs(path("nowhere/shot.jpg"), "JPG - JPEG");
    ASSERT_FALSE(m_errors.isEmpty());
    EXPECT_TRUE(m_errors.last().contains("Unable to write to file /")) << qPrintable(m_errors.last());
    EXPECT_TRUE(m_errors.last().endsWith("/nowhere/shot.jpg"));
    EXPECT_EQ(QStringList(), files());
}

TEST_F(PictureTest, aVectorFileThatCannotBeWrittenGivesOneMessage)
{
    exportAs(path("nowhere/report.pdf"), "PDF - using Plotkit");
    ASSERT_EQ(1, m_errors.size());
    EXPECT_TRUE(m_errors[0].contains("SoNodescopeViewer::printFile()")) << qPrintable(m_errors[0]);
    EXPECT_TRUE(m_errors[0].contains("Unable to do export"));
}

TEST_F(PictureTest, isPrintedInTheMiddleOfThePage)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path("page.pdf"));
    printer.setResolution(60);
    PicturePrinter::print(printer, picture());
    QFile page(path("page.pdf"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    const QByteArray text = page.readAll();
    EXPECT_TRUE(text.startsWith("%PDF"));
    const QSize area = printer.pageLayout().paintRectPixels(60).size();
    // The view is twice as wide as high, and as wide as the page.
    EXPECT_TRUE(text.contains("/Width " + QByteArray::number(area.width())));
    EXPECT_TRUE(text.contains("/Height " + QByteArray::number(area.width() / 2)));
}

} // namespace

#include "OtherPrograms.h"

#include <tests/support/ProgramRun.h>
#include <tests/support/StructuralSimilarity.h>

#include <QTemporaryDir>
#include <gtest/gtest.h>

// Exported scenes look in other programs as they are drawn.

namespace {

struct Look {
    const char* name;
    const char* scene;
    const char* extension;
    OtherPicture (*show)(const QString& file, const QString& folder);
    double least; ///< similarity
};

// PDF and PostScript have all that scenes have: 0.966 and more was measured, the least where thin lines and points,
// which drawing lays on whole pixels, are smoothed.
constexpr double Full_formats = 0.95;
// Parts of one colour and seams between them: 0.971 and more was measured.
constexpr double Metafiles = 0.95;
// The one program that shows these files draws polygons in steps of its own and lays thin lines between them; 0.928 was
// measured for lines, 0.958 for surfaces.
constexpr double Graphics_metafiles = 0.92;
// 255 colours, and a program that draws without half covered pixels: 0.903 and more was measured. Lines, which it makes
// a whole number of pixels wide, say nothing.
constexpr double Plots = 0.88;

const Look Looks[] = {
    {"PdfSolids", "solids.vx", "pdf", OtherPrograms::pdftoppm, Full_formats},
    {"PdfLines", "lines.vx", "pdf", OtherPrograms::pdftoppm, Full_formats},
    {"PdfText", "text.vx", "pdf", OtherPrograms::pdftoppm, Full_formats},
    {"PsSolids", "solids.vx", "ps", OtherPrograms::ghostscript, Full_formats},
    {"PsLines", "lines.vx", "ps", OtherPrograms::ghostscript, Full_formats},
    {"PsText", "text.vx", "ps", OtherPrograms::ghostscript, Full_formats},
    {"CgmLines", "lines.vx", "cgm", OtherPrograms::soffice, Graphics_metafiles},
    {"CgmText", "text.vx", "cgm", OtherPrograms::soffice, Graphics_metafiles},
    {"EmfLines", "lines.vx", "emf", OtherPrograms::inkscape, Metafiles},
    {"EmfText", "text.vx", "emf", OtherPrograms::inkscape, Metafiles},
    {"HpglText", "text.vx", "hpgl", OtherPrograms::hp2xx, Plots},
};

class Appearance : public testing::TestWithParam<Look> {
protected:
    QString scene() const { return QStringLiteral(GALLERY "/") + GetParam().scene; }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

} // namespace

TEST_P(Appearance, IsThatOfTheDrawnScene)
{
    const QString file = path(QStringLiteral("scene.") + GetParam().extension);
    ASSERT_EQ(0, runProgram("vexel", {"export", scene(), file}).status);
    ASSERT_EQ(0, runProgram("vexel", {"render", scene(), path("drawn.png"), "--size", "1208x1024"}).status);
    const OtherPicture other = GetParam().show(file, m_folder.path());
    ASSERT_FALSE(other.image.isNull()) << other.output;
    ASSERT_GT(other.shown, 0.8);

    const QSize size(604, int(512 * other.shown));
    const auto scaled = [&](const QImage& image) {
        return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage whole(path("drawn.png"));
    const QImage drawn = whole.copy(0, 0, whole.width(), int(whole.height() * other.shown));
    const double likeness = structuralSimilarity(scaled(drawn), scaled(other.image));
    RecordProperty("similarity", std::to_string(likeness));
    EXPECT_GE(likeness, GetParam().least);
    // What is asked for is more than the ground alone would reach.
    const QImage ground = drawn.copy(0, 0, 1, drawn.height());
    EXPECT_LT(structuralSimilarity(scaled(drawn), scaled(ground)), GetParam().least - 0.05);
}

INSTANTIATE_TEST_SUITE_P(Formats, Appearance, testing::ValuesIn(Looks),
                         [](const auto& info) { return std::string(info.param.name); });

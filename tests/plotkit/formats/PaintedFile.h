#pragma once

#include <tests/support/ProgramRun.h>

#include <plotkit/SoVectorOutput.h>
#include <plotkit/picture/PictureSink.h>
#include <vexel/base/SbString.h>

#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

/** The page of pictures that tests paint: 200 x 100 mm, the picture 10 mm from its sides. */
inline PageLayout paintedPage()
{
    return {200, 100, {10, 10, 180, 80}};
}

/** The content of an output's file when the function has painted into it. */
inline QByteArray painted(SoVectorOutput& output, const std::function<void(PictureSink&)>& paint)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("picture");
    EXPECT_TRUE(output.openFile(SbString(file.toStdString())));
    PictureSink& sink = output.sink();
    sink.begin(paintedPage());
    paint(sink);
    EXPECT_TRUE(sink.end());
    EXPECT_TRUE(output.closeFile());
    return contentOf(file);
}

/** Something of everything that a picture can have. */
inline void paintAll(PictureSink& sink)
{
    sink.ground({0, 0, 1, 1}, {1, 1, 1, 1});
    sink.polygon({{20, 20}, {60, 20}, {60, 40}}, {1, 0, 0, 1});
    sink.shadedPolygon({{{70, 20}, {1, 0, 0, 1}}, {{90, 20}, {0, 1, 0, 1}}, {{90, 40}, {0, 0, 1, 1}}});
    sink.polyline({{20, 50}, {60, 60}, {90, 50}}, {0.5, {}, {0, 0, 0, 1}});
    sink.polyline({{20, 70}, {60, 70}}, {0.5, {2, 1}, {0, 1, 0, 1}});
    sink.dot({100, 50}, 3, {1, 0, 1, 1});
    PageText text;
    text.text = QStringLiteral("Gr\u00fc\u00dfe");
    text.place = {100, 30};
    text.width = 20;
    text.family = QStringLiteral("DejaVu Sans");
    sink.text(text);
    text.angle = 90;
    sink.text(text);
}

#include "ProgramRows.h"

#include "ProgramRun.h"

#include <QFile>
#include <gtest/gtest.h>

ProgramRows::ProgramRows(const std::vector<ProgramFile>& files)
{
    for (const ProgramFile& file : files) {
        QFile target(m_folder.filePath(file.name));
        EXPECT_TRUE(target.open(QIODevice::WriteOnly));
        target.write(file.content);
    }
}

QString ProgramRows::placed(const char* text) const
{
    return QString::fromLatin1(text).replace('@', m_folder.path());
}

void ProgramRows::expectText(const std::string& text, const char* expected) const
{
    if (*expected == '^') {
        EXPECT_EQ(text, placed(expected + 1).toStdString());
    } else if (*expected) {
        EXPECT_NE(text.find(placed(expected).toStdString()), std::string::npos) << text;
    } else {
        EXPECT_EQ(text, "");
    }
}

void ProgramRows::expect(const ProgramRow& row) const
{
    QStringList command;
    for (const char* word : row.command)
        command << placed(word);
    const QString program = command.takeFirst();
    const ProgramRun run = runProgram(program, command);
    EXPECT_EQ(run.status, row.status) << run.err;
    expectText(run.out, row.out);
    expectText(run.err, row.err);
    const QString file = placed(row.file);
    if (row.begin) {
        EXPECT_TRUE(contentOf(file).startsWith(row.begin));
    } else if (*row.file) {
        EXPECT_FALSE(QFile::exists(file));
    }
}

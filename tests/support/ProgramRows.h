#pragma once

#include <QTemporaryDir>
#include <string>
#include <vector>

/** A file that stands in the folder of a ProgramRow before the call. */
struct ProgramFile {
    const char* name;
    const char* content;
};

/** One call of a program and what must come of it. In all texts, @ stands for the folder with the files. */
struct ProgramRow {
    const char* name;
    std::vector<const char*> command; ///< the program, without its folder, and its arguments
    int status;
    const char* out;             ///< part of the standard output, or all of it behind a "^"; "" for no output at all
    const char* err;             ///< the same for the standard error output
    const char* file = "";       ///< file that the call is about
    const char* begin = nullptr; ///< first bytes of that file after the call; none when it must not exist
};

/** Makes the calls of rows, each in a folder of its own. */
class ProgramRows {
public:
    explicit ProgramRows(const std::vector<ProgramFile>& files);

    /** Runs the program and checks all that the row says. */
    void expect(const ProgramRow& row) const;

private:
    QString placed(const char* text) const;
    void expectText(const std::string& text, const char* expected) const;

    QTemporaryDir m_folder;
};

#pragma once

#include "Commands.h"

class SoSeparator;

/** A scene read from a file, with the errors met on the way printed; held as long as the object. */
class SceneFile {
public:
    explicit SceneFile(const std::string& fileName);
    SceneFile(const SceneFile&) = delete;
    SceneFile& operator=(const SceneFile&) = delete;
    ~SceneFile();

    /** Null when nothing could be read. */
    SoSeparator* root() const { return m_root; }
    int numErrors() const { return m_numErrors; }
    bool isBinary() const { return m_isBinary; }
    ExitStatus status() const { return !m_root ? Unreadable : (m_numErrors > 0 ? Had_read_errors : All_good); }

private:
    SoSeparator* m_root = nullptr;
    int m_numErrors = 0;
    bool m_isBinary = false;
};

#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <vexel/base/SbString.h>
#include <vexel/base/VexelApi.h>
#include <vexel/io/detail/Header.h>
#include <vexel/io/detail/TextReader.h>

class SoFieldContainer;
class BinaryReader;
class FileContent;
class SoBase;
class SceneReader;

/**
 * A scene text or scene file that is being read.
 *
 * A file is mapped, or unpacked when it is compressed, as a whole; a buffer is read where it stands and must outlive
 * its use. Errors are posted as SoReadError with file, line and column; reading goes on behind them.
 */
class VEXEL_API SoInput {
public:
    SoInput();
    SoInput(const SoInput&) = delete;
    SoInput& operator=(const SoInput&) = delete;
    virtual ~SoInput();

    /**
     * Opens a file, searched as it is named and then in the directory list.
     * @param okIfNotFound  a file that is not there is no error to be posted
     * @return false when there is no such file, it cannot be read, or its compressed form is damaged
     */
    bool openFile(const SbString& fileName, bool okIfNotFound = false);
    /** Reads from memory: an ascii or binary scene with its header, or ascii scene text without one. */
    void setBuffer(const void* data, std::size_t size);
    void closeFile();

    /** Full name of the open file; empty for a buffer. */
    SbString getCurFileName() const;
    bool isBinary() const { return m_header.kind == SceneHeader::Kind::Binary; }
    /** True at the end of the input, comments and white space left aside. */
    bool eof();

    void addDirectoryFirst(const SbString& directory);
    void addDirectoryLast(const SbString& directory);
    void removeDirectory(const SbString& directory);
    const std::vector<SbString>& getDirectories() const { return m_directories; }
    /** Full name of the file that openFile() would open, or an empty text. */
    SbString findFile(const SbString& fileName) const;

    /** Registers a text under a name; a text registered before under that name is replaced. */
    static void addInMemoryTextFile(const SbString& name, const SbString& text);
    /** The text of an in-memory file, or of a file on disk. False when there is neither. */
    static bool readTextFile(const SbString& name, SbString& text);

    /** Errors are counted, but not posted. */
    void setQuiet(bool on) { m_quiet = on; }

    // Reading of values, for fields. Each answers false, with an error posted, when no such value stands here.

    template <class Number>
    bool readNumber(Number& value)
    {
        return m_text.readNumber(value) || postError("a number");
    }
    bool readText(std::string& text);
    TextReader& text() { return m_text; }
    /** Posts a read error at the next thing in the text: what was expected there. Always false. */
    bool postError(const char* expected);
    /** Posts a read error with a message of its own, at @p place in the text. Always false. */
    bool postErrorAt(const char* place, const std::string& message);
    /** The same for a binary scene, by the number of the byte behind its header line. */
    bool postErrorAtByte(std::size_t byte, const char* message);
    int getNumErrors() const { return m_errors; }
    /** Tells how far the text was read, when that is worth telling; to be called often in long lists. */
    void updateProgress() { updateProgress(m_text.position()); }
    void updateProgress(const char* position)
    {
        if (position >= m_nextProgress)
            reportProgress(position);
    }

    /** The fields of @p container, to the end of the text or of the enclosing block. */
    bool readFields(SoFieldContainer& container);
    SceneReader& sceneReader();

protected:
    /** Called while a scene is read, about a hundred times, with the part that was read, in percent. */
    virtual void progressChanged(double percent);

private:
    friend class SoDB;

    /** What an input holds at its top level. */
    enum class Item { Object, Nothing, Error };

    void setText(const char* data, std::size_t size);
    bool checkHeader();
    void dropReaders();
    /** Reads the next node or path; it is held until the input is closed. */
    Item readItem(SoBase*& base);
    void reportProgress(const char* position);
    void postErrorCount();

    TextReader m_text;
    const char* m_nextProgress = nullptr;
    std::unique_ptr<FileContent> m_content;
    std::unique_ptr<SceneReader> m_reader;
    std::unique_ptr<BinaryReader> m_binaryReader;
    std::vector<SbString> m_directories;
    SbString m_fileName;
    int m_errors = 0;
    SceneHeader m_header;
    bool m_quiet = false;
};

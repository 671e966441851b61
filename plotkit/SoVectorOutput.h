#pragma once

#include <plotkit/PlotkitApi.h>

#include <QSaveFile>

class PictureSink;
class SbString;

/**
 * The file that a picture goes to. The file appears under its name when it is complete, in closeFile(); until then, and
 * after a failure, a file that was there before stays as it is.
 */
class PLOTKIT_API SoVectorOutput {
public:
    SoVectorOutput(const SoVectorOutput&) = delete;
    SoVectorOutput& operator=(const SoVectorOutput&) = delete;
    virtual ~SoVectorOutput();

    /** Begins a file; one that is open is given up. False, with an SoDebugError, when it can't be written there. */
    bool openFile(const SbString& fileName);
    /** Completes the file. False, with an SoDebugError, when something could not be written, or nothing was drawn. */
    bool closeFile();
    /** Ends without a file. */
    void cancelFile();
    bool isOpen() const { return m_file.isOpen(); }

    /** What draws into the open file; for actions. */
    virtual PictureSink& sink() = 0;

protected:
    SoVectorOutput() = default;

    /** The open file; what fails to be written is found in closeFile(). */
    QIODevice& device() { return m_file; }

private:
    bool fail(const char* method);

    QSaveFile m_file;
};

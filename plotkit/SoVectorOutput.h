#pragma once

#include <plotkit/PlotkitApi.h>
#include <vexel/io/SoAtomicFile.h>

class PictureSink;

/**
 * The file that a picture goes to. The file appears under its name when it is complete, in closeFile(); until then, and
 * after a failure, a file that was there before stays as it is.
 */
class PLOTKIT_API SoVectorOutput {
public:
    SoVectorOutput(const SoVectorOutput&) = delete;
    SoVectorOutput& operator=(const SoVectorOutput&) = delete;
    virtual ~SoVectorOutput();

    /** Begins a file; one that is open is given up. False when it can't be written there. */
    bool openFile(const SbString& fileName) { return m_file.open(fileName); }
    /** Completes the file. False when something could not be written, or nothing was drawn. */
    bool closeFile() { return m_file.close(); }
    /** Why the last openFile() or closeFile() failed, with the name of the file. */
    SbString getErrorText() const { return m_file.getErrorText(); }
    /** Ends without a file. */
    void cancelFile() { m_file.cancel(); }
    bool isOpen() const { return m_file.isOpen(); }

    /** What draws into the open file; for actions. */
    virtual PictureSink& sink() = 0;

protected:
    SoVectorOutput() = default;

    /** The open file; what fails to be written is found in closeFile(). */
    QIODevice& device() { return m_file.device(); }

private:
    SoAtomicFile m_file;
};

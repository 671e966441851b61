#pragma once

#include <QtCore/QSaveFile>

#include <vexel/base/SbString.h>
#include <vexel/base/VexelApi.h>

/**
 * A file that appears under its name when it is complete; until then, and after a failure, a file that was there before
 * stays as it is. Devices and pipes can't be replaced so, and are refused.
 */
class VEXEL_API SoAtomicFile {
public:
    /** Begins a file; one that is open is given up. False when it can't be written there. */
    bool open(const SbString& fileName);
    /** Completes the file. False when something could not be written, or none is open. */
    bool close() { return isOpen() && m_file.commit(); }
    /** Why the last open() or close() failed. */
    SbString getReason() const;
    /** The same in a sentence with the name of the file. */
    SbString getErrorText() const;
    /** Ends without a file. */
    void cancel();
    /** The same, for a reason that close() then fails with, unless the file itself knows one. */
    void giveUp(const SbString& reason);
    bool isOpen() const { return m_file.isOpen(); }

    /** The open file; what fails to be written is found in close(). */
    QIODevice& device() { return m_file; }

private:
    /** Finds out when only a part of what is written had room. */
    class File : public QSaveFile {
    public:
        QString failure; ///< what the system said when writing failed first; QSaveFile forgets it

    protected:
        qint64 writeData(const char* data, qint64 length) override;
    };

    File m_file;
    QString m_failure; ///< that the file does not know of
};

#pragma once

#include <plotkit/SoVectorizeAction.h>

#include <memory>
#include <string_view>
#include <vector>

class SbString;

/** Draws a graph into one file of some format. */
class PLOTKIT_API VectorExport {
public:
    VectorExport() = default;
    VectorExport(const VectorExport&) = delete;
    VectorExport& operator=(const VectorExport&) = delete;
    virtual ~VectorExport() = default;

    /** False when the file can't be written there. */
    virtual bool openFile(const SbString& fileName) = 0;
    virtual void apply(SoNode* root) = 0;
    /** False when something could not be written, or the drawing was ended by the progress callback. */
    virtual bool closeFile() = 0;
    /** Why the last openFile() or closeFile() failed, with the name of the file. */
    virtual SbString getErrorText() const = 0;
    virtual void setProgressCallback(SoVectorizeAction::ProgressCB progress) = 0;
    /** For formats that have paper or a ground; see SoVectorizeAction. */
    virtual void setBackgroundColor(const std::optional<SbColorRGBA>& color) = 0;
};

/** A format of files made of lines and surfaces. */
struct PLOTKIT_API VectorFormat {
    const char* name;      ///< for messages
    const char* extension; ///< with its dot
    std::unique_ptr<VectorExport> (*create)();

    static const std::vector<VectorFormat>& all();
    /** Null: there is none of that name. */
    static const VectorFormat* named(std::string_view name);
    /** That of a file name's end, in capitals too; null: none. */
    static const VectorFormat* ofFile(std::string_view fileName);
};

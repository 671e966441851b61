#include "VectorFormat.h"
#include "SoToPDFAction.h"
#include "SoToU3DAction.h"
#include "SoVectorizeCGMAction.h"
#include "SoVectorizeGDIAction.h"
#include "SoVectorizeHPGLAction.h"
#include "SoVectorizePSAction.h"

#include <vexel/base/SbString.h>

#include <algorithm>
#include <cctype>
#include <utility>

namespace {

/** Options are those of the action. */
template <class Action>
class ActionExport : public VectorExport {
public:
    void apply(SoNode* root) override { m_action.apply(root); }
    void setProgressCallback(SoVectorizeAction::ProgressCB progress) override
    {
        m_action.setProgressCallback(std::move(progress));
    }
    void setBackgroundColor(const std::optional<SbColorRGBA>& color) override { m_action.setBackgroundColor(color); }

protected:
    Action m_action;
};

/** Of an action that has the file itself. */
template <class Action>
class FileExport : public ActionExport<Action> {
public:
    bool openFile(const SbString& fileName) override { return this->m_action.openFile(fileName); }
    bool closeFile() override { return this->m_action.closeFile(); }
    SbString getErrorText() const override { return this->m_action.getErrorText(); }
};

/** Of an action whose output has the file. */
template <class Action, auto getOutput>
class OutputExport : public ActionExport<Action> {
public:
    bool openFile(const SbString& fileName) override { return m_output.openFile(fileName); }
    bool closeFile() override { return m_output.closeFile(); }
    SbString getErrorText() const override { return m_output.getErrorText(); }

private:
    SoVectorOutput& m_output = *(this->m_action.*getOutput)();
};

/** Of the format in which the scene stays a scene, with no ground behind it. */
class SceneExport : public VectorExport {
public:
    bool openFile(const SbString& fileName) override { return m_action.openFile(fileName); }
    void apply(SoNode* root) override { m_action.apply(root); }
    bool closeFile() override { return m_action.closeFile(); }
    SbString getErrorText() const override { return m_action.getErrorText(); }
    void setProgressCallback(SoVectorizeAction::ProgressCB progress) override
    {
        m_action.setProgressCallback(std::move(progress));
    }
    void setBackgroundColor(const std::optional<SbColorRGBA>&) override {}

private:
    SoToU3DAction m_action;
};

template <class Export>
std::unique_ptr<VectorExport> make()
{
    return std::make_unique<Export>();
}

} // namespace

const std::vector<VectorFormat>& VectorFormat::all()
{
    static const std::vector<VectorFormat> Formats{
        {"PDF", ".pdf", make<FileExport<SoToPDFAction>>},
        {"U3D", ".u3d", make<SceneExport>},
        {"PS", ".ps", make<OutputExport<SoVectorizePSAction, &SoVectorizePSAction::getPSVectorOutput>>},
        {"CGM", ".cgm", make<OutputExport<SoVectorizeCGMAction, &SoVectorizeCGMAction::getCGMVectorOutput>>},
        {"GDI", ".emf", make<OutputExport<SoVectorizeGDIAction, &SoVectorizeGDIAction::getGDIVectorOutput>>},
        {"HPGL", ".hpgl", make<OutputExport<SoVectorizeHPGLAction, &SoVectorizeHPGLAction::getHPGLVectorOutput>>},
    };
    return Formats;
}

const VectorFormat* VectorFormat::named(std::string_view name)
{
    const auto found =
        std::find_if(all().begin(), all().end(), [&](const auto& format) { return format.name == name; });
    return found == all().end() ? nullptr : &*found;
}

const VectorFormat* VectorFormat::ofFile(std::string_view fileName)
{
    const auto ends = [&](const VectorFormat& format) {
        const std::string_view extension = format.extension;
        return fileName.size() >= extension.size() &&
               std::equal(extension.begin(), extension.end(), fileName.end() - std::ptrdiff_t(extension.size()),
                          [](char a, char b) { return a == std::tolower(static_cast<unsigned char>(b)); });
    };
    const auto found = std::find_if(all().begin(), all().end(), ends);
    return found == all().end() ? nullptr : &*found;
}

#include "SoToU3DAction.h"

#include <plotkit/u3d/U3DCollector.h>
#include <vexel/actions/SoViewableScene.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

/** The part of the work that is done when all shapes are. */
constexpr double Collecting = 0.9;

class ShapeCounter : public SoAction {
    SO_ACTION(ShapeCounter, SoAction)
public:
    std::size_t count() const { return m_count; }
    void visitShape(SoShape&) override { ++m_count; }

private:
    std::size_t m_count = 0;
};

} // namespace

SoToU3DAction::SoToU3DAction() = default;

SoToU3DAction::~SoToU3DAction() = default;

bool SoToU3DAction::openFile(const SbString& fileName)
{
    m_isWritten = false;
    return m_file.open(fileName);
}

bool SoToU3DAction::closeFile()
{
    if (!m_isWritten)
        m_file.cancel();
    return m_file.close();
}

void SoToU3DAction::apply(SoNode* root)
{
    if (!root || !m_file.isOpen() || m_isWritten)
        return;
    root->ref();
    m_isWritten = write(*root);
    if (!m_isWritten)
        m_file.cancel();
    root->unrefNoDelete();
}

bool SoToU3DAction::write(SoNode& root)
{
    const SoViewableScene scene(&root, m_region);
    ShapeCounter shapes;
    if (m_progress) {
        shapes.state().setViewportRegion(m_region);
        shapes.apply(scene.root());
    }
    U3DProgress::Callback collected;
    if (m_progress)
        collected = [this](double part) { return m_progress(Collecting * part); };
    U3DProgress progress(collected, shapes.count());
    U3DDocument document;
    U3DCollector(document, m_region, scene.root(), progress).apply(scene.root());
    return !progress.isCanceled() && document.write(m_file.device()) && (!m_progress || m_progress(1));
}

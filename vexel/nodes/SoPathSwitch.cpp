#include <vexel/nodes/SoPathSwitch.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SoPath.h>

namespace {

// Answers whether the way, without its last nodes, ends as the path does.
bool endsWith(const SoPath& way, int leftOut, const SoPath& path)
{
    const int start = way.getFullLength() - leftOut - path.getFullLength();
    if (start < 0 || path.getFullLength() == 0)
        return false;
    for (int i = 0; i < path.getFullLength(); ++i) {
        if (way.getNode(start + i) != path.getNode(i) || (i > 0 && way.getIndex(start + i) != path.getIndex(i)))
            return false;
    }
    return true;
}

} // namespace

void SoPathSwitch::doAction(SoAction& action)
{
    const SoPath* wanted = path.getValue();
    bool fits = action.isSearchingAll();
    if (wanted && !fits) {
        SoPath* way = action.getCurPath();
        way->ref();
        fits = endsWith(*way, 0, *wanted) || endsWith(*way, 1, *wanted);
        way->unref();
    }
    if (fits)
        SoGroup::doAction(action);
}

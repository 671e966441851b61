#include <vexel/base/SoLibNodescope.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

// Inspects a scene from a program without Qt, and says at each step how things stand.

namespace {

void report(const char* when)
{
    std::printf("%s: %s\n", when, SoLibNodescope::instance()->isRunning() ? "running" : "not running");
}

} // namespace

int main()
{
    SoDB::init();
    std::printf("available at first: %s\n", SoLibNodescope::isAvailable() ? "yes" : "no");
    SoLibNodescope* const nodescope = SoLibNodescope::instance();
    if (!nodescope)
        return 1;
    std::printf("available then: %s\n", SoLibNodescope::isAvailable() ? "yes" : "no");
    auto* root = new SoSeparator;
    root->ref();
    report("before");
    for (int round = 1; round <= 2; ++round) {
        nodescope->startNode(root, nullptr);
        report("started");
        for (int turn = 0; turn < 20; ++turn)
            nodescope->processEvents();
        report("served");
        nodescope->stop();
        report("stopped");
    }
    std::printf("references: %d\n", root->getRefCount());
    root->unref();
    return 0;
}

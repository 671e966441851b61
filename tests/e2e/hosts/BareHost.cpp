#include <nodescope/entry/EntryFunctions.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>

#include <QCoreApplication>
#include <cstdio>

// Inspects a scene from a program without an application object and without a main loop of Qt, and says at each step
// how things stand.

namespace {

void report(const char* when)
{
    std::printf("%s: %s, %s application\n", when, _isRunning() ? "running" : "not running",
                QCoreApplication::instance() ? "an" : "no");
}

} // namespace

int main()
{
    SoDB::init();
    auto* root = new SoSeparator;
    root->ref();
    report("before");
    for (int round = 1; round <= 2; ++round) {
        _startNode(root, nullptr);
        report("started");
        bool isServed = false;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [&] { isServed = true; }, Qt::QueuedConnection);
        _processEvents();
        report(isServed ? "served" : "not served");
        _stop();
        report("stopped");
    }
    std::printf("references: %d\n", root->getRefCount());
    root->unref();
    return 0;
}

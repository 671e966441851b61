#include <nodescope/entry/EntryFunctions.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoSeparator.h>

#include <cstdio>

// Has its graph inspected for some rounds of a main loop of its own.

int main()
{
    SoDB::init();
    auto* root = new SoSeparator;
    root->ref();
    root->addChild(new SoCube);
    _startNode(root, nullptr);
    int rounds = 0;
    while (rounds < 10 && _processEvents())
        ++rounds;
    _stop();
    std::printf("inspected for %d rounds\n", rounds);
    root->unref();
    return 0;
}

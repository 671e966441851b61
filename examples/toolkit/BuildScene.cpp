// Builds a scene, searches it, writes it: example_build_scene FILE

#include <vexel/actions/SoSearchAction.h>
#include <vexel/actions/SoWriteAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoOutput.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoTranslation.h>

#include <cstdio>

namespace {

// [build]
SoSeparator* makeNecklace(int pearls)
{
    auto* pearl = new SoSphere; // one node, shared by all places
    pearl->radius = 0.4f;
    auto* step = new SoTranslation;
    step->translation = SbVec3f(1, 0, 0);

    auto* necklace = new SoSeparator;
    necklace->setName("necklace");
    auto* material = new SoMaterial;
    material->diffuseColor = SbColor(0.9f, 0.85f, 0.8f);
    necklace->addChild(material);
    for (int i = 0; i < pearls; ++i) {
        necklace->addChild(pearl);
        necklace->addChild(step);
    }
    return necklace;
}
// [end]

// [search]
int countPearls(SoNode* scene)
{
    SoSearchAction search;
    search.setType(SoSphere::getClassTypeId());
    search.setInterest(SoSearchAction::ALL);
    search.apply(scene);
    return search.getPaths().getLength();
}
// [end]

} // namespace

// [write]
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: example_build_scene FILE\n", stderr);
        return 2;
    }
    SoDB::init();
    SoSeparator* scene = makeNecklace(12);
    scene->ref(); // who keeps a node counts as one reference
    std::printf("%d pearls\n", countPearls(scene));

    SoOutput out;
    bool isWritten = out.openFile(argv[1]); // compressed if the name ends in vxz or gz
    if (isWritten) {
        SoWriteAction(&out).apply(scene);
        isWritten = out.closeFile();
    }
    if (!isWritten)
        std::fprintf(stderr, "%s: %s\n", argv[1], out.getError().toUtf8().constData());
    scene->unref();
    return isWritten ? 0 : 1;
}
// [end]

#include "InlineFiles.h"

#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoWWWInline.h>

namespace {

void fetch(const SbString& url, void*, SoWWWInline* node)
{
    SoInput input;
    if (!input.openFile(url, true))
        return;
    if (SoNode* scene = SoDB::readAll(&input))
        node->setChildData(scene);
}

} // namespace

void InlineFiles::install()
{
    SoWWWInline::setFetchURLCallBack(fetch, nullptr);
}

void InlineFiles::remove()
{
    SoWWWInline::setFetchURLCallBack(nullptr, nullptr);
}

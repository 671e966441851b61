#include <vexel/nodes/SoWWWAnchor.h>

#include <QString>

namespace {
SoWWWAnchor::Function* s_function = nullptr;
void* s_data = nullptr;
} // namespace

void SoWWWAnchor::setFetchURLCallBack(Function* function, void* data)
{
    s_function = function;
    s_data = data;
}

void SoWWWAnchor::activate(const SbVec3f* point)
{
    if (!s_function)
        return;
    SbString url = name.getValue();
    if (map.getValue() == POINT && point)
        url += SbString(QStringLiteral("?%1,%2,%3").arg((*point)[0]).arg((*point)[1]).arg((*point)[2]));
    s_function(url, s_data, this);
}

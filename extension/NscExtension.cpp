#include "NscExtension.h"

#include <utility>

NscExtension::NscExtension(Info info) : m_info(std::move(info)) {}

NscExtension::~NscExtension() = default;

void NscExtension::addControlledExtension(NscExtension*) {}

QMenu* NscExtension::getNodeMenu()
{
    return nullptr;
}

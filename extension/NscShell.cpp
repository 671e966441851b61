#include "NscShell.h"

namespace {

NscShell* instance = nullptr;

} // namespace

NscShell::NscShell()
{
    Q_ASSERT_X(!instance, "NscShell::NscShell", "there is an instance already; delete it first");
    instance = this;
}

NscShell::~NscShell()
{
    instance = nullptr;
}

NscShell* NscShell::getInstance()
{
    return instance;
}

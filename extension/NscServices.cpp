#include "NscServices.h"

namespace {

NscServices* instance = nullptr;

} // namespace

NscServices::NscServices()
{
    Q_ASSERT_X(!instance, "NscServices::NscServices", "there is an instance already; delete it first");
    instance = this;
}

NscServices::~NscServices()
{
    instance = nullptr;
}

NscServices* NscServices::getInstance()
{
    return instance;
}

#include "ListColumns.h"

std::optional<QColor> ListColumns::color(const SoMField&, int) const
{
    return std::nullopt;
}

std::unique_ptr<SoField> ListColumns::single(const SoMField&, int) const
{
    return nullptr;
}

std::unique_ptr<SoMField> ListColumns::list(const SoField&) const
{
    return nullptr;
}

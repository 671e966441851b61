#pragma once

#include <nodescope/NodescopeApi.h>

#include <QUrl>

/** Where the documents of the toolkit and of this tool stand online; the one place that knows the address. */
namespace OnlineReference {

/** A page by its name without ending. */
NODESCOPE_API QUrl page(const QString& name);
/** The page about this tool. */
NODESCOPE_API QUrl toolPage();

} // namespace OnlineReference

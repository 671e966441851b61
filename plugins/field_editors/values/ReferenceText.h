#pragma once

#include <QString>

class SoBase;

/** How an object that a field refers to is shown: what it is, not all that stands below it. */
namespace ReferenceText {

/** Type and name; "NULL" for none. */
QString of(const SoBase* object);

} // namespace ReferenceText

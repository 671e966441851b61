#pragma once

#include <plugins/field_editors/values/ValueWidget.h>

class SoField;

/** The fields of the toolkit's classes whose numbers have a range. */
namespace KnownRanges {

/** Null: none is known. It lives as long as the program. */
const ValueRange* of(const SoField& field);

} // namespace KnownRanges

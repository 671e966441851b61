#pragma once

class NscExtension;
class SbString;

/** The editors of the plug-in, each under the name that the configuration uses. */
namespace EditorTable {

/** A new editor; null for a name that is not in the table. */
NscExtension* create(const SbString& name);

} // namespace EditorTable

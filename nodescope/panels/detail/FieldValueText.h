#pragma once

class QString;
class SoField;

/** How a field list shows values: few of many, and nothing of what would fill more than a line with noise. */
namespace FieldValueText {

QString of(const SoField& field);
/** Whether the field is shown by an icon instead of a text. */
bool isPicture(const SoField& field);
/** Whether the list's row of the field can be chosen for editing. */
bool isEditable(const SoField& field);
/** Whether the field holds nodes, or what is shown like them. */
bool holdsNodes(const SoField& field);

} // namespace FieldValueText

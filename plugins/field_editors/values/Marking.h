#pragma once

class QString;
class QWidget;

/** How inputs show that something is wrong. */
namespace Marking {

/** Marks an input whose text is no value, with the reason as its tool tip; an empty reason takes the mark off. */
void set(QWidget& widget, const QString& problem);
/** Makes an input with a property "readOnly" such, on the ground of its window, or editable again. */
void setReadOnly(QWidget& widget, bool isReadOnly);
/** Makes the text of a label that of a warning, readable on light and dark ground. */
void setWarning(QWidget& label);

} // namespace Marking

#pragma once

/** The texts of the user interface in the language of the system. */
namespace Translations {

/** Texts of the inspector. Those of a host, and its locale, stay as they are. */
void install();
/** Texts in Qt's own dialogs; for a program that belongs to the inspector. */
void installForQt();
/** Takes back both. */
void remove();

} // namespace Translations

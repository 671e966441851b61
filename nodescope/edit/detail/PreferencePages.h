#pragma once

#include <nodescope/preferences/PreferenceRecord.h>

#include <vector>

/** The dialog in which the user sets preferences. */
namespace PreferencePages {

/** The pages of the inspector's panels, then those that extensions gave the shell. */
std::vector<PreferenceRecord> gather();
/** Shows them; ends when the user closes the dialog. */
void edit();

} // namespace PreferencePages

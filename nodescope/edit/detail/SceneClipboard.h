#pragma once

class SoSelection;

/** Exchanges what is selected in the 3D view with the system clipboard, as scene text. Nothing of it can be undone. */
namespace SceneClipboard {

/** Puts the first selected path on the clipboard; nothing when nothing is selected. */
void copy(const SoSelection& selection);
/** Copies, then takes the selected node out of the scene, and with it what it leaves without a shape. */
void cut(SoSelection& selection);
/** Adds what the clipboard holds to the scene; text that is no scene changes nothing. */
void paste(SoSelection& selection);

} // namespace SceneClipboard

#pragma once

#include <QStringList>

class SoSceneManager;
struct HostingFacts;

/** The start and the end of an inspection, step by step. Which step may run when, SoNodescopeImpl decides. */
namespace Inspection {

/** Makes the application object if there is none, then the services and the main window. */
void prepare(const HostingFacts& facts);
/** Brings everything up. `arguments` are those of a program, whose last one names a scene file; without a scene manager
 * there is a placeholder scene. */
void initialize(const QStringList& arguments, const SoSceneManager* sceneManager);
void showMainFrame();
/** Tears everything down, in the reverse order. */
void cleanup();

/** Whether the application object is the inspector's own. */
bool ownsApplication();

} // namespace Inspection

#pragma once

class QWidget;
class SoGuiRenderArea;
class SoSceneManager;

/** How an inspection is started, and inside what. */
struct HostingFacts {
    bool isStandalone = false;
    QWidget* parent = nullptr;
    SoSceneManager* sceneManager = nullptr;
    SoGuiRenderArea* renderArea = nullptr;
    int* argc = nullptr; ///< arguments for the application object; null: the inspector's own
    char** argv = nullptr;
};

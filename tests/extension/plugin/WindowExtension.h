#pragma once

#include <extension/NscExtension.h>

class QDockWidget;
class QLabel;
class QToolBar;

/** Takes one of everything that the shell offers, and deletes it without giving it back. */
class WindowExtension : public NscExtension {
    Q_OBJECT
public:
    explicit WindowExtension(const SbString& name);
    ~WindowExtension() override;

    void activate() override;
    void show() override;
    void hide() override;

public slots:
    void load();
    void save();

private:
    QDockWidget* m_dock;
    QToolBar* m_bar;
    QMenu* m_menu;
    QLabel* m_page;
    QLabel* m_status;
};

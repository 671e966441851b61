#pragma once

#include <vexel/viewer/SoQtFullViewer.h>

#include <memory>

class QMouseEvent;

/**
 * Looks at a scene as at a thing in the hand: dragging turns it, and it goes on turning when it is let go in motion.
 * The middle button, or Shift, moves it sideways; the wheel, or Ctrl, moves it nearer. A click without a drag picks.
 */
class VEXEL_API SoQtExaminerViewer : public SoQtFullViewer {
    Q_OBJECT
public:
    /** @param buildInsideParent  the viewer becomes part of the parent; otherwise it opens a window of its own */
    explicit SoQtExaminerViewer(QWidget* parent = nullptr, const char* name = nullptr, bool buildInsideParent = true,
                                BuildFlag flag = BUILD_ALL, Type type = BROWSER);
    ~SoQtExaminerViewer() override;

    /** Whether the scene goes on turning after a drag. */
    void setAnimationEnabled(bool on);
    bool isAnimationEnabled() const;
    bool isAnimating() const;
    void stopAnimating();

protected:
    bool handleWidgetEvent(QEvent& event) override;
    void leftWheelTurned(float angle) override;
    void bottomWheelTurned(float angle) override;
    void rightWheelTurned(float angle) override;

private:
    bool pressed(const QMouseEvent& event);
    bool moved(const QMouseEvent& event);
    bool released(const QMouseEvent& event);

    struct Drag;
    struct Spin;
    std::unique_ptr<Drag> m_drag;
    std::unique_ptr<Spin> m_spin;
};

#pragma once

#include <nodescope/panels/MessageLog.h>

#include <QWidget>
#include <memory>

class QPushButton;
class QTreeView;
class ToolkitErrors;

/** Lists what the toolkit and the plug-in manager report while the panel exists. */
class NODESCOPE_API MessagePanel : public QWidget {
    Q_OBJECT
public:
    explicit MessagePanel(QWidget* parent = nullptr);
    ~MessagePanel() override;

    MessageLog& log() { return m_log; }

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /** Puts the selected lines, or all when none is selected, on the clipboard. */
    void copy();

private:
    void updateButtons();
    void followEnd();

    MessageLog m_log;
    std::unique_ptr<ToolkitErrors> m_errors;
    QTreeView* m_view;
    QPushButton* m_copyButton;
    QPushButton* m_clearButton;
    bool m_isAtEnd = true;
};

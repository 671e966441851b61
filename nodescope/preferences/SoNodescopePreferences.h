#pragma once

#include <nodescope/NodescopeApi.h>
#include <nodescope/preferences/PreferenceRecord.h>

#include "ui_QPreferences.h"

#include <memory>
#include <vector>

class SenderObject;

/**
 * Shows preference pages one at a time, and lets their owners load and save them. Each page is loaded when the dialog is
 * made; OK and Apply save all, in their order.
 *
 * The pages stay those of their owners: they have no parent when the dialog is gone.
 */
class NODESCOPE_API SoNodescopePreferences : public QDialog, private Ui::QPreferences {
    Q_OBJECT
public:
    explicit SoNodescopePreferences(const std::vector<PreferenceRecord>& pages, QWidget* parent = nullptr,
                                    const char* name = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~SoNodescopePreferences() override;

public slots:
    /** Shows the page of a list entry. */
    void raiseWidget(QListWidgetItem* current, QListWidgetItem* previous);

private:
    void addPage(const PreferenceRecord& record);

    std::vector<std::unique_ptr<SenderObject>> m_senders; ///< by page; null where a page has no receiver
};

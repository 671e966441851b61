#pragma once

#include <nodescope/preferences/PreferenceRecord.h>

#include <QPointer>
#include <QWidget>
#include <array>
#include <functional>
#include <vector>

/** The preference pages of the 3D view and the panels, made when they are first asked for. */
class PanelPages {
public:
    /** @p apply is called when the store has new values. */
    explicit PanelPages(std::function<void()> apply) : m_apply(std::move(apply)) {}
    ~PanelPages();
    PanelPages(const PanelPages&) = delete;
    PanelPages& operator=(const PanelPages&) = delete;

    /** @param hasView  false for the pages of the panels only */
    std::vector<PreferenceRecord> records(bool hasView);

private:
    enum Page { ViewPage, TreePage, OverviewPage, WatchPage, PageCount };

    template <class Widget>
    PreferenceRecord record(Page page, const QString& name);

    std::function<void()> m_apply;
    std::array<QPointer<QWidget>, PageCount> m_pages;
};

#pragma once

#include <nodescope/preferences/PreferenceRecord.h>

#include <QPointer>
#include <QWidget>
#include <functional>
#include <vector>

/** The preference pages of the 3D view and of the tree, made when they are first asked for. */
class ViewerPages {
public:
    /** @p apply is called when the store has new values. */
    explicit ViewerPages(std::function<void()> apply) : m_apply(std::move(apply)) {}
    ~ViewerPages();
    ViewerPages(const ViewerPages&) = delete;
    ViewerPages& operator=(const ViewerPages&) = delete;

    /** @param hasView  false for the tree's page only */
    std::vector<PreferenceRecord> records(bool hasView);

private:
    template <class Page>
    PreferenceRecord record(QPointer<QWidget>& page, const QString& name);

    std::function<void()> m_apply;
    QPointer<QWidget> m_viewPage;
    QPointer<QWidget> m_treePage;
};

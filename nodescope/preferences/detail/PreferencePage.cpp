#include "PreferencePage.h"
#include <nodescope/preferences/SoPreferenceStore.h>

#include <QtGlobal>
#include <algorithm>

namespace {

constexpr QRgb Black = qRgb(0, 0, 0);
constexpr QRgb Red = qRgb(255, 0, 0);
constexpr QRgb Dark_green = qRgb(0, 128, 0);
constexpr QRgb Blue = qRgb(0, 0, 255);
constexpr int None = -1;

const std::vector<PreferenceElement> Value_elements{
    {QT_TRANSLATE_NOOP("PreferencePage", "Default Value"), nullptr, false, Black},
    {QT_TRANSLATE_NOOP("PreferencePage", "Changed Value"), nullptr, false, Red},
};

const std::vector<PreferencePage> Pages{
    {SoPreferenceStore::TreeViewGroup,
     true,
     {{QT_TRANSLATE_NOOP("PreferencePage", "Node Type"), nullptr, false, Black},
      {QT_TRANSLATE_NOOP("PreferencePage", "Node/Part Name"), nullptr, true, Dark_green},
      {QT_TRANSLATE_NOOP("PreferencePage", "Reference Count"), nullptr, false, Blue},
      {QT_TRANSLATE_NOOP("PreferencePage", "Node From Field"), "Times New Roman", false, Black}},
     {None, None, None, None, None}},
    {SoPreferenceStore::FieldWatchGroup, false, Value_elements, {0, 0, None, None, 0}},
    {SoPreferenceStore::NodeOverviewGroup, false, Value_elements, {20, 20, 0, 0, None}},
};

} // namespace

const PreferencePage* PreferencePage::find(const QString& group)
{
    const auto page =
        std::find_if(Pages.begin(), Pages.end(), [&](const auto& p) { return group == QLatin1String(p.group); });
    return page == Pages.end() ? nullptr : &*page;
}

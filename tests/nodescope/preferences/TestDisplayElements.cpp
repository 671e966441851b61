#include "PreferenceFixture.h"

#include <QApplication>

namespace {

const QString Watch = SoPreferenceStore::FieldWatchGroup;
const QString Tree = SoPreferenceStore::TreeViewGroup;

void expectSame(const DisplayElement& a, const DisplayElement& b, const char* what)
{
    EXPECT_EQ(a.font.family(), b.font.family()) << what;
    EXPECT_EQ(a.font.pointSize(), b.font.pointSize()) << what;
    EXPECT_EQ(a.font.weight(), b.font.weight()) << what;
    EXPECT_EQ(a.font.style(), b.font.style()) << what;
    EXPECT_EQ(a.font.underline(), b.font.underline()) << what;
    EXPECT_EQ(a.color, b.color) << what;
    EXPECT_EQ(a.isShown, b.isShown) << what;
}

DisplayElement applicationLook(const QColor& color, bool italic = false,
                               const QString& family = QApplication::font().family())
{
    const QFont application = QApplication::font();
    return {QFont(family, application.pointSize(), application.weight(), italic), color, true};
}

} // namespace

TEST_F(PreferenceTest, AnEmptyStoreYieldsTheDefaultLook)
{
    for (const char* group : {SoPreferenceStore::FieldWatchGroup, SoPreferenceStore::NodeOverviewGroup}) {
        const DisplayElementMap elements = store().loadElements(group);
        EXPECT_EQ(elements.keys(), (QStringList{"Changed Value", "Default Value"}));
        expectSame(elements["Default Value"], applicationLook(QColor(0, 0, 0)), group);
        expectSame(elements["Changed Value"], applicationLook(QColor(255, 0, 0)), group);
    }
    const DisplayElementMap tree = store().loadElements(Tree);
    EXPECT_EQ(tree.keys(), (QStringList{"Node From Field", "Node Type", "Node/Part Name", "Reference Count"}));
    expectSame(tree["Node Type"], applicationLook(QColor(0, 0, 0)), "type");
    expectSame(tree["Node/Part Name"], applicationLook(QColor(0, 128, 0), true), "name");
    expectSame(tree["Reference Count"], applicationLook(QColor(0, 0, 255)), "count");
    expectSame(tree["Node From Field"], applicationLook(QColor(0, 0, 0), false, "Times New Roman"), "field");
    EXPECT_TRUE(store().loadElements("/Elsewhere/").isEmpty());
}

TEST_F(PreferenceTest, DefaultsFollowTheApplicationFontOfTheMoment)
{
    const QFont before = QApplication::font();
    QApplication::setFont(QFont("DejaVu Sans Mono", 17, QFont::DemiBold));
    const DisplayElement element = store().defaultElements(Watch)["Changed Value"];
    QApplication::setFont(before);
    EXPECT_EQ(element.font.family(), "DejaVu Sans Mono");
    EXPECT_EQ(element.font.pointSize(), 17);
    EXPECT_EQ(element.font.weight(), int(QFont::DemiBold));
}

TEST_F(PreferenceTest, ElementsAreReadBackAsWritten)
{
    DisplayElementMap elements = store().defaultElements(Tree);
    DisplayElement& name = elements["Node/Part Name"];
    name.font = QFont("DejaVu Serif", 14, QFont::Bold, true);
    name.font.setUnderline(true);
    name.color = QColor(1, 22, 203);
    name.isShown = false;
    store().saveElements(Tree, elements);

    const DisplayElementMap loaded = store().loadElements(Tree);
    for (const QString& key : elements.keys())
        expectSame(loaded[key], elements[key], qPrintable(key));
    EXPECT_EQ(m_disk.value("/TreeViewPreferences/Node/Part Name/blue").toInt(), 203);
    EXPECT_EQ(m_disk.value("/TreeViewPreferences/Node/Part Name/show").toBool(), false);
}

TEST_F(PreferenceTest, OnlyTheTreeStoresTheShownFlag)
{
    DisplayElementMap elements = store().defaultElements(Watch);
    elements["Default Value"].isShown = false;
    store().saveElements(Watch, elements);
    EXPECT_FALSE(m_disk.contains("/FieldWatchPreferences/Default Value/show"));
    EXPECT_TRUE(store().loadElements(Watch)["Default Value"].isShown);
}

TEST_F(PreferenceTest, AnElementWithAMissingKeyKeepsItsDefaultEntirely)
{
    DisplayElementMap elements = store().defaultElements(Tree);
    for (DisplayElement& element : elements) {
        element.font = QFont("DejaVu Serif", 31);
        element.color = QColor(9, 8, 7);
    }
    store().saveElements(Tree, elements);
    for (const char* suffix : {"family", "size", "bold", "italic", "underline", "red", "green", "blue", "show"}) {
        const QString key = "/TreeViewPreferences/Node Type/" + QString(suffix);
        const QVariant value = m_disk.value(key);
        m_disk.remove(key);
        const DisplayElementMap loaded = store().loadElements(Tree);
        expectSame(loaded["Node Type"], applicationLook(QColor(0, 0, 0)), suffix);
        expectSame(loaded["Reference Count"], elements["Reference Count"], suffix);
        m_disk.setValue(key, value);
        expectSame(store().loadElements(Tree)["Node Type"], elements["Node Type"], suffix);
    }
}

TEST_F(PreferenceTest, WeightsAboveFiftySevenAreBold)
{
    for (const auto& [weight, isBold] : {std::pair{50, false}, {57, false}, {58, true}, {63, true}, {87, true}}) {
        DisplayElementMap elements = store().defaultElements(Watch);
        elements["Default Value"].font.setWeight(weight);
        store().saveElements(Watch, elements);
        EXPECT_EQ(m_disk.value("/FieldWatchPreferences/Default Value/bold").toBool(), isBold) << weight;
        EXPECT_EQ(store().loadElements(Watch)["Default Value"].font.weight(), isBold ? 75 : 50) << weight;
    }
}

TEST_F(PreferenceTest, ObliqueCountsAsItalic)
{
    DisplayElementMap elements = store().defaultElements(Watch);
    elements["Default Value"].font.setStyle(QFont::StyleOblique);
    store().saveElements(Watch, elements);
    EXPECT_EQ(store().loadElements(Watch)["Default Value"].font.style(), QFont::StyleItalic);
}

TEST_F(PreferenceTest, SpoiltNumbersGiveAUsableElement)
{
    store().saveElements(Watch, store().defaultElements(Watch));
    m_disk.setValue("/FieldWatchPreferences/Default Value/size", "large");
    m_disk.setValue("/FieldWatchPreferences/Default Value/red", 4000);
    m_disk.setValue("/FieldWatchPreferences/Default Value/green", -3);
    const DisplayElement element = store().loadElements(Watch)["Default Value"];
    EXPECT_EQ(element.font.pointSize(), 10);
    EXPECT_EQ(element.color, QColor(255, 0, 0));
}

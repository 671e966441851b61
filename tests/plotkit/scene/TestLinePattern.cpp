#include <plotkit/scene/LinePattern.h>

#include <gtest/gtest.h>

namespace {

struct Row {
    unsigned pattern;
    std::vector<double> dashes;
};

class LinePatterns : public testing::TestWithParam<Row> {};

TEST_P(LinePatterns, becomeDashes)
{
    EXPECT_EQ(GetParam().dashes, LinePattern::dashes(GetParam().pattern));
}

INSTANTIATE_TEST_SUITE_P(Bits, LinePatterns,
                         testing::Values(Row{0xffff, {}}, Row{0xff00, {8, 8}}, Row{0x00ff, {8, 8}},
                                         Row{0xaaaa, {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}},
                                         Row{0x0001, {1, 15}}, Row{0x8001, {2, 14}}, Row{0xf0ff, {12, 4}}));

} // namespace

#include <vexel/nodes/detail/MarkerBitmaps.h>

#include <cstdlib>

#include <vexel/nodes/SoMarkerSet.h>

namespace {

constexpr int NumMarkers = SoMarkerSet::NumSigns * SoMarkerSet::NumSizes;

/** Whether a sign that reaches from -r to r covers a pixel; y goes up. */
using Covers = bool (*)(int x, int y, int r);

/** A sign is given by a rule, or by drawings of 5, 7 and 9 rows. */
struct SignForm {
    SoMarkerSet::Sign sign;
    Covers covers;
    bool isOutline;
    std::array<const char*, SoMarkerSet::NumSizes> drawings;
};

bool isInCircle(int x, int y, int r)
{
    // A little wider than the radius, so that the small ones are no diamonds.
    return 100 * (x * x + y * y) <= (10 * r + 3) * (10 * r + 3);
}

bool isInSquare(int, int, int)
{
    return true;
}

bool isInDiamond(int x, int y, int r)
{
    return std::abs(x) + std::abs(y) <= r;
}

bool isInTriangle(int x, int y, int r)
{
    return std::abs(x) <= (r - y) / 2;
}

bool isInRhombus(int x, int y, int r)
{
    return 2 * std::abs(x) + std::abs(y) <= r;
}

bool isInHourglass(int x, int y, int)
{
    return std::abs(x) <= std::abs(y);
}

SignForm ruled(SoMarkerSet::Sign sign, Covers covers)
{
    return {sign, covers, false, {}};
}

SignForm outlined(SoMarkerSet::Sign sign, Covers covers)
{
    return {sign, covers, true, {}};
}

SignForm drawn(SoMarkerSet::Sign sign, const char* small, const char* middle, const char* large)
{
    return {sign, nullptr, false, {small, middle, large}};
}

// clang-format off
const SignForm Forms[] = {
    ruled(SoMarkerSet::CROSS, [](int x, int y, int) { return std::abs(x) == std::abs(y); }),
    ruled(SoMarkerSet::PLUS, [](int x, int y, int) { return x == 0 || y == 0; }),
    ruled(SoMarkerSet::MINUS, [](int, int y, int) { return y == 0; }),
    ruled(SoMarkerSet::SLASH, [](int x, int y, int) { return x == y; }),
    ruled(SoMarkerSet::BACKSLASH, [](int x, int y, int) { return x == -y; }),
    ruled(SoMarkerSet::BAR, [](int x, int, int) { return x == 0; }),
    ruled(SoMarkerSet::STAR, [](int x, int y, int) { return x == 0 || y == 0 || std::abs(x) == std::abs(y); }),
    ruled(SoMarkerSet::Y, [](int x, int y, int) { return y > 0 ? std::abs(x) == y : x == 0; }),
    drawn(SoMarkerSet::LIGHTNING,
          "..##."
          ".##.."
          "####."
          "..#.."
          ".#...",
          "...###."
          "..###.."
          ".###..."
          "######."
          "...##.."
          "..##..."
          ".#.....",
          "....####."
          "...####.."
          "..####..."
          ".#######."
          "....###.."
          "...###..."
          "..##....."
          ".##......"
          ".#......."),
    drawn(SoMarkerSet::WELL,
          "..#.."
          ".###."
          "##.##"
          ".###."
          "..#..",
          "...#..."
          "..###.."
          ".#.#.#."
          "#######"
          ".#.#.#."
          "..###.."
          "...#...",
          "....#...."
          "..#####.."
          ".#..#..#."
          ".#..#..#."
          "#########"
          ".#..#..#."
          ".#..#..#."
          "..#####.."
          "....#...."),
    outlined(SoMarkerSet::CIRCLE_LINE, isInCircle),
    outlined(SoMarkerSet::SQUARE_LINE, isInSquare),
    outlined(SoMarkerSet::DIAMOND_LINE, isInDiamond),
    outlined(SoMarkerSet::TRIANGLE_LINE, isInTriangle),
    outlined(SoMarkerSet::RHOMBUS_LINE, isInRhombus),
    outlined(SoMarkerSet::HOURGLASS_LINE, isInHourglass),
    drawn(SoMarkerSet::SATELLITE_LINE,
          "#...#"
          "#...#"
          "#####"
          "#...#"
          "#...#",
          "#.....#"
          "#.....#"
          "#..#..#"
          "#######"
          "#..#..#"
          "#.....#"
          "#.....#",
          "###...###"
          "#.#...#.#"
          "#.#.#.#.#"
          "#.#.#.#.#"
          "#########"
          "#.#.#.#.#"
          "#.#.#.#.#"
          "#.#...#.#"
          "###...###"),
    drawn(SoMarkerSet::PINE_TREE_LINE,
          "..#.."
          ".#.#."
          ".#.#."
          "#####"
          "..#..",
          "...#..."
          "..#.#.."
          ".##.##."
          "..#.#.."
          ".#...#."
          "#######"
          "...#...",
          "....#...."
          "...#.#..."
          "..##.##.."
          "...#.#..."
          "..#...#.."
          ".#.....#."
          "#########"
          "....#...."
          "....#...."),
    drawn(SoMarkerSet::CAUTION_LINE,
          "..#.."
          ".#.#."
          ".###."
          "#.#.#"
          "#####",
          "...#..."
          "..#.#.."
          "..###.."
          ".#.#.#."
          ".#...#."
          "#..#..#"
          "#######",
          "....#...."
          "...#.#..."
          "...#.#..."
          "..#.#.#.."
          "..#.#.#.."
          ".#..#..#."
          ".#.....#."
          "#...#...#"
          "#########"),
    drawn(SoMarkerSet::SHIP_LINE,
          "..#.."
          "..##."
          "#.#.#"
          "#...#"
          ".###.",
          "...#..."
          "...##.."
          "...#.#."
          "...###."
          "#######"
          ".#...#."
          "..###..",
          "....#...."
          "....##..."
          "....#.#.."
          "....####."
          "....#...."
          "#########"
          ".#.....#."
          "..#...#.."
          "...###..."),
    ruled(SoMarkerSet::CIRCLE_FILLED, isInCircle),
    ruled(SoMarkerSet::SQUARE_FILLED, isInSquare),
    ruled(SoMarkerSet::DIAMOND_FILLED, isInDiamond),
    ruled(SoMarkerSet::TRIANGLE_FILLED, isInTriangle),
    ruled(SoMarkerSet::RHOMBUS_FILLED, isInRhombus),
    ruled(SoMarkerSet::HOURGLASS_FILLED, isInHourglass),
    drawn(SoMarkerSet::SATELLITE_FILLED,
          "#...#"
          "#.#.#"
          "#####"
          "#.#.#"
          "#...#",
          "##...##"
          "##...##"
          "##.#.##"
          "#######"
          "##.#.##"
          "##...##"
          "##...##",
          "###...###"
          "###...###"
          "###.#.###"
          "###.#.###"
          "#########"
          "###.#.###"
          "###.#.###"
          "###...###"
          "###...###"),
    drawn(SoMarkerSet::PINE_TREE_FILLED,
          "..#.."
          ".###."
          ".###."
          "#####"
          "..#..",
          "...#..."
          "..###.."
          ".#####."
          "..###.."
          ".#####."
          "#######"
          "...#...",
          "....#...."
          "...###..."
          "..#####.."
          "...###..."
          "..#####.."
          ".#######."
          "#########"
          "....#...."
          "....#...."),
    drawn(SoMarkerSet::CAUTION_FILLED,
          "..#.."
          ".###."
          ".#.#."
          "##.##"
          "#####",
          "...#..."
          "..###.."
          "..#.#.."
          ".##.##."
          ".#####."
          "###.###"
          "#######",
          "....#...."
          "...###..."
          "...#.#..."
          "..##.##.."
          "..##.##.."
          ".###.###."
          ".#######."
          "####.####"
          "#########"),
    drawn(SoMarkerSet::SHIP_FILLED,
          "..#.."
          "..##."
          "..#.."
          "#####"
          ".###.",
          "...#..."
          "...##.."
          "...###."
          "...#..."
          "#######"
          ".#####."
          "..###..",
          "....#...."
          "....##..."
          "....###.."
          "....####."
          "....#...."
          "#########"
          ".#######."
          "..#####.."
          "...###..."),
};
// clang-format on

bool isCovered(const SignForm& form, int x, int y, int r)
{
    return std::abs(x) <= r && std::abs(y) <= r && form.covers(x, y, r);
}

bool isCoveredPixel(const SignForm& form, int column, int row, int size, const char* drawing)
{
    if (drawing)
        return drawing[row * size + column] == '#';
    const int r = size / 2;
    const int x = column - r;
    const int y = r - row;
    if (!form.isOutline || !isCovered(form, x, y, r))
        return isCovered(form, x, y, r);
    return !isCovered(form, x - 1, y, r) || !isCovered(form, x + 1, y, r) || !isCovered(form, x, y - 1, r) ||
           !isCovered(form, x, y + 1, r);
}

std::array<MarkerBitmap, NumMarkers> makeBitmaps()
{
    std::array<MarkerBitmap, NumMarkers> bitmaps;
    for (const SignForm& form : Forms) {
        for (int number = 0; number < SoMarkerSet::NumSizes; ++number) {
            MarkerBitmap& bitmap = bitmaps[SoMarkerSet::markerOf(form.sign, static_cast<SoMarkerSet::Size>(number))];
            bitmap.size = 5 + 2 * number;
            for (int row = 0; row < bitmap.size; ++row) {
                for (int column = 0; column < bitmap.size; ++column) {
                    if (isCoveredPixel(form, column, row, bitmap.size, form.drawings[number]))
                        bitmap.rows[row] = static_cast<std::uint16_t>(bitmap.rows[row] | 1u << column);
                }
            }
        }
    }
    return bitmaps;
}

} // namespace

const MarkerBitmap& markerBitmap(int marker)
{
    static const std::array<MarkerBitmap, NumMarkers> bitmaps = makeBitmaps();
    return bitmaps[static_cast<std::size_t>(marker >= 0 && marker < NumMarkers ? marker : 0)];
}

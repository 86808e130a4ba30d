// Points, sizes and rectangles, and rectangles as sets of points.

#include <Utilities/GeometryHash.h>
#include <Utilities/GeometryStreams.h>
#include <Utilities/IntRectangleSets.h>
#include <Utilities/UI/StackLayoutHelper.h>

#include <unordered_set>

namespace
{

using namespace Vek::Framework::Utilities;

constexpr int c_least = std::numeric_limits<int>::min();
constexpr int c_greatest = std::numeric_limits<int>::max();

static_assert(IntPoint(1, 2) + IntPoint(3, 4) == IntPoint(4, 6) && IntPoint(1, 2) - IntPoint(3, 5) == IntPoint(-2, -3));
static_assert(IntPoint(1, 2) != IntPoint(1, 3) && IntPoint::Zero() == IntPoint(0, 0));
static_assert(IntSize(3, 9).GetMax({ 5, 1 }) == IntSize(5, 9) && IntSize(7, -7) / 2 == IntSize(3, -3));
static_assert(IntSize(7, -7) * -2 == IntSize(-14, 14) && IntSize(3, 4).ToVector() == IntPoint(3, 4));
static_assert(IntRectangle::FromPointAndSize(10, 20, 30, 40) == IntRectangle::FromCornerPoints(10, 20, 40, 60));
static_assert(Intersect(IntRectangle::Empty(), IntRectangle::Empty()).HasValue() && IntSize::Empty() == IntSize());

TEST(IntGeometry, ArithmeticWrapsAround)
{
    EXPECT_EQ(IntPoint(c_greatest, c_least) + IntPoint(1, -1), IntPoint(c_least, c_greatest));
    EXPECT_EQ(IntPoint(c_least, 0) - IntPoint(1, c_least), IntPoint(c_greatest, c_least));
    EXPECT_EQ(IntSize(c_greatest, 0x10000) * 0x10000, IntSize(-0x10000, 0));
    EXPECT_EQ(IntSize(c_least, c_greatest) / -1, IntSize(c_least, -c_greatest));
    EXPECT_THROW(IntSize(1, 1) / 0, Vek::ArgumentException);
    IntRectangle const all = IntRectangle::FromCornerPoints(c_least, c_least, c_greatest, c_greatest);
    EXPECT_EQ(all.GetSize(), IntSize(-1, -1));
    EXPECT_EQ(all.GetCenter(), all.GetTopLeft());
    EXPECT_TRUE(all.Contains({ 0, c_greatest }));
    EXPECT_EQ(IntRectangle::FromCenterAndSize({ c_least, c_greatest }, { 4, c_least }),
              IntRectangle::FromCornerPoints(c_greatest - 1, -0x40000001, c_least + 2, 0x3FFFFFFF));
    EXPECT_EQ(Inflate(all, 1, -1), IntRectangle::FromCornerPoints(c_greatest, c_least + 1, c_least, c_greatest - 1));
}

TEST(IntRectangle, KeepsItsCornersAndTruncatesTowardZero)
{
    IntRectangle const odd = IntRectangle::FromCenterAndSize({ 10, 10 }, { 5, 5 });
    EXPECT_EQ(odd, IntRectangle::FromCornerPoints(8, 8, 13, 13)) << "the extra pixel is on the right";
    EXPECT_EQ(odd.GetCenter(), IntPoint(10, 10));
    IntRectangle const negative = IntRectangle::FromCenterAndSize({ -10, 0 }, { -5, 4 });
    EXPECT_EQ(negative, IntRectangle::FromCornerPoints(-8, -2, -13, 2)) << "halves of negative sizes are cut off too";
    IntRectangle const turned = IntRectangle::FromCornerPoints({ 10, 10 }, { 0, 1 });
    EXPECT_EQ(turned.GetSize(), IntSize(-10, -9)) << "nothing puts the corners in order";
    EXPECT_EQ(turned.GetCenter(), IntPoint(5, 6));
    EXPECT_EQ(turned.GetTopRight(), IntPoint(0, 10));
    EXPECT_EQ(turned.GetBottomLeft(), IntPoint(10, 1));
}

// Points from -2 to 3 each way, one bit each; rectangles with corners from -1 to 2 among them.
using Pixels = unsigned long long;
constexpr int c_first = -2;
constexpr int c_side = 6;

Pixels ToPixels(IntRectangle const& rectangle)
{
    Pixels pixels = 0;
    for (int y = 0; y < c_side; ++y)
        for (int x = 0; x < c_side; ++x)
            if (rectangle.Contains({ x + c_first, y + c_first }))
                pixels |= 1ULL << (y * c_side + x);
    return pixels;
}

/// The same, from the corners.
Pixels FillPixels(int left, int top, int right, int bottom)
{
    Pixels pixels = 0;
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x)
            pixels |= 1ULL << ((y - c_first) * c_side + x - c_first);
    return pixels;
}

/// The smallest rectangle around the set, its points by a search for the outermost ones.
Pixels FillAround(Pixels pixels)
{
    int left = c_side, top = c_side, right = -1, bottom = -1;
    for (int i = 0; i < c_side * c_side; ++i)
        if (pixels >> i & 1)
        {
            left = std::min(left, i % c_side);
            right = std::max(right, i % c_side);
            top = std::min(top, i / c_side);
            bottom = std::max(bottom, i / c_side);
        }
    return FillPixels(left + c_first, top + c_first, right + c_first, bottom + c_first);
}

TEST(IntRectangleSets, AgreeWithSetsOfPixels)
{
    std::vector<std::pair<IntRectangle, Pixels>> sets;
    for (int i = 0; i < 256; ++i)
    {
        auto const corners = IntRectangle::FromCornerPoints(i % 4 - 1, i / 4 % 4 - 1, i / 16 % 4 - 1, i / 64 - 1);
        sets.emplace_back(corners, ToPixels(corners));
    }
    for (auto const& [a, pixels] : sets)
    {
        int const left = a.GetLeftX(), top = a.GetTopY(), right = a.GetRightX(), bottom = a.GetBottomY();
        ASSERT_EQ(pixels, FillPixels(left, top, right, bottom));
        ASSERT_EQ(HasPoints(a), pixels != 0);
        ASSERT_EQ(ToPixels(Inflate(a, 1, -1)), FillPixels(left - 1, top + 1, right + 1, bottom - 1));
        ASSERT_EQ(ToPixels(Offset(a, { 1, -1 })), FillPixels(left + 1, top - 1, right + 1, bottom - 1));
        for (auto const& [b, others] : sets)
        {
            Nullable<IntRectangle> const shared = Intersect(a, b);
            ASSERT_EQ(shared.HasValue() ? ToPixels(shared.GetValue()) : 0, pixels & others) << a << " and " << b;
            ASSERT_EQ(ToPixels(Unite(a, b)), FillAround(pixels | others)) << a << " and " << b;
        }
    }
}

TEST(IntRectangleSets, CenterInKeepsTheSizeAndSharesTheSpace)
{
    for (int width = 0; width < 8; ++width)
        for (int space = 0; space < 8; ++space)
        {
            IntRectangle const area = IntRectangle::FromPointAndSize(-3, 5, width + space, 4);
            IntRectangle const placed = CenterIn(IntRectangle::FromPointAndSize(90, 90, width, 2), area);
            EXPECT_EQ(placed.GetSize(), IntSize(width, 2));
            EXPECT_EQ(placed.GetTopY(), 6);
            EXPECT_EQ(placed.GetLeftX() + 3, width % 2 == 0 ? space / 2 : (space + 1) / 2) << width << " in " << space;
        }
}

TEST(IntGeometry, StreamsAndHashes)
{
    IntRectangle const rectangle = IntRectangle::FromCornerPoints(10, -20, 2000, c_least);
    std::ostringstream narrow;
    std::wostringstream wide;
    narrow << rectangle.GetTopLeft() << ' ' << IntSize(3, -4) << ' ' << rectangle << ' ' << IntRange(3, 5);
    wide << rectangle.GetTopLeft() << IntSize(3, -4) << rectangle << IntRange(3, 5);
    EXPECT_EQ(narrow.str(), "(10, -20) 3 x -4 (10, -20)-(2000, -2147483648) 3-5");
    EXPECT_EQ(wide.str(), L"(10, -20)3 x -4(10, -20)-(2000, -2147483648)3-5");

    std::unordered_set<std::size_t> hashes;
    for (int i = 0; i < 40000; ++i)
    {
        hashes.insert(std::hash<IntPoint>()({ i % 200 - 100, i / 200 - 100 }));
        hashes.insert(std::hash<IntRectangle>()(IntRectangle::FromCornerPoints(i % 200 - 100, 0, 0, i / 200 - 100)));
    }
    EXPECT_EQ(hashes.size(), 80000U);
    EXPECT_NE(std::hash<IntSize>()({ 1, 2 }), std::hash<IntSize>()({ 2, 1 }));
}

TEST(StackLayoutHelper, EachRectangleIsBelowTheOneBefore)
{
    UI::StackLayoutHelper layout({ 10, 20 }, 100, 5);
    EXPECT_EQ(layout.GetNext(30), IntRectangle::FromCornerPoints(10, 20, 110, 50));
    EXPECT_EQ(layout.GetNext(30), IntRectangle::FromCornerPoints(10, 55, 110, 85));
    EXPECT_EQ(layout.GetNextY(), 90);
}

} // namespace

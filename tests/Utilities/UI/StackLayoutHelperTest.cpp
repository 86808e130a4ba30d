#include <Utilities/UI/StackLayoutHelper.h>

#include <gtest/gtest.h>

namespace Tests
{

namespace
{

using namespace Vek::Framework::Utilities;

TEST(StackLayoutHelper, EachRectangleIsBelowTheOneBefore)
{
    UI::StackLayoutHelper layout({ 10, 20 }, 100, 5);
    EXPECT_EQ(layout.GetNext(30), IntRectangle::FromCornerPoints(10, 20, 110, 50));
    EXPECT_EQ(layout.GetNext(30), IntRectangle::FromCornerPoints(10, 55, 110, 85));
    EXPECT_EQ(layout.GetNextY(), 90);
}

} // namespace

} // namespace Tests

#include <Utilities/SizedArray.h>

#include <new>

using Vek::Framework::Utilities::SizedArray;
using Bytes = SizedArray<unsigned char>;

TEST(SizedArray, ReportsALowerSizeButNoHigherOne)
{
    Bytes array(8);
    array.SetReportedSize(5);
    EXPECT_THROW(array.SetReportedSize(6), Vek::ArgumentException);
    EXPECT_EQ(array.GetSize(), 5U);
    array.SetReportedSize(5);
    array[7] = 1; // the block stays
    EXPECT_EQ(array.GetAt(7), 1);
}

TEST(SizedArray, CopiesWhatFits)
{
    Bytes source(10);
    std::memcpy(source.GetData(), "0123456789", 10);
    source.SetReportedSize(6);
    for (unsigned long long const size : { 0U, 4U, 6U, 9U })
    {
        Bytes const copy(size, source);
        EXPECT_EQ(copy.GetSize(), size);
        EXPECT_EQ(std::memcmp(copy.GetData(), "012345", std::min(size, 6ULL)), 0) << size;
    }
}

TEST(SizedArray, RefusesASizeWhoseBytesCannotBeCounted)
{
    auto const most = std::numeric_limits<unsigned long long>::max();
    EXPECT_THROW(Bytes{ most }, std::bad_alloc);
    EXPECT_THROW(SizedArray<wchar_t>{ most }, std::bad_alloc);
    EXPECT_THROW(SizedArray<wchar_t>{ most / sizeof(wchar_t) + 2 }, std::bad_alloc) << "a few bytes if it wrapped";
}

#include <Utilities/MemoryInputStream.h>
#include <Utilities/SizedArray.h>

using Vek::Framework::Utilities::DataBuffer;
using Vek::Framework::Utilities::MemoryInputStream;

namespace
{

constexpr long long c_most = std::numeric_limits<long long>::max();
constexpr long long c_least = std::numeric_limits<long long>::min();

std::string ReadRest(std::istream& stream)
{
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

} // namespace

TEST(MemoryInputStream, SeeksToTheNearestEnd)
{
    // From 5 on, in 10 bytes.
    Rows<long long, std::ios_base::seekdir, long long> const rows = {
        { 20, std::ios_base::beg, 10 },     { -1, std::ios_base::beg, 0 },
        { -3, std::ios_base::end, 7 },      { -2, std::ios_base::cur, 3 },
        { c_most, std::ios_base::cur, 10 }, { c_least, std::ios_base::cur, 0 }, // sums that would overflow
        { c_most, std::ios_base::end, 10 }, { c_least, std::ios_base::end, 0 },
    };
    for (auto const& [offset, way, position] : rows)
    {
        SCOPED_TRACE(offset);
        MemoryInputStream stream("0123456789", 10);
        EXPECT_EQ(stream.seekg(5).tellg(), 5);
        EXPECT_EQ(stream.seekg(offset, way).tellg(), position);
        EXPECT_EQ(ReadRest(stream), std::string("0123456789").substr(static_cast<std::size_t>(position)));
    }
    MemoryInputStream stream("0123456789", 10);
    EXPECT_EQ(stream.seekg(20).tellg(), 10);
    EXPECT_EQ(stream.seekg(std::streampos(-1)).tellg(), 0);
}

TEST(MemoryInputStream, MovesAtMost32BitsAtOnceInALargeBlock)
{
    unsigned long long const size = 3ULL << 30U;
    Vek::Framework::Utilities::SizedArray<unsigned char> const block(size); // never touched, so it costs no memory
    MemoryInputStream stream(block.GetData(), size);
    EXPECT_EQ(stream.seekg(0, std::ios_base::end).tellg(), 0x7FFFFFFF);
    EXPECT_EQ(stream.seekg(0, std::ios_base::end).tellg(), static_cast<long long>(size));
    EXPECT_EQ(stream.seekg(0).tellg(), 0x40000000);
}

TEST(MemoryInputStream, ReadsAsAnyStreamDoes)
{
    char const text[] = "12 \xE4\n\xFF\0z";
    MemoryInputStream stream(text, sizeof(text) - 1);
    int number = 0;
    std::string word;
    EXPECT_TRUE(stream >> number >> word && number == 12 && word == "\xE4");
    EXPECT_EQ(stream.get(), '\n');
    EXPECT_EQ(stream.get(), 0xFF) << "a byte, not the end";
    EXPECT_EQ(ReadRest(stream), std::string("\0z", 2));
    MemoryInputStream empty(nullptr, 0);
    EXPECT_EQ(empty.get(), std::char_traits<char>::eof());
    EXPECT_TRUE(empty.eof());
}

TEST(MemoryInputStream, GoesOnAfterAMove)
{
    MemoryInputStream first("0123", 4);
    first.get();
    first.setstate(std::ios_base::eofbit);
    MemoryInputStream second(std::move(first));
    EXPECT_TRUE(second.eof());
    EXPECT_EQ(second.gcount(), 1);
    second.clear();
    EXPECT_EQ(second.get(), '1');

    MemoryInputStream third("x", 1);
    third.setstate(std::ios_base::failbit);
    third = std::move(second);
    EXPECT_TRUE(third.good());
    EXPECT_EQ(third.tellg(), 2);
    EXPECT_EQ(ReadRest(third), "23");
    EXPECT_EQ(third.rdbuf(), static_cast<std::streambuf*>(&third));
}

TEST(DataBuffer, CopiesReadTheSameBlockIndependently)
{
    DataBuffer buffer("0123", 4);
    buffer.sbumpc();
    DataBuffer copy(buffer);
    EXPECT_EQ(copy.sbumpc(), '1');
    EXPECT_EQ(copy.pubseekoff(0, std::ios_base::end), 4);
    EXPECT_EQ(buffer.sgetc(), '1');
    buffer = copy;
    EXPECT_EQ(buffer.sgetc(), std::char_traits<char>::eof());
    EXPECT_THROW(DataBuffer(nullptr, 1), Vek::NullPointerException);
    EXPECT_THROW(DataBuffer("", 1ULL << 63U), Vek::ArgumentException);
}

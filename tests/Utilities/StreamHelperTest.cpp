#include "BreakingBuffer.h"

#include <Utilities/StreamHelper.h>
#include <Utilities/WStringHelper.h>

using namespace Vek::Framework::Utilities;

namespace
{

constexpr std::size_t c_pieceSize = 1024 * 1024;

std::string MakeBytes(std::size_t size)
{
    std::mt19937 random(7);
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

std::string ReadAll(std::istream& stream)
{
    auto const array = StreamHelper::ReadAllBytes(stream);
    return std::string(reinterpret_cast<char const*>(array->GetData()), array->GetSize());
}

std::wstring ReadWide(std::istream& stream)
{
    auto const array = StreamHelper::ReadUTF16FromCurrentCodePage(stream);
    return std::wstring(array->GetData(), array->GetSize());
}

} // namespace

TEST(StreamHelper, ReadsTheRestWhateverItsSize)
{
    for (std::size_t const size : { std::size_t(0), std::size_t(1), c_pieceSize - 1, c_pieceSize, c_pieceSize + 1,
                                    2 * c_pieceSize, 3 * c_pieceSize + 5 })
    {
        SCOPED_TRACE(size);
        std::string const bytes = MakeBytes(size);
        std::istringstream stream("x" + bytes);
        stream.get();
        EXPECT_TRUE(ReadAll(stream) == bytes);
        EXPECT_TRUE(stream.eof());

        stream.clear();
        stream.seekg(1);
        EXPECT_TRUE(ReadWide(stream) == WStringHelper::GetWStringFromCurrentCodepage(bytes));
        EXPECT_TRUE(stream.eof());
        EXPECT_EQ(ReadAll(stream), "") << "no longer good";
    }
}

TEST(StreamHelper, GivesWhatCameBeforeAFailure)
{
    std::string const bytes = MakeBytes(c_pieceSize + 3);
    BreakingBuffer buffer(bytes);
    std::istream stream(&buffer);
    EXPECT_TRUE(ReadAll(stream) == bytes.substr(0, c_pieceSize));
    EXPECT_TRUE(stream.bad());

    BreakingBuffer throwing("abc");
    std::istream loud(&throwing);
    loud.exceptions(std::ios_base::badbit);
    EXPECT_THROW(StreamHelper::ReadAllBytes(loud), std::runtime_error);
}

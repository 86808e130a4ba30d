#include "BitByBit.h"
#include "UnitText.h"

#include <Utilities/HashBuilder.h>
#include <Utilities/HexConverter.h>
#include <Utilities/WStringHelper.h>

#include <cctype>

using namespace Vek::Framework::Utilities;

namespace
{

// FNV-1a as its authors write it, byte by byte.
unsigned long long HashBytes(std::wstring const& text)
{
    unsigned long long hash = 0xCBF29CE484222325;
    for (wchar_t const unit : text)
        for (int const shift : { 0, 8 })
            hash = (hash ^ ((static_cast<unsigned>(unit) >> shift) & 0xFFU)) * 0x100000001B3;
    return hash;
}

} // namespace

TEST(HashBuilder, StoredHashesStay)
{
    HashBuilder builder;
    EXPECT_EQ(0U, builder);
    EXPECT_EQ(0x9E3779B9U, builder.Add(0).GetResult());
    EXPECT_EQ(builder, HashBuilder().Add(0U)) << "a literal is the number";
    unsigned long long const once = builder;
    EXPECT_EQ(once ^ (7 + 0x9E3779B9ULL + (once << 6) + (once >> 2)), builder.Add(7));
    unsigned long long const twice = builder;
    builder.Add(1).Add(2);
    EXPECT_EQ(twice ^ (1 + 0x9E3779B9ULL + (twice << 6) + (twice >> 2)), builder) << "the second one went to the copy";

    for (std::wstring const& text :
         { std::wstring(), std::wstring(L"Konto"), MakeText({ 0xC4, 0x20AC, 0xD83D, 0xDE00, 0 }) })
        EXPECT_EQ(HashBuilder().Add(HashBytes(text)), HashBuilder().Add(text));
    EXPECT_EQ(HashBuilder().Add(0xCBF29CE484222325), HashBuilder().Add(std::wstring()));
}

TEST(HexConverter, BytesThereAndBack)
{
    std::mt19937 random(20240229);
    for (unsigned size = 0; size <= 1000; size += size < 100 ? 1 : 300)
    {
        Bytes const bytes = MakeBytes(size, random);
        std::wstring text = EncodeBitByBit(bytes, 4, c_hexSymbols);
        ASSERT_EQ(text, WStringHelper::GetHex(bytes.data(), size));
        text.replace(0, size, WStringHelper::ToLowerCase(text.substr(0, size)));
        std::unique_ptr<SizedArray<unsigned char>> read;
        unsigned long long errorPosition = 0;
        ASSERT_FALSE(HexConverter::TryReadBytes(text + L'0', read, errorPosition));
        ASSERT_EQ(text.size() + 1, errorPosition);
        ASSERT_TRUE(read == nullptr && HexConverter::TryReadBytes(text, read, errorPosition));
        ASSERT_EQ(size, read->GetSize());
        for (unsigned at = 0; at < size; ++at)
            ASSERT_TRUE(read->GetAt(at) == bytes[at] && HexConverter::ReadByte(text, at) == bytes[at]) << at;
    }
    for (unsigned long long const index : { 2ULL, 3ULL, 0x8000000000000000ULL, ~0ULL })
        EXPECT_THROW(HexConverter::ReadByte(L"0aFfx", index), std::out_of_range);
    EXPECT_THROW(HexConverter::ReadByte(MakeText({ '0', 0xFFFFFFF0 }), 0), Vek::ArgumentException)
        << "a sum that wraps";
}

TEST(HexConverter, FindsWhatIsNoDigit)
{
    for (unsigned unit = 0; unit < (c_hasWideElements ? 0x10100 : 0x10000); ++unit)
    {
        if (unit < 0x80 && std::isxdigit(static_cast<int>(unit)))
            continue;
        ASSERT_THROW(HexConverter::ReadByte(MakeText({ '0', unit }), 0), Vek::ArgumentException) << unit;
        ASSERT_THROW(HexConverter::ReadByte(MakeText({ unit, '0' }), 0), Vek::ArgumentException) << unit;
        std::wstring broken(99 + unit % 2, L'f');
        std::size_t const place = unit * 3 % broken.size();
        broken[place] = static_cast<wchar_t>(unit);
        std::unique_ptr<SizedArray<unsigned char>> bytes;
        unsigned long long errorPosition = 0;
        ASSERT_FALSE(HexConverter::TryReadBytes(broken, bytes, errorPosition)) << unit;
        ASSERT_EQ(place, errorPosition) << unit;
    }
}

#include "UnitText.h"

#include <Utilities/HashBuilder.h>
#include <Utilities/HexConverter.h>
#include <Utilities/WStringHelper.h>

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

TEST(HexConverter, ReadsWhatWStringHelperWrites)
{
    std::wstring text;
    for (unsigned value = 0; value < 256; ++value)
    {
        unsigned char const byte = static_cast<unsigned char>(value);
        WStringHelper::AppendHex(&byte, 1, text);
        ASSERT_EQ(byte, HexConverter::ReadByte(text, value));
        ASSERT_EQ(byte, HexConverter::ReadByte(WStringHelper::ToLowerCase(text), value));
    }
    std::vector<unsigned char> bytes(1500);
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<unsigned char>(at * 7 + at / 256);
    for (unsigned const size : { 0U, 1U, 15U, 16U, 17U, 47U, 512U, 513U, 1500U })
    {
        std::wstring byteByByte = L"x";
        for (unsigned at = 0; at < size; ++at)
            WStringHelper::AppendHex(&bytes[at], 1, byteByByte);
        ASSERT_EQ(byteByByte, L"x" + WStringHelper::GetHex(bytes.data(), size)) << size;
    }
    EXPECT_EQ(0xFF, HexConverter::ReadByte(L"0aFf", 1));
    for (unsigned long long const index : { 2ULL, 3ULL, 0x8000000000000000ULL, ~0ULL })
        EXPECT_THROW(HexConverter::ReadByte(L"0aFfx", index), std::out_of_range);
    for (unsigned const unit : { 0x67U, 0x2FU, 0x3AU, 0x40U, 0x47U, 0x60U, 0x00U, 0xFFU, 0x130U, 0xFF10U, 0xFFFFFFF0U })
    {
        EXPECT_THROW(HexConverter::ReadByte(MakeText({ '0', unit }), 0), Vek::ArgumentException) << unit;
        EXPECT_THROW(HexConverter::ReadByte(MakeText({ unit, '0' }), 0), Vek::ArgumentException) << unit;
    }
}

TEST(HexConverter, WholeTextsAsByteByByteWithThePlaceOfTheFault)
{
    std::wstring text;
    for (unsigned at = 0; at < 100; ++at)
        text += L"0123456789abcdefABCDEF"[at * 7 % 22];
    for (std::size_t size = 0; size <= text.size(); ++size)
    {
        std::unique_ptr<SizedArray<unsigned char>> bytes;
        unsigned long long errorPosition = 0;
        bool const isWhole = size % 2 == 0;
        ASSERT_EQ(isWhole, HexConverter::TryReadBytes(std::wstring_view(text).substr(0, size), bytes, errorPosition));
        ASSERT_EQ(isWhole ? 0 : size, errorPosition);
        ASSERT_EQ(isWhole, bytes != nullptr);
        ASSERT_TRUE(!isWhole || bytes->GetSize() == size / 2);
        for (std::size_t at = 0; isWhole && at < size / 2; ++at)
            ASSERT_EQ(HexConverter::ReadByte(text, at), bytes->GetAt(at)) << size;
    }
    std::vector<unsigned> others = { 0x130, 0xFF10, 0x8030, 0xFFFF };
    for (unsigned unit = 0; unit < 0x100; ++unit)
        if (std::wstring(L"0123456789abcdefABCDEF").find(static_cast<wchar_t>(unit)) == std::wstring::npos)
            others.push_back(unit);
    for (std::size_t at = 0; at < others.size(); ++at)
        for (std::size_t const size : { 99U, 100U })
        {
            std::size_t const place = at * 3 % size;
            std::wstring broken = text.substr(0, size);
            broken[place] = static_cast<wchar_t>(others[at]);
            std::unique_ptr<SizedArray<unsigned char>> bytes;
            unsigned long long errorPosition = 0;
            ASSERT_FALSE(HexConverter::TryReadBytes(broken, bytes, errorPosition)) << others[at];
            ASSERT_EQ(place, errorPosition) << others[at];
        }
}

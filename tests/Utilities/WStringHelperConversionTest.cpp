#include "UnitText.h"

#include <Utilities/WStringHelper.h>

using Vek::Framework::Utilities::WStringHelper;

namespace
{

constexpr unsigned c_lastCharacter = 0x10FFFF;

bool IsSurrogate(unsigned value)
{
    return value >= 0xD800 && value <= 0xDFFF;
}

void AppendUtf16(std::wstring& text, unsigned character)
{
    if (character > 0xFFFF)
        text += MakeText({ 0xD800 + ((character - 0x10000) >> 10), 0xDC00 + (character & 0x3FF) });
    else
        text += MakeText({ character });
}

struct Decoded
{
    std::wstring text;
    std::size_t size = 0; // of the bytes in front of the first malformed sequence
};

/// Well-formed is what the encoding of some character gives, nothing else.
Decoded DecodeNaively(std::string const& text)
{
    Decoded result;
    for (std::size_t& at = result.size; at < text.size();)
    {
        auto const lead = static_cast<unsigned char>(text[at]);
        std::size_t const size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        unsigned character = size == 1 ? lead : lead & (0xFFU >> (size + 1));
        for (std::size_t trail = 1; trail < size && at + trail < text.size(); ++trail)
            character = character << 6 | (static_cast<unsigned char>(text[at + trail]) & 0x3FU);
        std::string encoded;
        AppendUtf8(encoded, character);
        if (IsSurrogate(character) || character > c_lastCharacter || encoded != text.substr(at, size))
            break;
        AppendUtf16(result.text, character);
        at += size;
    }
    return result;
}

bool IsEncodable(std::wstring const& text)
{
    std::string const message = MessageOf<std::range_error>([&] { WStringHelper::GetUTF8FromUTF16(text); });
    EXPECT_TRUE(message == "bad conversion" || message == "nothing thrown") << message;
    return message == "nothing thrown";
}

} // namespace

TEST(WStringHelperConversion, EveryCharacterThroughUtf8AndBack)
{
    std::string utf8;
    std::wstring utf16;
    for (unsigned character = 0; character <= c_lastCharacter; ++character)
    {
        if (IsSurrogate(character))
            continue;
        AppendUtf8(utf8, character);
        AppendUtf16(utf16, character);
        if (character % 5 == 0) // ASCII runs of changing length between the others
            utf8.append(character % 37, 'x'), utf16.append(character % 37, L'x');
    }
    EXPECT_TRUE(WStringHelper::GetUTF16FromUTF8(utf8) == utf16);
    EXPECT_TRUE(WStringHelper::GetUTF8FromUTF16(utf16) == utf8);
}

TEST(WStringHelperConversion, Utf8OfEveryMixtureInABlock)
{
    unsigned const others[] = { 0x80, 0x7FF, 0x800, 0x1F600 };
    for (unsigned mask = 0; mask < 0x10000; ++mask)
    {
        std::wstring units(mask % 3, L'x');
        std::string expected(mask % 3, 'x');
        for (unsigned unit = 0; unit < 16; ++unit)
        {
            // Above 0x7FF only now and then: most blocks have one or two bytes a unit.
            unsigned const other = others[unit % (mask % 7 == 0 ? 4 : 2)];
            unsigned const character = (mask >> unit & 1) != 0 ? other : 'a' + unit;
            AppendUtf16(units, character);
            AppendUtf8(expected, character);
        }
        ASSERT_EQ(expected, WStringHelper::GetUTF8FromUTF16(units)) << mask;
        ASSERT_EQ(units, WStringHelper::GetUTF16FromUTF8(expected)) << mask;
    }
}

TEST(WStringHelperConversion, ConvertedTextKeepsLittleMemoryToSpare)
{
    std::wstring const signs(1500, static_cast<wchar_t>(0x20AC));
    std::wstring const text = signs + std::wstring(100'000, L'x');
    std::string const bytes = WStringHelper::GetUTF8FromUTF16(text); // begins with three bytes a unit
    EXPECT_LT(bytes.capacity(), bytes.size() + bytes.size() / 3);
    std::wstring const units = WStringHelper::GetUTF16FromUTF8(WStringHelper::GetUTF8FromUTF16(signs));
    EXPECT_EQ(signs, units);
    EXPECT_LT(units.capacity(), units.size() + units.size() / 2);
}

TEST(WStringHelperConversion, Utf8DecoderAgreesWithThePlainRuleOnEdgeBytes)
{
    unsigned char const edges[] = { 0x41, 0x7F, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC1,
                                    0xC2, 0xDF, 0xE0, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF };
    std::size_t const count = std::size(edges);
    for (std::size_t index = 0; index < count * count * count * count; ++index)
    {
        std::string text(index % 17, 'x'); // every place in a block
        for (std::size_t left = index, length = 0; length < 4; ++length, left /= count)
            text.push_back(static_cast<char>(edges[left % count]));
        text.append(index % 3 * 10, 'y'); // cut short by the end or by more text
        Decoded const expected = DecodeNaively(text);
        bool const isWellFormed = expected.size == text.size();
        std::wstring const before = L"before";
        std::wstring result = before;
        unsigned long long errorPosition = text.size();
        ASSERT_EQ(isWellFormed, WStringHelper::TryGetUTF16FromUTF8(text, result, errorPosition));
        ASSERT_EQ(expected.size, errorPosition) << ::testing::PrintToString(text);
        ASSERT_TRUE(result == (isWellFormed ? expected.text : before)) << ::testing::PrintToString(text);
    }
}

TEST(WStringHelperConversion, Utf16RefusesExactlyTheLoneSurrogates)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    {
        std::wstring const text(unit % 17, L'x');
        bool const isHigh = unit >= 0xD800 && unit <= 0xDBFF;
        ASSERT_EQ(!IsSurrogate(unit), IsEncodable(text + MakeText({ unit }))) << unit;
        ASSERT_EQ(!IsSurrogate(unit), IsEncodable(text + MakeText({ unit, 'x' }) + std::wstring(20, L'x'))) << unit;
        ASSERT_EQ(isHigh, IsEncodable(MakeText({ unit, 0xDFFF }) + text)) << unit;
    }
    if (c_hasWideElements)
    {
        EXPECT_FALSE(IsEncodable(MakeText({ 0x10000 })));
        EXPECT_FALSE(IsEncodable(MakeText({ 0xFFFFFFC4 })));
    }
}

TEST(WStringHelperConversion, ByteOrderMarkGoesOnce)
{
    std::wstring units = MakeText({ 0xFEFF, 0xFEFF, 'a' });
    std::string bytes = WStringHelper::GetUTF8FromUTF16(units);
    EXPECT_TRUE(WStringHelper::RemoveByteOrderMark(units) && WStringHelper::RemoveByteOrderMark(bytes));
    EXPECT_EQ(MakeText({ 0xFEFF, 'a' }), units);
    EXPECT_EQ("\xEF\xBB\xBF"
              "a",
              bytes);
    units = L"a";
    bytes = "\xEF\xBB";
    EXPECT_FALSE(WStringHelper::RemoveByteOrderMark(units) || WStringHelper::RemoveByteOrderMark(bytes));
    EXPECT_EQ(L"a", units);
    EXPECT_EQ("\xEF\xBB", bytes);
}

TEST(WStringHelperConversion, CodePageAnswersAQuestionMarkForWhatItCannotHold)
{
    Rows<std::wstring, char const*, char const*> const rows = {
        { MakeText({ 0x80 }), "?", "the C1 code of a byte that has a character" },
        { MakeText({ 0x0391 }), "?", "Greek" },
        { MakeText({ 0x4E2D }), "?", "above the low byte" },
        { MakeText({ 0xD83D, 0xDE00 }), "??", "a pair is two units" },
        { MakeText({ 0xDC00 }), "?", "a lone surrogate" },
        { MakeText({ 'x', c_hasWideElements ? 0x10041U : 0x4E2DU }), "x?", "no unit at all" },
    };
    for (auto const& [units, marks, why] : rows)
    {
        SCOPED_TRACE(why);
        std::wstring const text = std::wstring(16, L'?') + units + std::wstring(16, L'y');
        std::string const expected = std::string(16, '?') + marks + std::string(16, 'y');
        EXPECT_EQ(marks, WStringHelper::GetCurrentCodepageString(units));
        EXPECT_EQ(expected, WStringHelper::GetCurrentCodepageString(text));
        EXPECT_EQ(expected, WStringHelper::GetWindows1252FromUTF16(text));
        std::string bytes = "before";
        unsigned long long errorPosition = 0;
        EXPECT_FALSE(WStringHelper::TryGetWindows1252FromUTF16(text, bytes, errorPosition));
        EXPECT_EQ(expected.find('?', 16), errorPosition);
        EXPECT_EQ("before", bytes);
    }
}

TEST(WStringHelperConversion, AsciiOnlyKeepsItsTwoOddities)
{
    for (unsigned byte = 0; byte < 0x100; ++byte)
        EXPECT_EQ(MakeText({ byte == 0x7F  ? '~'
                             : byte < 0x80 ? byte
                                           : 0xFF00 + byte }),
                  WStringHelper::GetWStringFromAsciiOnly(std::string(1, static_cast<char>(byte))));
}

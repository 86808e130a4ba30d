#include <Utilities/Internal/ResizeAndOverwrite.h>
#include <Utilities/StringHelper.h>

using Vek::Framework::Utilities::StringHelper;
using namespace std::string_literals;

namespace
{

/// All texts over two letters up to the given length.
std::vector<std::string> MakeTexts(std::size_t longest)
{
    std::vector<std::string> texts{ "" };
    for (std::size_t at = 0; texts[at].size() < longest; ++at)
        for (char const letter : { 'a', 'b' })
            texts.push_back(texts[at] + letter);
    return texts;
}

/// The rule as it is stated. False when it has not ended after a while.
bool ReplaceNaively(std::string& text, std::string const& from, std::string const& to)
{
    for (int step = 0; step < 300; ++step)
    {
        std::size_t const at = text.find(from);
        if (at == std::string::npos)
            return true;
        text.replace(at, from.size(), to);
    }
    return false;
}

} // namespace

TEST(StringHelper, ToLowerKnowsTheLettersOfTheCodePage)
{
    for (int c = -300; c <= 300; ++c)
    {
        bool const isLetter = (c >= 65 && c <= 90) || (c >= 192 && c <= 214) || (c >= 216 && c <= 222);
        int const expected = isLetter ? c + 32 : c == 138 ? 154 : c == 142 ? 158 : c == 159 ? 255 : c;
        EXPECT_EQ(expected, StringHelper::ToLower(c));
    }
    EXPECT_EQ('Z', StringHelper::ToUpper('z'));
    EXPECT_EQ(-28, StringHelper::ToUpper(-28));
    EXPECT_EQ(1 << 30, StringHelper::ToUpper(1 << 30));
}

TEST(StringHelper, ComparisonsFoldAsciiOnlyAndReadBytesAsSigned)
{
    Rows<std::string, std::string, int, char const*> const rows = {
        { "ABC", "abc", 0, "ASCII letters" },
        { "b", "A", 1, "the difference of the folded bytes" },
        { "ab", "abc", -1, "the shorter one is less" },
        { "abc", "AB", 1, "the longer one is greater" },
        { "\304", "\344", -32, "umlauts are not folded" },
        { "b", "\344", 'b' + 28, "bytes from 0x80 are negative" },
        { "a\0x"s, "A\0Y"s, -1, "a zero byte does not end the text" },
        { "[", "{", -32, "no letters" },
        { "@BCDEFGHIJKLMNOPQRST", "`bcdefghijklmnopqrst", -32, "nor these, in a whole block" },
    };
    for (auto const& [a, b, expected, why] : rows)
    {
        SCOPED_TRACE(why);
        EXPECT_EQ(expected, StringHelper::CompareIgnoreCase(a, b));
        EXPECT_EQ(expected == 0, StringHelper::EqualsIgnoreCase(a, b));
        EXPECT_EQ(expected == 0, StringHelper::EndsWithIgnoreCase("x" + a, b));
        EXPECT_EQ(expected == 0, StringHelper::StartsWithIgnoreCase(a + "x", b + "X"));
    }
    std::string text = "A\304z";
    StringHelper::MakeLowerCase(text);
    EXPECT_EQ("a\304z", text);
    StringHelper::MakeUpperCase(text);
    EXPECT_EQ("A\304Z", text);
}

TEST(StringHelper, SearchAgreesWithThePlainRule)
{
    for (std::string const& text : MakeTexts(7))
        for (std::string const& part : MakeTexts(4))
        {
            std::string upper = part;
            StringHelper::MakeUpperCase(upper);
            bool const isFound = text.find(part) != std::string::npos;
            ASSERT_EQ(isFound, StringHelper::Contains(text, part)) << text << '|' << part;
            ASSERT_EQ(isFound && !text.empty(), StringHelper::ContainsIgnoreCase(text, upper)) << text << '|' << part;
            ASSERT_EQ(text.starts_with(part), StringHelper::StartsWith(text, part));
            ASSERT_EQ(text.ends_with(part), StringHelper::EndsWith(text, part));
        }
}

TEST(StringHelper, ReplaceAllGivesWhatSearchingFromTheBeginningGives)
{
    std::vector<std::string> const texts = MakeTexts(7);
    for (std::string const& from : MakeTexts(3))
        for (std::string const& to : MakeTexts(4))
            for (std::string const& text : texts)
            {
                std::string expected = text;
                if (to.find(from) != std::string::npos || !ReplaceNaively(expected, from, to))
                    continue;
                std::string result = text;
                StringHelper::ReplaceAll(result, from, to);
                ASSERT_EQ(expected, result) << text << ": " << from << " by " << to;
            }
}

TEST(StringHelper, ReplaceAllEndsWhateverTheArguments)
{
    std::string chain(1000000, 'a');
    chain += 'b';
    StringHelper::ReplaceAll(chain, "ab", "b");
    EXPECT_EQ("b", chain);

    std::string text = "aab";
    StringHelper::ReplaceAll(text, "", "x");
    StringHelper::ReplaceAll(text, "x", "xx");
    EXPECT_EQ("aab", text);
    EXPECT_THROW(StringHelper::ReplaceAll(text, "a", "a"), Vek::ArgumentException);
    EXPECT_THROW(StringHelper::ReplaceAll(text, "a", "bab"), Vek::ArgumentException);
    EXPECT_THROW(StringHelper::ReplaceAll(text, "ab", std::string(1000, 'b') + "aa"), Vek::ArgumentException);
    EXPECT_EQ("aab", text);
}

TEST(StringHelper, WhitespaceAndIntegers)
{
    std::string text;
    for (unsigned byte = 0; byte < 256; ++byte)
        text.push_back(static_cast<char>(byte));
    std::string const expected = text.substr(0, 9) + text.substr(14, 18) + text.substr(33);
    StringHelper::RemoveAllWhitespaces(text);
    EXPECT_EQ(expected, text);

    EXPECT_TRUE(StringHelper::IsInteger("", false) && StringHelper::IsInteger("0123456789", false));
    for (char const* const other : { "-1", "1/", ":" })
        EXPECT_FALSE(StringHelper::IsInteger(other, true)) << other;
}

// Compiled as C++20 here: what the library does where the standard library is older.
TEST(StringHelper, GrowingKeepsWhatWasThereAndWhatWasWritten)
{
    auto const fill = [](char* units, std::size_t size)
    {
        std::fill(units + 4, units + size, 'x');
        return size - 30;
    };
    std::string text = "kept";
    Vek::Framework::Utilities::ResizeAndOverwrite(text, 40, fill);
    EXPECT_EQ("keptxxxxxx", text);
}

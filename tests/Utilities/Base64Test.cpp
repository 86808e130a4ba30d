#include "UnitText.h"

#include <Exceptions/ArgumentException.h>
#include <Utilities/Base64.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>
#include <vector>

using namespace Vek::Framework::Utilities;

namespace
{

std::string Decoded(std::wstring const& text)
{
    auto const bytes = Base64::Decode(text);
    return std::string(bytes->GetData(), bytes->GetData() + bytes->GetSize());
}

std::string MessageOf(std::wstring const& text)
{
    try
    {
        Base64::Decode(text);
    }
    catch (std::invalid_argument const& e)
    {
        return e.what();
    }
    return "none";
}

// Six bits at a time, as the standard says it.
std::wstring EncodeBitByBit(std::vector<unsigned char> const& bytes)
{
    std::string const symbols = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::wstring text;
    for (std::size_t bit = 0; bit < bytes.size() * 8; bit += 6)
    {
        unsigned value = 0;
        for (std::size_t i = bit; i < bit + 6; ++i)
            value = value << 1 | (i < bytes.size() * 8 ? bytes[i / 8] >> (7 - i % 8) & 1U : 0U);
        text += static_cast<wchar_t>(symbols[value]);
    }
    text.resize((text.size() + 3) / 4 * 4, L'=');
    return text;
}

} // namespace

TEST(Base64, BytesThereAndBack)
{
    std::mt19937 random(20240229);
    for (std::size_t size = 0; size < 200; ++size)
    {
        std::vector<unsigned char> bytes(size);
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(random()); });
        std::wstring const text = Base64::Encode(bytes.data(), size);
        ASSERT_EQ(EncodeBitByBit(bytes), text) << size;
        ASSERT_EQ(std::string(bytes.begin(), bytes.end()), Decoded(text)) << size;
        ASSERT_EQ(text, Base64::Encode(*Base64::Decode(text)));
    }
    EXPECT_EQ(L"TWE=", Base64::Encode(reinterpret_cast<unsigned char const*>("Ma"), 2));
    EXPECT_EQ(L"", Base64::Encode(nullptr, 0));
}

TEST(Base64, RefusesWhatIsNone)
{
    EXPECT_EQ("size must be multiple of 4", MessageOf(L"TQ="));
    EXPECT_EQ("size must be multiple of 4", MessageOf(L"====="));
    EXPECT_EQ("too many filler symbols (=)", MessageOf(L"T==="));
    EXPECT_EQ("too many filler symbols (=)", MessageOf(L"===="));
    EXPECT_EQ(std::string("\0\0M", 3), Decoded(L"==BN")) << "a filler within the text counts as 0";
    EXPECT_EQ("M", Decoded(L"TR==")) << "spare bits are not looked at";
    std::string const symbols = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/=";
    for (unsigned unit = 0; unit < 0x200; ++unit)
        for (std::size_t place = 0; place < 4; ++place)
        {
            std::wstring text = L"AAAAAAAA";
            text[place] = static_cast<wchar_t>(unit);
            bool const isSymbol = unit < 0x80 && symbols.find(static_cast<char>(unit)) != std::string::npos;
            if (!isSymbol)
                ASSERT_THROW(Base64::Decode(text), Vek::ArgumentException) << unit;
            else
                ASSERT_EQ(6U, Base64::Decode(text)->GetSize()) << unit;
        }
}

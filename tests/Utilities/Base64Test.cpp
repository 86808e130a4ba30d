#include "UnitText.h"

#include <Utilities/Base64.h>

using namespace Vek::Framework::Utilities;

namespace
{

std::string Decoded(std::wstring const& text)
{
    auto const bytes = Base64::Decode(text);
    return std::string(bytes->GetData(), bytes->GetData() + bytes->GetSize());
}

std::string Refusal(std::wstring const& text)
{
    return MessageOf<std::invalid_argument>([&] { Base64::Decode(text); });
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

std::vector<unsigned char> MakeBytes(std::size_t size, std::mt19937& random)
{
    std::vector<unsigned char> bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(random()); });
    return bytes;
}

} // namespace

TEST(Base64, BytesThereAndBack)
{
    std::mt19937 random(20240229);
    std::vector<std::size_t> sizes = { 767, 768, 769, 1536, 65'534, 100'000 };
    for (std::size_t size = 0; size < 200; ++size)
        sizes.push_back(size);
    for (std::size_t const size : sizes)
    {
        std::vector<unsigned char> const bytes = MakeBytes(size, random);
        std::string expected(bytes.begin(), bytes.end());
        std::wstring text = Base64::Encode(bytes.data(), size);
        ASSERT_TRUE(EncodeBitByBit(bytes) == text) << size;
        ASSERT_TRUE(expected == Decoded(text)) << size;
        if (size % 3 != 0 || size == 0)
            continue;
        std::size_t const filler = random() % size / 3; // a group from which the plain way goes on
        text.replace(4 * filler, 4, L"==BN");
        expected.replace(3 * filler, 3, "\0\0M", 3);
        ASSERT_TRUE(expected == Decoded(text)) << size;
    }
    EXPECT_EQ(L"TWE=", Base64::Encode(*Base64::Decode(L"TWE=")));
    EXPECT_EQ(L"", Base64::Encode(nullptr, 0));
    EXPECT_THROW(Base64::Encode(nullptr, 1), Vek::NullPointerException);
}

TEST(Base64, FindsAForeignUnitAnywhere)
{
    std::mt19937 random(20240229);
    std::wstring const text = EncodeBitByBit(MakeBytes(90, random));
    std::vector<unsigned> foreign = { 0, '-', '_', ' ', 0x7F, 0x80, 0xC1, 0x141, 0x7FFF, 0x8041, 0xFF41, 0xFFFF };
    if (c_hasWideElements)
        foreign.insert(foreign.end(), { 0x10041, 0x410000, 0x7FFFFF41, 0x80000041, 0xFFFFFF41, 0xFFFFFFFF });
    for (std::size_t place = 0; place < text.size(); ++place)
        for (unsigned const unit : foreign)
        {
            std::wstring broken = text;
            broken[place] = static_cast<wchar_t>(unit);
            ASSERT_THROW(Base64::Decode(broken), Vek::ArgumentException) << unit << " at " << place;
        }
}

TEST(Base64, RefusesWhatIsNone)
{
    EXPECT_EQ("size must be multiple of 4", Refusal(L"TQ="));
    EXPECT_EQ("size must be multiple of 4", Refusal(L"====="));
    EXPECT_EQ("too many filler symbols (=)", Refusal(L"T==="));
    EXPECT_EQ("too many filler symbols (=)", Refusal(L"===="));
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

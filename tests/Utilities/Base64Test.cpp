#include "BitByBit.h"
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

} // namespace

TEST(Base64, BytesThereAndBack)
{
    std::mt19937 random(20240229);
    for (std::size_t size = 0; size < 200; ++size)
    {
        Bytes const bytes = MakeBytes(size, random);
        std::string expected(bytes.begin(), bytes.end());
        std::wstring text = EncodeBitByBit(bytes, 6, c_base64Symbols);
        text.resize((text.size() + 3) / 4 * 4, L'=');
        ASSERT_EQ(text, Base64::Encode(bytes.data(), size));
        ASSERT_EQ(expected, Decoded(text));
        if (size % 3 != 0 || size == 0)
            continue;
        std::size_t const filler = random() % size / 3; // a group from which the plain way goes on
        text.replace(4 * filler, 4, L"==BN");
        expected.replace(3 * filler, 3, "\0\0M", 3);
        ASSERT_EQ(expected, Decoded(text));
    }
    EXPECT_EQ(L"TWE=", Base64::Encode(*Base64::Decode(L"TWE=")));
    EXPECT_EQ(L"", Base64::Encode(nullptr, 0));
    EXPECT_THROW(Base64::Encode(nullptr, 1), Vek::NullPointerException);
}

TEST(Base64, RefusesWhatIsNone)
{
    EXPECT_EQ("size must be multiple of 4", Refusal(L"TQ="));
    EXPECT_EQ("size must be multiple of 4", Refusal(L"====="));
    EXPECT_EQ("too many filler symbols (=)", Refusal(L"T==="));
    EXPECT_EQ("too many filler symbols (=)", Refusal(L"===="));
    EXPECT_EQ("M", Decoded(L"TR==")) << "spare bits are not looked at";
    std::wstring const text = EncodeBitByBit(Bytes(90, 'x'), 6, c_base64Symbols);
    for (unsigned unit = 0; unit < (c_hasWideElements ? 0x10100 : 0x10000); ++unit)
    {
        std::wstring broken = text;
        broken[unit % text.size()] = static_cast<wchar_t>(unit);
        bool const isSymbol = unit < 0x80 && (unit == '=' || std::strchr(c_base64Symbols, static_cast<int>(unit)));
        if (unit == 0 || !isSymbol)
            ASSERT_THROW(Base64::Decode(broken), Vek::ArgumentException) << unit;
        else
            ASSERT_EQ(90U, Base64::Decode(broken)->GetSize()) << unit;
    }
}

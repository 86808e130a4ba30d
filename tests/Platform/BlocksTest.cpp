#include <Utilities/UnitText.h>

#include <Platform/Base64Blocks.h>
#include <Platform/HexBlocks.h>
#include <Platform/Utf8Blocks.h>

// The blocks ask for the processor that the test says; what this one really has comes under other names.
#define HasSsse3 IsSsse3There
#define HasAvx2 IsAvx2There
#include <Platform/Processor.cpp>
#undef HasSsse3
#undef HasAvx2

namespace
{

enum class Processor
{
    Plain,
    Ssse3,
    Avx2
};

Processor s_processor = Processor::Plain;

using Bytes = std::vector<unsigned char>;

/// Over all processors up to this one.
void ForEachProcessor(std::function<void()> const& test)
{
    for (Processor const processor : { Processor::Plain, Processor::Ssse3, Processor::Avx2 })
    {
        SCOPED_TRACE(static_cast<int>(processor));
        s_processor = processor;
        if (processor == Processor::Plain ||
            (processor == Processor::Ssse3 ? Vek::Platform::IsSsse3There() : Vek::Platform::IsAvx2There()))
            test();
    }
}

Bytes MakeBytes(std::size_t size, std::mt19937& random)
{
    Bytes bytes(size);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(random()); });
    return bytes;
}

/// Units beyond ASCII; what is wider than a unit would be cut to ASCII where wchar_t is none.
std::vector<unsigned> GetOtherUnits()
{
    std::vector<unsigned> units = { 0x80, 0xC1, 0xFF, 0x130, 0x7F7F, 0x7FFF, 0x8041, 0xFFFF };
    if (c_hasWideElements)
        units.insert(units.end(), { 0x10041, 0x80000041, 0xFFFFFF41 });
    return units;
}

/// Of `count` bits each.
std::wstring EncodeBitByBit(Bytes const& bytes, std::size_t count, std::string const& symbols)
{
    std::wstring text;
    for (std::size_t bit = 0; bit < bytes.size() * 8; ++bit)
    {
        static unsigned s_value;
        s_value = (bit % count == 0 ? 0 : s_value << 1) | (bytes[bit / 8] >> (7 - bit % 8) & 1U);
        if (bit % count == count - 1)
            text += static_cast<wchar_t>(symbols[s_value]);
    }
    return text;
}

struct Encoding
{
    std::size_t bits;
    std::string symbols;
    std::size_t group; // bytes
    Processor least;   // that does blocks at all
    std::size_t (*encode)(unsigned char const*, std::size_t, wchar_t*);
    std::size_t (*decode)(wchar_t const*, std::size_t, unsigned char*);
};

Encoding const c_encodings[] = {
    { 6, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/", 3, Processor::Ssse3,
      Vek::Platform::EncodeBase64Blocks, Vek::Platform::DecodeBase64Blocks },
    { 4, "0123456789ABCDEF", 1, Processor::Plain, Vek::Platform::EncodeHexBlocks, Vek::Platform::DecodeHexBlocks },
};

/// Vectors without a unit to spare, so that the sanitizer sees what is written or read too far.
void CheckEncoding(Encoding const& encoding, std::size_t offset, Bytes const& bytes)
{
    std::wstring const text = EncodeBitByBit(bytes, encoding.bits, encoding.symbols);
    std::vector<wchar_t> units(text.size() + offset);
    std::size_t const taken = encoding.encode(bytes.data(), bytes.size(), units.data() + offset);
    std::size_t const symbols = taken * 8 / encoding.bits;
    ASSERT_EQ(0U, taken % encoding.group);
    ASSERT_TRUE(std::equal(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(symbols), units.begin() + offset));
    ASSERT_TRUE(s_processor < encoding.least ? taken == 0 : bytes.size() - taken < 16) << taken;
}

void CheckDecoding(Encoding const& encoding, std::wstring const& text, std::size_t foreign, Bytes const& bytes)
{
    std::vector<wchar_t> const units(text.begin(), text.end());
    Bytes decoded(bytes.size());
    std::size_t const taken = encoding.decode(units.data(), units.size(), decoded.data());
    ASSERT_LE(taken, foreign);
    ASSERT_EQ(0U, taken * encoding.bits % 8);
    ASSERT_TRUE(std::equal(decoded.begin(), decoded.begin() + static_cast<std::ptrdiff_t>(taken * encoding.bits / 8),
                           bytes.begin()));
    ASSERT_TRUE(s_processor < encoding.least ? taken == 0 : foreign - taken < 44) << taken;
}

} // namespace

namespace Vek::Platform
{

bool HasSsse3() noexcept
{
    return s_processor >= Processor::Ssse3;
}

bool HasAvx2() noexcept
{
    return s_processor >= Processor::Avx2;
}

} // namespace Vek::Platform

TEST(Blocks, EveryProcessorEncodesAndDecodesAsBitByBit)
{
    std::mt19937 random(20240229);
    std::vector<unsigned> units = GetOtherUnits();
    units.insert(units.end(), { 0, '=', '-', 0x7F });
    auto const test = [&]
    {
        for (Encoding const& encoding : c_encodings)
            for (std::size_t groups = 0; groups < 80; ++groups)
            {
                Bytes const bytes = MakeBytes(encoding.group * groups, random);
                for (std::size_t const offset : { 0, 1, 2, 4 })
                    CheckEncoding(encoding, offset, bytes);
                std::wstring text = EncodeBitByBit(bytes, encoding.bits, encoding.symbols);
                CheckDecoding(encoding, text, text.size(), bytes);
                for (unsigned const unit : units)
                {
                    std::size_t const place = text.empty() ? 0 : random() % text.size();
                    std::wstring broken = text;
                    if (!text.empty())
                        broken[place] = static_cast<wchar_t>(unit);
                    CheckDecoding(encoding, broken, place, bytes);
                }
            }
    };
    ForEachProcessor(test);
}

namespace
{

/// The bytes of the well-formed character of up to three bytes at the front, none of any other; `unit` is its unit.
std::size_t MeasureCharacter(unsigned char const* bytes, std::size_t size, unsigned& unit)
{
    std::size_t const count = bytes[0] < 0x80 ? 1 : bytes[0] < 0xE0 ? 2 : 3;
    if (bytes[0] >= 0xF0 || size < count)
        return 0;
    unit = count == 1 ? bytes[0] : bytes[0] & (0x3FU >> (count - 1));
    for (std::size_t at = 1; at < count; ++at)
    {
        if (bytes[at] < 0x80 || bytes[at] >= 0xC0)
            return 0;
        unit = unit << 6 | (bytes[at] & 0x3FU);
    }
    bool const isAllowed = count == 1 || (count == 2 ? unit >= 0x80 : unit >= 0x800 && (unit & 0xF800U) != 0xD800);
    return isAllowed ? count : 0;
}

} // namespace

TEST(Blocks, EveryProcessorDecodesUtf8UpToWhatIsNoSequenceOfTwoOrThree)
{
    std::mt19937 random(20240229);
    auto const test = [&]
    {
        for (unsigned round = 0; round < 20'000; ++round)
        {
            // Mostly ASCII, sequences in their stretches, here and there any byte.
            Bytes bytes;
            for (std::size_t const size = random() % 200; bytes.size() < size;)
            {
                bytes.push_back(static_cast<unsigned char>(random() % 0x80));
                while (bytes.size() / 70 == round % 3 && random() % 3 == 0)
                {
                    bool const isThree = round % 2 == 0 && random() % 2 == 0;
                    bytes.push_back(
                        static_cast<unsigned char>(isThree ? 0xE0 + random() % 0x10 : 0xC2 + random() % 0x1E));
                    for (int trail = 0; trail < (isThree ? 2 : 1); ++trail)
                        bytes.push_back(static_cast<unsigned char>(0x80 + random() % 0x40));
                }
            }
            if (round % 5 != 0 && !bytes.empty())
                bytes[random() % bytes.size()] = static_cast<unsigned char>(
                    std::array<unsigned, 5>{ 0, static_cast<unsigned>(random()), 0xC3, 0xE2, 0xED }[round % 5]);

            std::vector<wchar_t> units(bytes.size());
            auto const [size, taken] = Vek::Platform::DecodeUtf8Blocks(bytes.data(), bytes.size(), units.data());
            std::size_t at = 0;
            std::size_t count = 0;
            for (; at < taken; ++count)
            {
                unsigned unit = 0;
                std::size_t const length = MeasureCharacter(&bytes[at], taken - at, unit);
                ASSERT_NE(0U, length);
                ASSERT_EQ(static_cast<wchar_t>(unit), units[count]);
                at += length;
            }
            ASSERT_EQ(size, count);
            ASSERT_TRUE(bytes.size() - at <= 17 || bytes[at] >= 0x80) << "there was more to take";
        }
    };
    ForEachProcessor(test);
}

TEST(Blocks, EveryProcessorNarrowsAsciiUpToTheFirstOther)
{
    auto const test = []
    {
        for (std::size_t size = 0; size < 100; ++size)
            for (unsigned const other : GetOtherUnits())
                for (std::size_t place = 0; place < size; ++place)
                {
                    std::vector<wchar_t> units(size, L'a');
                    units[place] = static_cast<wchar_t>(other);
                    std::string bytes(size, '\0');
                    std::size_t const taken = Vek::Platform::NarrowAsciiBlocks(units.data(), size, bytes.data());
                    ASSERT_TRUE(taken <= place && place - taken < 32) << taken;
                    ASSERT_TRUE(std::equal(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(taken),
                                           units.begin(), [](char a, wchar_t b) { return a == static_cast<char>(b); }));
                }
    };
    ForEachProcessor(test);
}

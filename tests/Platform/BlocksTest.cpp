#include <Utilities/BitByBit.h>
#include <Utilities/UnitText.h>

#include <Platform/Base64Blocks.h>
#include <Platform/HexBlocks.h>
#include <Platform/Utf8Blocks.h>

#include <numeric>

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

/// Units beyond ASCII; what is wider than a unit would be cut to ASCII where wchar_t is none.
std::vector<unsigned> GetOtherUnits()
{
    std::vector<unsigned> units = { 0x80, 0xC1, 0xFF, 0x130, 0x7F7F, 0x7FFF, 0x8041, 0xFFFF };
    if (c_hasWideElements)
        units.insert(units.end(), { 0x10041, 0x80000041, 0xFFFFFF41 });
    return units;
}

struct Encoding
{
    std::size_t bits;
    char const* symbols;
    std::size_t group; // bytes
    Processor least;   // that does blocks at all
    std::size_t (*encode)(unsigned char const*, std::size_t, wchar_t*);
    std::size_t (*decode)(wchar_t const*, std::size_t, unsigned char*);
};

Encoding const c_encodings[] = {
    { 6, c_base64Symbols, 3, Processor::Ssse3, Vek::Platform::EncodeBase64Blocks, Vek::Platform::DecodeBase64Blocks },
    { 4, c_hexSymbols, 1, Processor::Plain, Vek::Platform::EncodeHexBlocks, Vek::Platform::DecodeHexBlocks },
};

/// Vectors without a unit to spare, so that the sanitizer sees what is written or read too far.
void CheckEncoding(Encoding const& encoding, std::size_t offset, Bytes const& bytes, std::wstring const& text)
{
    std::vector<wchar_t> units(text.size() + offset);
    std::size_t const taken = encoding.encode(bytes.data(), bytes.size(), units.data() + offset);
    std::size_t const symbols = taken * 8 / encoding.bits;
    ASSERT_EQ(0U, taken % encoding.group);
    ASSERT_EQ(0, text.compare(0, symbols, units.data() + offset, symbols));
    ASSERT_TRUE(s_processor < encoding.least ? taken == 0 : bytes.size() - taken < 16) << taken;
}

void CheckDecoding(Encoding const& encoding, std::wstring const& text, std::size_t foreign, Bytes const& bytes)
{
    std::vector<wchar_t> const units(text.begin(), text.end());
    Bytes decoded(bytes.size());
    std::size_t const taken = encoding.decode(units.data(), units.size(), decoded.data());
    ASSERT_LE(taken, foreign);
    ASSERT_EQ(0U, taken * encoding.bits % 8);
    ASSERT_EQ(0, std::memcmp(decoded.data(), bytes.data(), taken * encoding.bits / 8));
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
            for (std::size_t groups = 1; groups < 80; ++groups)
            {
                Bytes const bytes = MakeBytes(encoding.group * groups, random);
                std::wstring const text = EncodeBitByBit(bytes, encoding.bits, encoding.symbols);
                for (std::size_t const offset : { 0, 1, 2, 4 })
                    CheckEncoding(encoding, offset, bytes, text);
                CheckDecoding(encoding, text, text.size(), bytes);
                for (unsigned const unit : units)
                {
                    std::size_t const place = random() % text.size();
                    std::wstring broken = text;
                    broken[place] = static_cast<wchar_t>(unit);
                    CheckDecoding(encoding, broken, place, bytes);
                }
            }
    };
    ForEachProcessor(test);
}

TEST(Blocks, EveryProcessorDecodesUtf8UpToWhatIsNoSequenceOfTwoOrThree)
{
    std::mt19937 random(20240229);
    auto const test = [&]
    {
        for (unsigned round = 0; round < 20'000; ++round)
        {
            // Mostly ASCII, sequences in their stretches, here and there any byte.
            std::string text;
            for (std::size_t const size = random() % 200; text.size() < size;)
            {
                text.push_back(static_cast<char>(random() % 0x80));
                while (text.size() / 70 == round % 3 && random() % 3 == 0)
                {
                    auto const any = static_cast<unsigned>(random());
                    AppendUtf8(text, round % 2 == 0 && any >> 31 == 0 ? 0x800 + any % 0xF800 : 0x80 + any % 0x780);
                }
            }
            if (round % 5 != 0 && !text.empty())
                text[random() % text.size()] = static_cast<char>(
                    std::array<unsigned, 5>{ 0, static_cast<unsigned>(random()), 0xC1, 0xE0, 0xED }[round % 5]);

            Bytes const bytes(text.begin(), text.end());
            std::vector<wchar_t> units(bytes.size());
            auto const [size, taken] = Vek::Platform::DecodeUtf8Blocks(bytes.data(), bytes.size(), units.data());
            std::string encoded;
            for (std::size_t at = 0; at < size; ++at)
            {
                auto const unit = static_cast<unsigned>(units[at]);
                ASSERT_TRUE(unit < 0xD800 || (unit > 0xDFFF && unit <= 0xFFFF)) << unit;
                AppendUtf8(encoded, unit);
            }
            ASSERT_EQ(text.substr(0, taken), encoded);
            ASSERT_TRUE(bytes.size() - taken <= 17 || bytes[taken] >= 0x80) << "there was more to take";
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
                    std::vector<wchar_t> units(size);
                    std::iota(units.begin(), units.end(), L'\x10');
                    units[place] = static_cast<wchar_t>(other);
                    std::string bytes(size, '\0');
                    std::size_t const taken = Vek::Platform::NarrowAsciiBlocks(units.data(), size, bytes.data());
                    ASSERT_TRUE(taken <= place && place - taken < 32) << taken;
                    ASSERT_TRUE(std::equal(bytes.data(), bytes.data() + taken, units.begin()));
                }
    };
    ForEachProcessor(test);
}

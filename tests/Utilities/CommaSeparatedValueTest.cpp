#include <Exceptions/InvalidStateException.h>
#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <vector>

using namespace Vek::Framework::Utilities;

namespace
{

using Values = std::vector<std::wstring>;

std::wstring Write(Values const& values, wchar_t separator)
{
    CommaSeparatedValueWriter writer(separator);
    for (std::wstring const& value : values)
        writer.AddValue(value);
    return writer.GetResult();
}

Values Read(std::wstring const& text, wchar_t separator)
{
    CommaSeparatedValueReader reader(text, separator);
    Values values;
    while (reader.MoveNext())
        values.push_back(reader.GetCurrentValue());
    EXPECT_THROW(reader.ReadNext(), Vek::InvalidStateException);
    return values;
}

} // namespace

TEST(CommaSeparatedValue, LinesAndTheirValues)
{
    EXPECT_EQ(L"a;b\\;c;d\\\\e;;", Write({ L"a", L"b;c", L"d\\e", L"" }, L';'));
    // clang-format off
    struct { wchar_t const* text; Values values; } const rows[] = {
        { L"", {} }, { L";", { L"" } }, { L";x", { L"", L"x" } }, { L"a;b;", { L"a", L"b" } },
        { L"a;;b", { L"a", L"", L"b" } }, { L"\\a\\;\\\\", { L"a;\\" } },
        { L"0123456789abcdef\\;0123456789;z", { L"0123456789abcdef;0123456789", L"z" } },
    };
    // clang-format on
    for (auto const& row : rows)
    {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(row.values, Read(row.text, L';'));
    }
}

TEST(CommaSeparatedValue, RestAndALoneBackslash)
{
    CommaSeparatedValueReader reader(L"a;b\\;c;", L';');
    EXPECT_EQ(L"a", reader.ReadNext());
    CommaSeparatedValueReader copy(reader);
    CommaSeparatedValueReader moved(std::move(reader));
    EXPECT_EQ(L"b\\;c;", moved.ReadRest());
    EXPECT_FALSE(moved.MoveNext());
    EXPECT_FALSE(reader.MoveNext()) << "nothing is left in what was moved";
    EXPECT_EQ(L"b;c", copy.ReadNext());

    CommaSeparatedValueReader broken(L"ab\\", L';');
    EXPECT_THROW(broken.MoveNext(), std::out_of_range);
    EXPECT_EQ(L"ab", broken.GetCurrentValue());
    EXPECT_FALSE(broken.MoveNext());
}

TEST(CommaSeparatedValue, RandomRoundTrips)
{
    std::mt19937 random(20240229);
    for (int i = 0; i < 2000; ++i)
    {
        // A backslash as separator does not come back: it ends the value before it is looked at as an escape.
        wchar_t const separator = L";,a\t\xFFFD\x7FFF"[random() % 6];
        Values values(random() % 6);
        for (std::wstring& value : values)
            for (unsigned size = static_cast<unsigned>(random() % 40); size > 0; --size)
                value += random() % 6 == 0 ? L"\\;"[random() % 2] : L"abcdefgh,;\xFFFD\x7FFF\xFFFF"[random() % 13];
        ASSERT_EQ(values, Read(Write(values, separator), separator)) << i;
    }
    CommaSeparatedValueWriter writer;
    writer.AddValue(L"x");
    writer.AddValue(writer.GetResult());
    EXPECT_EQ(L"x;x\\;;", writer.GetResult());
}

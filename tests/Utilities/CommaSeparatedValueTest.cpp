#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/CommaSeparatedValueViewReader.h>
#include <Utilities/CommaSeparatedValueWriter.h>

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

template <class Reader>
Values ReadBy(Reader reader)
{
    Values values;
    while (reader.MoveNext())
        values.emplace_back(reader.GetCurrentValue());
    EXPECT_THROW(reader.ReadNext(), Vek::InvalidStateException);
    return values;
}

Values Read(std::wstring const& text, wchar_t separator)
{
    Values const values = ReadBy(CommaSeparatedValueReader(text, separator));
    EXPECT_EQ(values, ReadBy(CommaSeparatedValueViewReader(text, separator)));
    return values;
}

template <class Reader>
void ExpectRestAndALoneBackslash()
{
    Reader reader(L"a;b\\;c;d", L';');
    EXPECT_EQ(L"a", reader.ReadNext());
    Reader copy(reader);
    EXPECT_EQ(L"b\\;c;d", reader.ReadRest());
    EXPECT_FALSE(reader.MoveNext());
    EXPECT_EQ(L"b;c", copy.ReadNext());
    Reader const second(copy);
    copy = reader;
    EXPECT_EQ(L"b;c", second.GetCurrentValue()) << "its own, whatever becomes of the other";

    Reader broken(L"0123456789;abcdefgh\\", L';');
    broken.ReadNext();
    EXPECT_THROW(broken.MoveNext(), std::out_of_range);
    EXPECT_EQ(L"abcdefgh", broken.GetCurrentValue());
    EXPECT_FALSE(broken.MoveNext());
}

} // namespace

TEST(CommaSeparatedValue, LinesAndTheirValues)
{
    EXPECT_EQ(L"a;b\\;c;d\\\\e;;", Write({ L"a", L"b;c", L"d\\e", L"" }, L';'));
    // clang-format off
    Rows<wchar_t const*, Values> const rows = {
        { L"", {} }, { L";", { L"" } }, { L";x", { L"", L"x" } }, { L"a;b;", { L"a", L"b" } },
        { L"a;;b", { L"a", L"", L"b" } }, { L"\\a\\;\\\\", { L"a;\\" } },
        { L"0123456789abcdef\\;0123456789;z", { L"0123456789abcdef;0123456789", L"z" } },
    };
    // clang-format on
    for (auto const& [text, values] : rows)
    {
        SCOPED_TRACE(text);
        EXPECT_EQ(values, Read(text, L';'));
    }
}

TEST(CommaSeparatedValue, RestAndALoneBackslash)
{
    ExpectRestAndALoneBackslash<CommaSeparatedValueReader>();
    ExpectRestAndALoneBackslash<CommaSeparatedValueViewReader>();
    CommaSeparatedValueReader reader(L"a;b", L';');
    EXPECT_EQ(L"a", CommaSeparatedValueReader(std::move(reader)).ReadNext());
    EXPECT_FALSE(reader.MoveNext()) << "nothing is left in what was moved";
}

TEST(CommaSeparatedValue, RandomRoundTrips)
{
    std::mt19937 random(20240229);
    for (int i = 0; i < 2000; ++i)
    {
        // A backslash as separator does not come back: it ends the value before it is looked at as an escape.
        wchar_t const separator = L";,a\t\xFFFD\x7FFF\xFE\xFF"[random() % 8];
        Values values(random() % 6);
        for (std::wstring& value : values)
            for (unsigned size = static_cast<unsigned>(random() % 40); size > 0; --size)
                value += random() % 6 == 0 ? L"\\;"[random() % 2]
                                           : L"abcdefgh,;\xFFFD\x7FFF\xFFFF\x13B\xFE\xFF"[random() % 16];
        ASSERT_EQ(values, Read(Write(values, separator), separator)) << i;
    }
    CommaSeparatedValueWriter writer;
    writer.AddValue(L"x");
    writer.AddValue(writer.GetResult());
    EXPECT_EQ(L"x;x\\;;", writer.GetResult());
    wchar_t const* const memory = writer.GetResult().data();
    writer.Clear();
    writer.AddValue(L"y");
    EXPECT_EQ(L"y;", writer.GetResult());
    EXPECT_EQ(memory, writer.GetResult().data());
}

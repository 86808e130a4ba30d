#include <IXMLStreamer/XMLCodes.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>

#include <cstddef>
#include <locale>

using namespace Vek::Framework::IXMLStreamer::Native;

namespace
{

using Emitter = XMLWriter::AttributeEmitter;

auto const None = [](Emitter const&) {};

template <class V>
concept IsContent = requires(XMLWriter& writer, V value)
{
    writer.WriteContentValue("name", value, None);
};

static_assert(IsContent<std::string> && IsContent<char const*> && IsContent<char*> && IsContent<char const (&)[3]>);
static_assert(IsContent<int> && IsContent<unsigned int> && IsContent<double> && IsContent<bool>);
static_assert(IsContent<short> && IsContent<float> && IsContent<std::vector<bool>::reference>);
static_assert(!IsContent<wchar_t const*> && !IsContent<wchar_t const (&)[3]> && !IsContent<std::wstring>);
static_assert(!IsContent<void const*> && !IsContent<unsigned char const*> && !IsContent<std::nullptr_t>);
static_assert(!IsContent<void (*)()> && !IsContent<void(XMLWriter&)>);
static_assert(!IsContent<char> && !IsContent<wchar_t> && !IsContent<unsigned char>);
static_assert(!IsContent<long> && !IsContent<unsigned long> && !IsContent<long long> && !IsContent<long double>);

// Where the attributes are left out, and where a null pointer stands for them.
template <class V>
concept IsContentAlone = requires(XMLWriter& writer, V value)
{
    writer.WriteContentValue("name", value);
};
template <class... Value>
concept TakesNull = requires(XMLWriter& writer, Value... value)
{
    writer.WriteContentValue("name", value..., nullptr);
}
|| requires(XMLWriter& writer)
{
    writer.WriteContent("name", nullptr);
}
|| requires(XMLWriter& writer)
{
    writer.WriteBeginStructure("name", nullptr);
};

static_assert(IsContentAlone<std::string> && IsContentAlone<char const (&)[3]> && IsContentAlone<bool>);
static_assert(!IsContentAlone<long> && !IsContentAlone<std::nullptr_t> && !IsContentAlone<wchar_t const*>);
static_assert(!TakesNull<> && !TakesNull<char const*> && !TakesNull<std::string> && !TakesNull<int>);

class GermanDigits : public std::numpunct<char>
{
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

template <class V>
void ExpectFormattedByTheStream(std::ostream const& format, V value)
{
    std::ostringstream plain;
    plain.copyfmt(format);
    plain << value;

    std::ostringstream stream;
    stream.copyfmt(format);
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, true) && writer.WriteBeginStructure("a", None));
    EXPECT_TRUE(writer.WriteContentValue("b", value, None));
    EXPECT_EQ("<?xml version=\"1.0\"?>\n<a>\n\t<b>" + plain.str() + "</b>\n", stream.str());
    EXPECT_EQ(0, stream.width());
}

std::string EscapeByteByByte(std::string const& text)
{
    std::string escaped;
    for (char const c : text)
    {
        char const* const code = XMLCodes::FindCode(c);
        escaped += code == nullptr ? std::string(1, c) : std::string("&") + code + ";";
    }
    return escaped;
}

std::string MakeText(std::mt19937& random)
{
    // Mostly plain, so that runs of every length come up.
    std::string text(random() % 70, 'x');
    for (char& c : text)
        if (random() % 8 == 0)
            c = static_cast<char>(random() % 256);
    return text;
}

} // namespace

TEST(XMLWriterValues, AttributesMayBeLeftOut)
{
    std::ostringstream stream;
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, false) && writer.WriteBeginStructure("a"));
    EXPECT_TRUE(writer.WriteContentValue("b", "<") && writer.WriteContentValue("c", 1) && writer.WriteContent("d"));
    EXPECT_TRUE(writer.WriteEndStructure() && writer.FinishWriting());
    EXPECT_EQ("<a>\n\t<b>&lt;</b>\n\t<c>1</c>\n\t<d/>\n</a>\n", stream.str());
}

TEST(XMLWriterValues, NumbersLookAsTheStreamFormatsThem)
{
    std::ostringstream formats[9];
    formats[1] << std::hex << std::showbase;
    formats[2] << std::oct << std::uppercase;
    formats[3] << std::setw(12) << std::setfill('*') << std::left;
    formats[4] << std::showpos << std::internal << std::setw(20);
    formats[5] << std::setprecision(17);
    formats[6] << std::fixed << std::setprecision(0) << std::showpoint;
    formats[7] << std::hexfloat << std::unitbuf;
    formats[8].imbue(std::locale(std::locale::classic(), new GermanDigits));
    for (std::size_t i = 0; i < std::size(formats); ++i)
    {
        SCOPED_TRACE(i);
        for (int const value : { 0, 42, -1, 1234567, INT_MIN, INT_MAX })
        {
            ExpectFormattedByTheStream(formats[i], value);
            ExpectFormattedByTheStream(formats[i], static_cast<unsigned int>(value));
        }
        for (double const value : { 0.0, -0.0, 0.1, 1234567.891, 1e300, std::numeric_limits<double>::infinity(),
                                    std::numeric_limits<double>::quiet_NaN(), 5e-324 })
            ExpectFormattedByTheStream(formats[i], value);
    }
}

TEST(XMLWriterValues, WidthOfTheStreamIsForNumbersOnly)
{
    std::ostringstream stream;
    stream << std::boolalpha << std::setw(4);
    XMLWriter writer;
    EXPECT_TRUE(writer.StartWriting(stream, false) && writer.WriteBeginStructure("a", None));
    EXPECT_TRUE(writer.WriteContentValue("b", true, None) && writer.WriteContentValue("b", false, None));
    EXPECT_TRUE(writer.WriteContentValue("b", 7, None) && writer.WriteContentValue("b", 7, None));
    EXPECT_EQ("<a>\n\t<b>1</b>\n\t<b>0</b>\n\t<b>   7</b>\n\t<b>7</b>\n", stream.str());
}

TEST(XMLWriterValues, TextsAreEscapedAndReadBack)
{
    std::mt19937 random(20240229);
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte)
        everyByte += static_cast<char>(byte);

    for (int i = 0; i < 1000; ++i)
    {
        std::string const attribute = i == 0 ? everyByte : MakeText(random);
        std::string const content = i == 0 ? everyByte : MakeText(random);
        SCOPED_TRACE(i);
        std::stringstream stream;
        XMLWriter writer;
        EXPECT_TRUE(writer.StartWriting(stream, true) && writer.WriteComment(content));
        EXPECT_TRUE(writer.WriteBeginStructure("a", None));
        EXPECT_TRUE(writer.WriteContentValue("b", content, [&](Emitter const& emit) { emit("c", attribute); }));
        EXPECT_TRUE(writer.WriteEndStructure() && writer.FinishWriting());
        std::string const escaped = EscapeByteByByte(content);
        EXPECT_EQ("<?xml version=\"1.0\"?>\n" + (content.empty() ? "" : "<!--" + escaped + "-->\n") + "<a>\n\t<b c=\"" +
                      EscapeByteByByte(attribute) + (content.empty() ? "\"/>" : "\">" + escaped + "</b>") + "\n</a>\n",
                  stream.str());

        std::string readAttribute;
        std::string readContent;
        XMLStreamer reader;
        XMLContentElement& element = reader.CreateRootStructureElement("a").CreateContentElement("b");
        element.RegisterAttribute(0, "c", [&](auto&, auto& value) { return readAttribute = value, true; });
        element.SetOnDo(0, [&](auto&, auto& value) { return readContent = value, true; });
        EXPECT_TRUE(reader.ProcessSource(stream));
        EXPECT_EQ(attribute, readAttribute);
        EXPECT_EQ(content, readContent);
    }
}

#include <IXMLStreamer/XMLCodes.h>

using namespace Vek::Framework::IXMLStreamer::Native;

namespace
{

bool HasCode(int byte)
{
    return std::string("\n\r\"&'<>").find(static_cast<char>(byte)) != std::string::npos || byte == 128 ||
           (byte >= 161 && byte != 173);
}

} // namespace

TEST(XMLCodes, EveryByteGoesToItsNameAndBack)
{
    std::set<std::string> names;
    for (int byte = 0; byte < 256; ++byte)
    {
        SCOPED_TRACE(byte);
        char const* const name = XMLCodes::FindCode(static_cast<char>(byte));
        ASSERT_EQ(byte != 0 && HasCode(byte), name != nullptr);
        if (name == nullptr)
            continue;
        char symbol = 'x';
        EXPECT_TRUE(XMLCodes::FindSymbol(name, symbol));
        EXPECT_EQ(static_cast<char>(byte), symbol);
        names.insert(name);
    }
    EXPECT_EQ(102U, names.size());
}

TEST(XMLCodes, NamesStandAtTheirBytes)
{
    // clang-format off
    // Both ends of every run of the table.
    Rows<char, char const*> const rows = {
        { '\n', "#10" }, { '\r', "#13" }, { '<', "lt" }, { '>', "gt" }, { '&', "amp" }, { '\'', "apos" },
        { '"', "quot" }, { '\241', "iexcl" }, { '\254', "not" }, { '\256', "reg" }, { '\277', "iquest" },
        { '\300', "Agrave" }, { '\327', "times" }, { '\337', "szlig" }, { '\367', "divide" }, { '\377', "yuml" },
        { '\200', "euro" },
    };
    // clang-format on
    for (auto const& [byte, name] : rows)
        EXPECT_STREQ(name, XMLCodes::FindCode(byte));
}

TEST(XMLCodes, OnlyWholeNamesInTheirCaseAreFound)
{
    using namespace std::string_literals;
    for (std::string const& code :
         { ""s, "AMP"s, "am"s, "amp;"s, "amp\0"s, "\0amp"s, "nbsp"s, "#65"s, "Agraves"s, std::string(1000, 'a') })
    {
        SCOPED_TRACE(code);
        char symbol = 'x';
        EXPECT_FALSE(XMLCodes::FindSymbol(code, symbol));
        EXPECT_EQ('x', symbol);
    }
}

#include <IXMLStreamer/Internal/Declaration.h>

#include <IParser/Internal/Ascii.h>
#include <IXMLStreamer/Internal/Blank.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

constexpr std::string_view c_encoding = "encoding";
constexpr std::string_view c_standalone = "standalone";

bool IsLetter(char c)
{
    unsigned char const lower = IParser::Native::Internal::ToAsciiLower(static_cast<unsigned char>(c));
    return lower >= 'a' && lower <= 'z';
}

bool IsEncodingName(std::string_view text)
{
    auto const isPart = [](char c)
    { return IsLetter(c) || (c >= '0' && c <= '9') || c == '.' || c == '_' || c == '-'; };
    return !text.empty() && IsLetter(text.front()) && std::all_of(text.begin(), text.end(), isPart);
}

/// Takes a text apart from its front.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    bool IsAtEnd() const { return m_rest.empty(); }

    /// True when there were any.
    bool TakeBlanks()
    {
        auto const end = std::find_if_not(m_rest.begin(), m_rest.end(), IsBlank);
        bool const hasBlanks = end != m_rest.begin();
        m_rest.remove_prefix(static_cast<std::size_t>(end - m_rest.begin()));
        return hasBlanks;
    }

    bool Take(std::string_view word)
    {
        bool const isThere = m_rest.starts_with(word);
        m_rest.remove_prefix(isThere ? word.size() : 0);
        return isThere;
    }

    /// An equals sign and a text in quotes of either kind.
    bool TakeValue(std::string_view& value)
    {
        TakeBlanks();
        if (!Take("="))
            return false;
        TakeBlanks();
        char const quote = m_rest.empty() ? '\0' : m_rest.front();
        std::size_t const end = m_rest.find(quote, 1);
        if ((quote != '"' && quote != '\'') || end == std::string_view::npos)
            return false;
        value = m_rest.substr(1, end - 1);
        m_rest.remove_prefix(end + 1);
        return true;
    }

private:
    std::string_view m_rest;
};

} // namespace

std::string_view FindEncoding(std::string_view text)
{
    std::string_view value;
    for (std::size_t at = text.find(c_encoding); at != std::string_view::npos; at = text.find(c_encoding, at + 1))
        if ((at == 0 || IsBlank(text[at - 1])) && Scanner(text.substr(at + c_encoding.size())).TakeValue(value))
            return value;
    return {};
}

bool IsDeclarationRest(std::string_view text)
{
    Scanner scanner(text);
    std::string_view value;
    bool isApart = scanner.TakeBlanks();
    if (isApart && scanner.Take(c_encoding))
    {
        if (!scanner.TakeValue(value) || !IsEncodingName(value))
            return false;
        isApart = scanner.TakeBlanks();
    }
    if (isApart && scanner.Take(c_standalone))
    {
        if (!scanner.TakeValue(value) || (value != "yes" && value != "no"))
            return false;
        scanner.TakeBlanks();
    }
    return scanner.IsAtEnd();
}

bool IsReadAsWindows1252(std::string_view encoding)
{
    std::string const name = IParser::Native::Internal::ToAsciiLower(std::string(encoding));
    for (char const* const known :
         { "", "windows-1252", "cp1252", "iso-8859-1", "iso_8859-1", "latin1", "us-ascii", "ascii" })
        if (name == known)
            return true;
    return false;
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal

#include <IXMLStreamer/Internal/NumberText.h>

#include <iterator>
#include <locale>
#include <streambuf>
#include <string_view>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

/// Takes what is written at the end of a text.
class AppendingBuffer : public std::streambuf
{
public:
    explicit AppendingBuffer(TextBuffer& target) : m_target(target) {}

protected:
    int_type overflow(int_type c) override
    {
        if (!traits_type::eq_int_type(c, traits_type::eof()))
            m_target.Append(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }

    std::streamsize xsputn(char const* text, std::streamsize size) override
    {
        m_target.Append(std::string_view(text, static_cast<std::size_t>(size)));
        return size;
    }

private:
    TextBuffer& m_target;
};

// The facet that formatted output of arithmetic types is defined by, with the stream as its format.
template <class Number>
void Format(TextBuffer& target, std::ostream& stream, Number value)
{
    AppendingBuffer buffer(target);
    std::use_facet<std::num_put<char>>(stream.getloc())
        .put(std::ostreambuf_iterator<char>(&buffer), stream, stream.fill(), value);
}

} // namespace

void AppendNumber(TextBuffer& target, std::ostream& stream, int value)
{
    // Octal and hexadecimal show the bits of an int, not those of the wider type that the facet takes.
    std::ios_base::fmtflags const base = stream.flags() & std::ios_base::basefield;
    if (base == std::ios_base::oct || base == std::ios_base::hex)
        Format(target, stream, static_cast<long>(static_cast<unsigned int>(value)));
    else
        Format(target, stream, static_cast<long>(value));
}

void AppendNumber(TextBuffer& target, std::ostream& stream, unsigned int value)
{
    Format(target, stream, static_cast<unsigned long>(value));
}

void AppendNumber(TextBuffer& target, std::ostream& stream, double value)
{
    Format(target, stream, value);
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal

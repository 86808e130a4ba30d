#include <IXMLStreamer/Internal/UnformattedWrite.h>

#include <exception>
#include <streambuf>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

namespace
{

bool NeedsSentry(std::ostream const& stream)
{
    return !stream.good() || stream.tie() != nullptr || (stream.flags() & std::ios_base::unitbuf) != 0;
}

// What the host is to see is the exception of the stream buffer, not that of the bit.
void SetBadSilently(std::ostream& stream)
{
    try
    {
        stream.setstate(std::ios_base::badbit);
    }
    catch (std::ios_base::failure const&)
    {
    }
}

} // namespace

void WriteUnformatted(std::ostream& stream, std::string_view text)
{
    auto const size = static_cast<std::streamsize>(text.size());
    if (NeedsSentry(stream))
    {
        stream.write(text.data(), size);
        return;
    }
    bool isTaken = true; // or thrown at
    try
    {
        isTaken = stream.rdbuf()->sputn(text.data(), size) == size;
    }
    catch (...)
    {
        // The unwinding of a cancelled thread is no exception that one could hold, and no handler may end it.
        SetBadSilently(stream);
        if ((stream.exceptions() & std::ios_base::badbit) != 0 || std::current_exception() == nullptr)
            throw;
    }
    if (!isTaken)
        stream.setstate(std::ios_base::badbit);
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal

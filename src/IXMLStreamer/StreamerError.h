#pragma once

#include <VekApi.h>

#include <string>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Why XMLStreamer did not read a document. A plain value, copied freely.
class VEK_API StreamerError
{
public:
    /// Codes are appended, never renumbered.
    enum ResultCode : unsigned int
    {
        Ok = 0,
        InvalidSyntax = 1,
        DuplicateName = 2,
        InvalidRootElement = 3,
        RootNotRegistered = 4,
        UserDefinedError = 5, ///< a handler returned false
        UnexpectedEndOfStream = 6,
        InvalidStream = 7,
        HexadecimalCodeNotSupported = 8,
        MissingElementName = 9,
        MissingAttributeName = 10,
        InvalidCode = 11,
        UnsupportedSyntax = 12 ///< in the strict syntax only
    };

    /// Ok, line and column -1, no expected symbol.
    StreamerError();
    StreamerError(StreamerError const&);
    StreamerError(StreamerError&&) noexcept;
    StreamerError& operator=(StreamerError const&);
    StreamerError& operator=(StreamerError&&) noexcept;
    ~StreamerError();

    ResultCode GetErrorCode() const noexcept;
    /// From 1 for an unexpected end and for UnsupportedSyntax, otherwise -1; XMLStreamer::GetParserResult has the
    /// place.
    int GetLine() const noexcept;
    int GetColumn() const noexcept;
    /// What the reader expected where it failed, in Windows-1252; empty when there is nothing to name.
    std::string const& GetExpectedSymbol() const noexcept;
    /// The code's text, German and in Windows-1252.
    char const* GetDescription() const noexcept;

private:
    friend class XMLStreamer;
    friend class XMLStructureElement;

    void RaiseError(ResultCode code, int line, int column, std::string const& expectedSymbol);

    ResultCode m_code = Ok;
    int m_line = -1;
    int m_column = -1;
    std::string m_expectedSymbol;
};

} // namespace Vek::Framework::IXMLStreamer::Native

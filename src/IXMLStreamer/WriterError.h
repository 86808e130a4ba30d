#pragma once

#include <VekApi.h>

namespace Vek::Framework::IXMLStreamer::Native
{

/// Why XMLWriter refused an operation. A plain value, copied freely.
class VEK_API WriterError
{
public:
    /// Codes are appended, never renumbered.
    enum ResultCode : unsigned int
    {
        Ok = 0,
        NoRootElement = 1,
        MoreThanOneRootElement = 2,
        NotInitialised = 3, ///< no StartWriting yet, or none since FinishWriting
        ContentElementAsRoot = 4,
        TooFewStructuresEnded = 5,
        RootAlreadyEnded = 6,
        EmptyName = 7,       ///< of a structure element or an attribute
        NestedOperation = 8, ///< called while another operation runs, or an emitter called outside its own
    };

    /// Ok, line and column -1.
    WriterError() noexcept;

    ResultCode GetErrorCode() const noexcept;
    /// Always -1: a writer fails at calls, not at places of a text.
    int GetLine() const noexcept;
    int GetColumn() const noexcept;
    /// The code's text, German and in Windows-1252; "" for RootAlreadyEnded and EmptyName, which have none.
    char const* GetDescription() const noexcept;

private:
    friend class XMLWriter;

    void RaiseError(ResultCode code, int line, int column) noexcept;

    ResultCode m_code = Ok;
    int m_line = -1;
    int m_column = -1;
};

} // namespace Vek::Framework::IXMLStreamer::Native

#pragma once

#include <VekApi.h>

namespace Vek::Framework::IParser::Native
{

/// How a run of a StateParser ended: code, state and the place in the source.
class VEK_API ParserResult
{
public:
    /// StateParser itself ends with Ok or InvalidSyntax only; the other codes are there for callers.
    /// Codes are appended, never renumbered.
    enum ResultCode : unsigned int
    {
        Ok = 0,
        SourceNotReadable = 1,
        InvalidSyntax = 2,
        TextConsumerNotRegistered = 3,
        NumberConsumerNotRegistered = 4,
        StateAlreadyRegistered = 5,
        NoStatesRegistered = 6,
        UnknownState = 7,
        NoTokensRegistered = 8,
        NestedStateStackEmpty = 9,
        NestedStateStackNotEmpty = 10
    };

    /// The result before any run: Ok, all bits set in the other fields.
    ParserResult() noexcept;
    ParserResult(ResultCode resultCode, unsigned int stateId, int line, int column) noexcept;

    /// True for Ok and nothing else.
    bool IsSuccess() const noexcept;

    /// The code's text in Windows-1252, German where users see it; "" for a value that is no code.
    char const* GetDescription() const noexcept;

    ResultCode resultCode;
    unsigned int stateId; ///< the state that was current when processing ended
    int line;             ///< from 1; a line ends behind its line feed
    int column;           ///< from 1, in bytes; tab and carriage return count as one
};

} // namespace Vek::Framework::IParser::Native

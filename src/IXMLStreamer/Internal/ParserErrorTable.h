#pragma once

#include <IParser/ParserResult.h>
#include <IXMLStreamer/Internal/ExpectedSymbols.h>
#include <IXMLStreamer/Internal/ReaderStates.h>
#include <IXMLStreamer/StreamerError.h>

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

struct ParserError
{
    StreamerError::ResultCode code = StreamerError::Ok;
    char const* expectedSymbol = "";
};

/// What a text means that came where the state takes none.
constexpr ParserError FindTextError(unsigned int stateId)
{
    switch (stateId)
    {
    case DocumentStart:
        return { StreamerError::InvalidStream, c_declarationStart };
    case Declaration:
        return { StreamerError::InvalidStream, c_version };
    case DeclarationEnd:
        return { StreamerError::InvalidStream, c_declarationEnd };
    case ElementLevel:
        return { StreamerError::InvalidSyntax, c_elementOrComment };
    case AttributeName:
        return { StreamerError::InvalidSyntax, c_equalsSign };
    case ValueStart:
        return { StreamerError::InvalidSyntax, c_quote };
    case ContentEnd:
        return { StreamerError::InvalidSyntax, c_slash };
    case EndTagEnd:
        return { StreamerError::InvalidSyntax, c_tagEnd };
    case AfterRoot:
        return { StreamerError::InvalidSyntax, c_endOrComment };
    default:
        return {};
    }
}

/// What the strict syntax expects where it refuses a text; empty where there is nothing to name.
constexpr char const* FindStrictExpectation(unsigned int stateId)
{
    switch (stateId)
    {
    case DocumentStart:
        return c_strictDeclarationStart;
    case Undescribed:
        return c_elementOrComment;
    case AfterValue:
        return c_tagEnd;
    default:
        return FindTextError(stateId).expectedSymbol;
    }
}

/// The reader's error for a parser result that left no error of its own, over the whole range of parser results; code
/// Ok where there is nothing to say. StateParser itself ends with Ok (the source ended too early) or InvalidSyntax
/// only.
constexpr ParserError FindParserError(IParser::Native::ParserResult::ResultCode result, unsigned int stateId)
{
    using IParser::Native::ParserResult;
    switch (result)
    {
    case ParserResult::Ok:
    case ParserResult::NestedStateStackNotEmpty:
        return { StreamerError::UnexpectedEndOfStream, "" };
    case ParserResult::SourceNotReadable:
        return { StreamerError::InvalidStream, "" };
    case ParserResult::TextConsumerNotRegistered:
    case ParserResult::NumberConsumerNotRegistered:
        return FindTextError(stateId);
    default:
        return {};
    }
}

} // namespace Vek::Framework::IXMLStreamer::Native::Internal

#pragma once

namespace Vek::Framework::IXMLStreamer::Native::Internal
{

/// The states of the reader's parser.
enum ReaderState : unsigned int
{
    DocumentStart = 0,
    Declaration = 1,
    DeclarationEnd = 2,
    ElementLevel = 3,
    TagStart = 4,
    StartTag = 5,
    AttributeName = 6,
    ValueStart = 7,
    SingleQuotedValue = 8,
    DoubleQuotedValue = 9,
    Undescribed = 10, ///< inside an element without description
    Content = 11,
    ContentEnd = 12,
    EndTagName = 13,
    EndTagEnd = 14,
    AfterRoot = 15,
    Comment = 16,
    NamedCode = 17,
    NumericCode = 18,
    HexadecimalCode = 19, ///< never entered: such a code is refused where it begins
    AfterValue = 20       ///< of an attribute, in the strict syntax only
};

} // namespace Vek::Framework::IXMLStreamer::Native::Internal

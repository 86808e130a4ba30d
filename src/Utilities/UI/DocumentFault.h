#pragma once

#include <Utilities/UI/Control.h>

#include <string>

namespace Vek::Framework::Utilities::UI
{

/// Why a document was not read, and where.
struct DocumentFault
{
    unsigned int code = 0;
    int line = -1;           // from 1; -1 for none
    int column = -1;         // from 1; -1 for none
    std::string description; // German, in Windows-1252
    std::string expected;    // in Windows-1252; empty when nothing particular was expected
};

/// Of the error of an XMLStreamer. A template, since this folder knows nothing of reading XML.
template <class Error>
DocumentFault ToDocumentFault(Error const& error)
{
    return { static_cast<unsigned int>(error.GetErrorCode()), error.GetLine(), error.GetColumn(),
             error.GetDescription(), error.GetExpectedSymbol() };
}

/// In German, with the document's name, the description, its code, line and column, and what was expected there.
VEK_API std::wstring FormatDocumentFault(std::wstring const& document, DocumentFault const& fault);

/// Shows that in a message box and waits until the user has read it. `owner` may be without handle.
VEK_API void ShowDocumentFault(Control const& owner, std::wstring const& title, std::wstring const& document,
                               DocumentFault const& fault);

} // namespace Vek::Framework::Utilities::UI

#pragma once

#include "Invoice.h"

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace Invoicing
{

/// Why a document was not read, and where.
struct DocumentFault
{
    /// Up to 99 the codes of StreamerError, whose text is the library's; appended, never renumbered.
    enum Code : unsigned int
    {
        NotReadable = 100, ///< the stream or the file
        UnknownVersion = 101,
        UnknownContent = 102, ///< an element or attribute that the format version does not have
        MissingValue = 103,
        InvalidValue = 104,
        DuplicateNumber = 105,
    };

    unsigned int code = 0;
    std::wstring text; ///< German
    int line = -1;     ///< from 1; -1 where there is no place
    int column = -1;   ///< from 1, in bytes
    std::wstring path; ///< the open elements: /invoiceBook/invoice
};

/// Several lines for a message: what is wrong with the document of that name, code and place.
std::wstring FormatDocumentFault(std::wstring const& documentName, DocumentFault const& fault);

/// The file format:
///
///     <?xml version="1.0"?>
///     <invoiceBook version="2">
///         <invoice number="2024-001" customer="Huber" date="2024-01-15" terms="invoiceDate" days="30"
///             paidOn="2024-02-01">
///             <line net="1200.00" taxRate="20">Beratung</line>
///
/// Version 2 is written, 1 and 2 are read; version 1 has no paidOn. Windows-1252; the syntax is strict, and nothing is
/// passed over that writing would lose.
class BookDocument
{
public:
    BookDocument() = delete;

    static constexpr unsigned int c_version = 2;

    /// False leaves `invoices` as they were.
    static bool TryRead(std::istream& stream, std::vector<Invoice>& invoices, DocumentFault& fault);

    /// False when the stream does not take all of it. Throws ArgumentException for a text that the document cannot
    /// hold, which TryReadText lets nobody enter.
    static bool TryWrite(std::ostream& stream, std::vector<Invoice> const& invoices);
};

} // namespace Invoicing

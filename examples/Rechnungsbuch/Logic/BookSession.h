#pragma once

#include "BookDocument.h"
#include "InvoiceBook.h"
#include "PrintTemplates.h"

#include <Utilities/Logger.h>

#include <sstream>
#include <string>
#include <vector>

namespace Invoicing
{

/// The book that a program has open, with its file and the print templates beside it. What happens is logged, and
/// measured as "Laden" and "Speichern".
class BookSession
{
public:
    /// `log` must outlive the session. The book begins empty, without a file, and as saved.
    explicit BookSession(Vek::Framework::Utilities::Logger& log);
    BookSession(BookSession const&) = delete;
    BookSession& operator=(BookSession const&) = delete;
    ~BookSession();

    InvoiceBook& GetBook() noexcept { return m_book; }
    InvoiceBook const& GetBook() const noexcept { return m_book; }
    /// Read when a book is opened, beside it; what cannot be read there is logged and replaced by the standard alone.
    PrintTemplates& GetTemplates() noexcept { return m_templates; }

    /// Empty as long as the book has none.
    std::wstring const& GetPath() const noexcept { return m_path; }
    /// For the caption: "Rechnungen.xml * - Rechnungsbuch", with the star when there is something to be saved.
    std::wstring GetCaption() const;
    bool IsSaved() const noexcept { return m_book.GetHistory().IsSaved(); }

    /// An empty book, or the sample, without a file.
    void StartEmpty();
    void StartWithSample(VekSysBase::VekDateEx const& today);

    /// False leaves book, history and path as they are.
    bool TryOpen(std::wstring const& path, DocumentFault& fault);

    /// Replaces the file at `path`, which is the book's from then on, by the book, or leaves it as it is: never
    /// anything between. False when that fails, with a German text for the user; the book still counts as not saved and
    /// the path stays.
    bool TrySave(std::wstring const& path, std::wstring& message);

    /// The same with another place to compose the document in; the tests take one that is full at some time.
    bool TrySave(std::wstring const& path, std::stringbuf& buffer, std::wstring& message);

    /// Beside the book, so also when that was saved at another path. False with a German text, also when the book has
    /// no file yet.
    bool TrySaveTemplates(std::wstring& message);

private:
    void Start(std::vector<Invoice> invoices, std::wstring path, PrintTemplates templates);

    Vek::Framework::Utilities::Logger& m_log;
    InvoiceBook m_book;
    PrintTemplates m_templates;
    std::wstring m_path;
};

} // namespace Invoicing

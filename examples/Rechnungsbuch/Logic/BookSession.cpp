#include "BookSession.h"

#include "FileTarget.h"
#include "SampleBook.h"

#include <Utilities/FileHelper.h>
#include <Utilities/MemoryInputStream.h>
#include <Utilities/TimeMeasure.h>

#include <utility>

using namespace Vek::Framework::Utilities;

namespace Invoicing
{

namespace
{

bool TryReadFile(std::wstring const& path, std::vector<Invoice>& invoices, DocumentFault& fault)
{
    auto const bytes = FileHelper::ReadBinary(path);
    if (bytes == nullptr)
    {
        fault = { DocumentFault::NotReadable,
                  L"Die Datei ist nicht vorhanden oder wird von einem anderen Programm verwendet.",
                  -1,
                  -1,
                  {} };
        return false;
    }
    MemoryInputStream stream(bytes->GetData(), bytes->GetSize());
    return BookDocument::TryRead(stream, invoices, fault);
}

} // namespace

BookSession::BookSession(Logger& log) : m_log(log)
{
}

BookSession::~BookSession() = default;

std::wstring BookSession::GetCaption() const
{
    std::wstring const name = m_path.empty() ? L"Unbenannt" : GetFileName(m_path);
    return name + (IsSaved() ? L" - Rechnungsbuch" : L" * - Rechnungsbuch");
}

void BookSession::StartEmpty()
{
    Start({}, {}, {});
}

void BookSession::StartWithSample(VekSysBase::VekDateEx const& today)
{
    Start(MakeSampleInvoices(today), {}, {});
}

void BookSession::Start(std::vector<Invoice> invoices, std::wstring path, PrintTemplates templates)
{
    m_path = std::move(path);
    m_templates = std::move(templates);
    m_book.Reset(std::move(invoices));
}

bool BookSession::TryOpen(std::wstring const& path, DocumentFault& fault)
{
    TimeMeasure const measure("Laden");
    std::vector<Invoice> invoices;
    if (!TryReadFile(path, invoices, fault))
    {
        m_log.Error(FormatDocumentFault(path, fault));
        return false;
    }
    PrintTemplates templates;
    auto const result = templates.Load(PrintTemplates::GetPath(path));
    if (!result.IsSuccess())
        m_log.Warn(L"Die Druckvorlagen werden nicht verwendet. " + result.text);
    m_log.Info(L"Ge\u00f6ffnet: " + path + L", Rechnungen: " + std::to_wstring(invoices.size()));
    Start(std::move(invoices), path, std::move(templates));
    return true;
}

bool BookSession::TrySave(std::wstring const& path, std::wstring& message)
{
    std::stringbuf buffer;
    return TrySave(path, buffer, message);
}

bool BookSession::TrySave(std::wstring const& path, std::stringbuf& buffer, std::wstring& message)
{
    TimeMeasure const measure("Speichern");
    std::wstring saved = path;
    std::ostream stream(&buffer);
    bool isSaved = BookDocument::TryWrite(stream, m_book.GetInvoices());
    if (!isSaved)
        message = L"\u201e" + GetFileName(path) + L"\u201c kann nicht gespeichert werden. Der Speicher reicht nicht.";
    isSaved = isSaved && TryReplaceFile(path, buffer.view(), message);
    if (!isSaved)
    {
        m_log.Error(path + L": " + message);
        return false;
    }
    m_path.swap(saved);
    m_book.MarkSaved();
    m_log.Info(L"Gespeichert: " + m_path + L", Rechnungen: " + std::to_wstring(m_book.GetInvoices().size()));
    return true;
}

bool BookSession::TrySaveTemplates(std::wstring& message)
{
    if (m_path.empty())
    {
        message = L"Die Druckvorlagen stehen neben dem Rechnungsbuch: Speichern Sie zuerst das Buch.";
        return false;
    }
    auto const result = m_templates.Save(PrintTemplates::GetPath(m_path));
    if (!result.IsSuccess())
    {
        message = L"Die Druckvorlagen k\u00f6nnen nicht gespeichert werden. " + result.text;
        m_log.Error(message);
    }
    return result.IsSuccess();
}

} // namespace Invoicing

#include <Utilities/UI/DocumentFault.h>

#include <Platform/Windows/WindowsHeader.h>

namespace Vek::Framework::Utilities::UI
{

namespace
{

constexpr UINT c_windows1252 = 1252;

std::wstring Widen(std::string const& text)
{
    int const size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    MultiByteToWideChar(c_windows1252, 0, text.data(), size, wide.data(), size);
    return wide;
}

} // namespace

std::wstring FormatDocumentFault(std::wstring const& document, DocumentFault const& fault)
{
    std::wstring text = L"\u201E" + document + L"\u201C kann nicht gelesen werden.\n\n";
    if (fault.line >= 0)
    {
        text += L"Zeile " + std::to_wstring(fault.line);
        if (fault.column >= 0)
            text += L", Spalte " + std::to_wstring(fault.column);
        text += L":\n";
    }
    text += Widen(fault.description) + L" (Fehler " + std::to_wstring(fault.code) + L")";
    if (!fault.expected.empty())
        text += L"\nErwartet: " + Widen(fault.expected);
    return text;
}

void ShowDocumentFault(Control const& owner, std::wstring const& title, std::wstring const& document,
                       DocumentFault const& fault)
{
    MessageBoxW(owner.IsValid() ? owner.GetHandle() : nullptr, FormatDocumentFault(document, fault).c_str(),
                title.c_str(), MB_OK | MB_ICONERROR);
}

} // namespace Vek::Framework::Utilities::UI

#include "FieldInput.h"

#include "InvoiceBook.h"

#include <SysBase/VekDateText.h>
#include <Utilities/AmountText.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>

using namespace Vek::Framework::Utilities;
using VekSysBase::VekDateEx;

namespace Invoicing
{

namespace
{

bool Fail(InputFault& fault, std::size_t position, std::wstring const& text)
{
    fault = { position, text };
    return false;
}

std::wstring Quote(std::wstring const& text, std::size_t position)
{
    // A surrogate pair is one character for the user.
    std::size_t const size = WStringHelper::IsNextCodeUnitConnected(text[position]) ? 2 : 1;
    return L"\u201e" + text.substr(position, size) + L"\u201c";
}

// C1 as well: Windows-1252 stands for five of them with bytes that are no characters.
bool IsControl(wchar_t unit)
{
    return unit < L' ' || (unit >= 0x7F && unit <= 0x9F);
}

std::wstring Describe(std::wstring const& text, AmountFault const& fault)
{
    switch (fault.error)
    {
    case AmountError::MissingDigit:
        return text.empty() ? L"Der Betrag fehlt." : L"Am Ende fehlt eine Ziffer.";
    case AmountError::WrongGroup:
        return L"Vor und hinter einem Tausenderpunkt stehen Gruppen von drei Ziffern; die Cent stehen hinter einem "
               L"Komma.";
    case AmountError::MixedGrouping:
        return L"Hier steht ein anderes Tausenderzeichen als vorher.";
    case AmountError::MissingComma:
        return L"Das Komma fehlt: Sind Tausend gemeint oder Tausendstel?";
    case AmountError::TooManyDigits:
        return L"Das sind zu viele Ziffern.";
    default:
        return Quote(text, fault.position) + L" kann in einem Betrag hier nicht stehen.";
    }
}

std::wstring Describe(std::wstring const& text, DateTextFault const& fault)
{
    switch (fault.error)
    {
    case DateTextError::MissingUnit:
        return text.empty() ? L"Das Datum fehlt." : L"Das Datum ist nicht vollst\u00e4ndig.";
    case DateTextError::ShortYear:
        return L"Das Jahr hat vier Ziffern.";
    case DateTextError::OutOfRange:
        return L"Diesen Tag gibt es nicht.";
    default:
        return Quote(text, fault.position) + L" kann in einem Datum wie 5.3.2024 hier nicht stehen.";
    }
}

// The amount with so many fraction digits, filled up by zeros.
bool TryReadDecimal(std::wstring const& text, Decimal& value, InputFault& fault)
{
    Decimal read;
    AmountFault amountFault;
    if (!TryParseAmount(text, read, amountFault))
        return Fail(fault, amountFault.position, Describe(text, amountFault));
    if (int const excess = read.GetFractionalDigits() - 2; excess > 0)
        return Fail(fault, text.size() - static_cast<std::size_t>(excess),
                    L"Hinter dem Komma stehen h\u00f6chstens zwei Ziffern.");
    value = read.Round(2, RoundMode::HalfAwayFromZero, true);
    return true;
}

std::wstring WithoutPercent(std::wstring text)
{
    if (text.ends_with(L'%'))
        text.pop_back();
    text.erase(text.find_last_not_of(L' ') + 1);
    return text;
}

} // namespace

bool TryReadText(std::wstring const& text, std::wstring const& name, std::wstring& value, InputFault& fault)
{
    std::size_t const first = text.find_first_not_of(L' ');
    if (first == std::wstring::npos)
        return Fail(fault, 0, name + L" fehlt.");
    auto const control = std::find_if(text.begin(), text.end(), IsControl);
    if (control != text.end())
        return Fail(fault, static_cast<std::size_t>(control - text.begin()),
                    L"Steuerzeichen und Zeilenumbr\u00fcche sind nicht erlaubt.");
    std::string bytes;
    unsigned long long position = 0;
    if (!WStringHelper::TryGetWindows1252FromUTF16(text, bytes, position))
        return Fail(fault, position,
                    L"Das Zeichen " + Quote(text, position) + L" kann nicht gespeichert werden (Windows-1252).");
    value = text.substr(first, text.find_last_not_of(L' ') + 1 - first);
    return true;
}

bool TryReadNumber(std::wstring const& text, InvoiceBook const& book, std::wstring const& own, std::wstring& value,
                   InputFault& fault)
{
    std::wstring read;
    if (!TryReadText(text, L"Die Rechnungsnummer", read, fault))
        return false;
    if (book.Find(read) != nullptr && !WStringHelper::EqualsIgnoreCase(read, own))
        return Fail(fault, 0, L"Die Rechnungsnummer \u201e" + read + L"\u201c ist schon vergeben.");
    value = read;
    return true;
}

bool TryReadAmount(std::wstring const& text, Decimal& amount, InputFault& fault)
{
    Decimal read;
    if (!TryReadDecimal(text, read, fault))
        return false;
    if (!IsAmount(read))
        return Fail(fault, 0, L"Ein Betrag hat h\u00f6chstens neun Ziffern vor dem Komma.");
    amount = read;
    return true;
}

bool IsAmount(Decimal const& amount)
{
    return amount < Decimal(1, 9) && amount > Decimal(-1, 9);
}

bool IsTaxRate(Decimal const& percent)
{
    return percent >= 0 && percent <= 100;
}

bool TryReadTaxRate(std::wstring const& text, Decimal& percent, InputFault& fault)
{
    std::wstring const number = WithoutPercent(text);
    if (number.empty())
        return Fail(fault, 0, L"Der Steuersatz fehlt.");
    Decimal read;
    if (!TryReadDecimal(number, read, fault))
        return false;
    if (!IsTaxRate(read))
        return Fail(fault, 0, L"Ein Steuersatz liegt zwischen 0 und 100 %.");
    percent = read;
    return true;
}

bool TryReadDate(std::wstring const& text, VekDateEx& date, InputFault& fault)
{
    VekDateEx read;
    DateTextFault dateFault;
    if (text.empty())
        return Fail(fault, 0, L"Das Datum fehlt.");
    if (!VekSysBase::TryParseGerman(text, read, dateFault))
        return Fail(fault, dateFault.position, Describe(text, dateFault));
    if (read.GetYear() < c_first_year || read.GetYear() > c_last_year)
        return Fail(fault, text.rfind(L'.') + 1, L"Das Jahr liegt zwischen 1900 und 2199.");
    date = read;
    return true;
}

bool TryReadOptionalDate(std::wstring const& text, VekDateEx& date, InputFault& fault)
{
    if (!text.empty())
        return TryReadDate(text, date, fault);
    date = VekDateEx();
    return true;
}

std::wstring FormatTaxRate(Decimal const& percent)
{
    return percent.Round(2, RoundMode::HalfAwayFromZero, false).ToString(L',');
}

} // namespace Invoicing

#include "Options.h"

#include "FieldInput.h"
#include "Files.h"

#include <SysBase/Heute.h>
#include <Utilities/WStringHelper.h>

#include <set>

using Vek::Framework::Utilities::WStringHelper;

namespace Invoicing
{

namespace
{

[[noreturn]] void Fail(std::wstring const& text)
{
    throw Example::DocumentError(WStringHelper::GetUTF8FromUTF16(text));
}

class OptionReader
{
public:
    explicit OptionReader(std::vector<std::wstring> const& arguments) : m_arguments(arguments) {}

    Options Read()
    {
        while (m_next < m_arguments.size())
            ReadArgument(m_arguments[m_next++]);
        if (m_options.file.empty())
            Fail(L"Aufruf: RechnungsbuchReport FILE [--filter F] [--csv OUT] [--date D], oder --help");
        if (m_options.today.IsZero())
            m_options.today = VekSysBase::Heute();
        return m_options;
    }

private:
    void ReadArgument(std::wstring const& argument)
    {
        if (argument.starts_with(L"--") && !m_seen.insert(argument).second)
            Fail(argument + L" steht zweimal da.");
        if (argument == L"--filter")
            m_options.filter = TakeValue(argument);
        else if (argument == L"--csv")
            m_options.csv = TakeValue(argument);
        else if (argument == L"--date")
            ReadToday(TakeValue(argument));
        else if (argument.starts_with(L"--"))
            Fail(L"Die Option " + argument + L" gibt es nicht.");
        else if (!m_options.file.empty())
            Fail(L"Nur eine Datei kann gelesen werden, nicht auch " + argument + L".");
        else
            m_options.file = argument;
    }

    std::wstring const& TakeValue(std::wstring const& option)
    {
        if (m_next == m_arguments.size())
            Fail(L"Hinter " + option + L" fehlt der Wert.");
        return m_arguments[m_next++];
    }

    void ReadToday(std::wstring const& text)
    {
        InputFault fault;
        if (!TryReadDate(text, m_options.today, fault))
            Fail(L"--date, Stelle " + std::to_wstring(fault.position + 1) + L": " + fault.text);
    }

    std::vector<std::wstring> const& m_arguments;
    std::size_t m_next = 0;
    std::set<std::wstring> m_seen;
    Options m_options;
};

} // namespace

Options ReadOptions(std::vector<std::wstring> const& arguments)
{
    return OptionReader(arguments).Read();
}

} // namespace Invoicing

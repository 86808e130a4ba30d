#include "Options.h"

#include "Files.h"

#include <Utilities/WStringHelper.h>

#include <charconv>

using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

template <class Number>
Number ReadNumber(std::wstring const& wide)
{
    std::string const text = WStringHelper::GetUTF8FromUTF16(wide);
    Number number{};
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number < Number{})
        throw DocumentError("\"" + text + "\" is no number from 0");
    return number;
}

} // namespace

Options ReadOptions(std::vector<std::wstring> const& arguments)
{
    if (arguments.size() < 3 || arguments.size() % 2 == 0)
        throw DocumentError("usage: BatchReport ROWS SEED FOLDER [--clock NANOSECONDS] [--stop-after ROWS], or --help");
    Options options;
    options.job.rows = ReadNumber<long long>(arguments[0]);
    options.job.seed = ReadNumber<std::uint64_t>(arguments[1]);
    options.job.folder = ToPath(arguments[2]);
    options.logPath = arguments[2] + L"/batch.log";
    for (std::size_t at = 3; at < arguments.size(); at += 2)
    {
        if (arguments[at] == L"--clock")
            options.clockStep = ReadNumber<long long>(arguments[at + 1]);
        else if (arguments[at] == L"--stop-after")
            options.stopAfter = ReadNumber<long long>(arguments[at + 1]);
        else
            throw DocumentError(WStringHelper::GetUTF8FromUTF16(arguments[at]) + " is no option");
    }
    return options;
}

} // namespace Example

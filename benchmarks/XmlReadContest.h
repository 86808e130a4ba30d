#pragma once

#include "Contest.h"
#include "SettingsText.h"

#include <string>

namespace Benchmarks
{

/// A settings document of 10 or 100 MB (Codes::Few), made when a benchmark that reads it runs.
inline std::string const& GetDocument(std::size_t megabytes, Codes codes)
{
    auto const make = [](std::size_t size, Codes kind) { return c_declaration + MakeBody(MakeGroups(size, kind)); };
    if (codes == Codes::Many)
    {
        static std::string const s_many10 = make(10'000'000, Codes::Many);
        return s_many10;
    }
    if (megabytes == 100)
    {
        static std::string const s_few100 = make(100'000'000, Codes::Few);
        return s_few100;
    }
    static std::string const s_few10 = make(10'000'000, Codes::Few);
    return s_few10;
}

struct DocumentSize
{
    std::size_t megabytes;
    Codes codes;
};

inline void Report(benchmark::State& state, DocumentSize const& size)
{
    Report(state, GetDocument(size.megabytes, size.codes).size());
}

/// `read` counts what the document holds.
template <class Read>
void RegisterReader(std::string const& contestant, std::size_t megabytes, Codes codes, Read const& read)
{
    std::string const workload = codes == Codes::Many ? "XmlReadCodes" : "XmlRead";
    Register(workload + std::to_string(megabytes) + "MB/" + contestant, DocumentSize{ megabytes, codes },
             [=] { return read(GetDocument(megabytes, codes)); });
}

} // namespace Benchmarks

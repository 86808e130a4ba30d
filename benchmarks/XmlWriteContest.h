#pragma once

#include "SettingsText.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <streambuf>
#include <vector>

namespace Benchmarks
{

/// The settings of a document of 10 MB.
inline std::vector<Group> const& GetGroups()
{
    static std::vector<Group> const s_groups = []
    {
        std::vector<Group> made = MakeGroups(10'000'000, Codes::Few);
        for (Group& group : made)
            for (Setting& setting : group.settings)
                if (setting.value == "A4 &amp; A3")
                    setting.value = "A4 & A3"; // the writers escape
        return made;
    }();
    return s_groups;
}

/// Counts bytes and drops them, so that the writers are measured and not the memory they write to.
class CountingBuffer : public std::streambuf
{
protected:
    std::streamsize xsputn(char const* text, std::streamsize size) override
    {
        benchmark::DoNotOptimize(text);
        m_size += size;
        return size;
    }
    int_type overflow(int_type c) override
    {
        ++m_size;
        return traits_type::not_eof(c);
    }
    pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override { return m_size; }

private:
    std::streamsize m_size = 0;
};

/// `write` answers how many bytes it has written.
template <class Write>
void RunWriter(benchmark::State& state, Write const& write)
{
    std::size_t size = write(); // its values are made here
    if (size < 8'000'000)
        state.SkipWithError("wrote too little");
    for (auto _ : state)
        size = write();
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * static_cast<std::int64_t>(state.iterations()));
}

} // namespace Benchmarks

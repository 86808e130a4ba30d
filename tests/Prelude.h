#pragma once

#include <Exceptions/ArgumentException.h>
#include <Exceptions/EnumOutOfRangeException.h>
#include <Exceptions/InvalidStateException.h>
#include <Exceptions/NullPointerException.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <tuple>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

// What every test begins with: GoogleTest, what tests use of the standard library, and the exceptions that most of them
// expect; read once where it is precompiled.

/// A table, whose columns get their names where it is walked:
/// `Rows<int, char const*> const rows = { { 1, "one" } }; for (auto const& [number, why] : rows)`.
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;

/// The text of the exception of exactly this type that `action` throws; else what it did instead.
template <class E>
std::string MessageOf(std::function<void()> const& action)
{
    try
    {
        action();
    }
    catch (E const& caught)
    {
        return typeid(caught) == typeid(E) ? caught.what() : "a class derived from it";
    }
    catch (std::exception const& other)
    {
        return std::string("another type: ") + other.what();
    }
    return "nothing thrown";
}

namespace Tests
{

/// Names a row of a table in every failure below it, and also when the row throws: GoogleTest has forgotten its traces
/// by the time it reports an exception.
class RowTrace
{
public:
    template <class T>
    RowTrace(char const* file, int line, T const& name) : m_trace(file, line, name),
                                                          m_file(file),
                                                          m_line(line)
    {
    }
    RowTrace(RowTrace const&) = delete;
    RowTrace& operator=(RowTrace const&) = delete;

    ~RowTrace()
    {
        if (std::uncaught_exceptions() > m_exceptions)
            ADD_FAILURE_AT(m_file, m_line) << "This row threw";
    }

private:
    testing::ScopedTrace m_trace;
    char const* m_file;
    int m_line;
    int m_exceptions = std::uncaught_exceptions();
};

} // namespace Tests

#undef SCOPED_TRACE
#define SCOPED_TRACE(name) ::Tests::RowTrace const GTEST_CONCAT_TOKEN_(rowTrace, __LINE__)(__FILE__, __LINE__, (name))

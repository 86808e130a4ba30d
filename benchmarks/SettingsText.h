#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Benchmarks
{

/// What a settings document holds. The same every time, so that all contestants have the same work.
struct Setting
{
    std::string name;
    std::string type;
    std::string value;
};

struct Group
{
    std::string name;
    std::string id;
    std::vector<Setting> settings;
};

enum class Codes
{
    Few, ///< now and then one of the five codes of XML
    Many ///< German texts in ASCII, every umlaut a named code; only in content
};

/// Groups that make a document of about `size` bytes.
std::vector<Group> MakeGroups(std::size_t size, Codes codes);

/// The document without its declaration, indented by tabs.
std::string MakeBody(std::vector<Group> const& groups);

/// The same with groups in groups, four deep.
std::string MakeNestedBody(std::vector<Group> const& groups);

extern char const c_declaration[];

/// A reader's count of what it was told; equal for all contestants.
struct Totals
{
    std::size_t elements = 0;
    std::size_t attributes = 0;
    std::size_t nameBytes = 0;
    std::size_t valueBytes = 0;
    std::size_t contentBytes = 0;

    bool operator==(Totals const&) const = default;
};

} // namespace Benchmarks

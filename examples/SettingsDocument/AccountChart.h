#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace Example
{

struct Account
{
    std::string id;
    std::string parentId; ///< empty for a top account
    std::wstring code;    ///< such as "020-029"; empty when the account only groups others
    std::wstring name;
};

/// Reads the accounts of a GnuCash account chart, in the order of the file.
/// Such a file is UTF-8. Throws DocumentError.
std::vector<Account> ReadAccounts(std::filesystem::path const& path);

/// Prints the accounts as a tree, two spaces per level, and their number.
/// Throws DocumentError, before it prints, when a parent is missing or accounts are their own parents.
void PrintAccountTree(std::vector<Account> const& accounts);

} // namespace Example

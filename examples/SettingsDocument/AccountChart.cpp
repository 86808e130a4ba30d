// Reads a file that another program wrote and that is much richer than what is needed here: only the elements of
// interest are described, everything else is passed over. Names with a colon are names like any other; what a prefix
// means to XML is not interpreted.

#include "AccountChart.h"

#include "Console.h"
#include "Document.h"

#include <IXMLStreamer/XMLContentElement.h>
#include <Utilities/WStringHelper.h>

#include <unordered_map>
#include <utility>

using namespace Vek::Framework::IXMLStreamer::Native;
using Vek::Framework::Utilities::WStringHelper;

namespace Example
{

namespace
{

void ChildBytes(XMLStructureElement& parent, char const* name, std::string& target)
{
    parent.CreateContentElement(name).SetOnDo(0,
                                              [&target](XMLContentElement const&, std::string const& content)
                                              {
                                                  target = content;
                                                  return true;
                                              });
}

// The reader hands out bytes as they stand in the file; whether they are UTF-8 is for the program to know.
void ChildUTF8(XMLStructureElement& parent, char const* name, std::wstring& target)
{
    parent.CreateContentElement(name).SetOnDo(
        0,
        [&target](XMLContentElement const&, std::string const& content)
        {
            try
            {
                target = WStringHelper::GetUTF16FromUTF8(content);
                return true;
            }
            catch (std::range_error const&)
            {
                return false; // ends the run, so that the report names the place of the bad bytes
            }
        });
}

struct TreeLine
{
    std::size_t account;
    std::size_t depth;
};

// Depth first, children in the order of the file. A stack instead of recursion: the depth is the file's choice.
std::vector<TreeLine> ArrangeTree(std::vector<Account> const& accounts)
{
    std::unordered_map<std::string, std::vector<std::size_t>> children;
    for (std::size_t index = accounts.size(); index-- > 0;)
        children[accounts[index].parentId].push_back(index); // last one first, as a stack wants it

    std::vector<TreeLine> lines;
    std::vector<TreeLine> open;
    for (std::size_t index : children[""])
        open.push_back({ index, 0 });
    while (!open.empty())
    {
        TreeLine const line = open.back();
        open.pop_back();
        lines.push_back(line);
        // Each list is taken once, so that an id used twice cannot print its children twice.
        for (std::size_t index : std::exchange(children[accounts[line.account].id], {}))
            open.push_back({ index, line.depth + 1 });
    }
    return lines;
}

} // namespace

std::vector<Account> ReadAccounts(std::filesystem::path const& path)
{
    XMLStreamer reader;
    Account current;
    std::vector<Account> accounts;

    XMLStructureElement& account =
        reader.CreateRootStructureElement("gnc-account-example").CreateStructureElement("gnc:account");
    ChildBytes(account, "act:id", current.id);
    ChildBytes(account, "act:parent", current.parentId);
    ChildUTF8(account, "act:code", current.code);
    ChildUTF8(account, "act:name", current.name);
    account.SetOnEnd(0,
                     [&current, &accounts](XMLStructureElement const&)
                     {
                         accounts.push_back(std::exchange(current, {}));
                         return true;
                     });
    ReadDocument(reader, path);
    return accounts;
}

void PrintAccountTree(std::vector<Account> const& accounts)
{
    std::vector<TreeLine> const lines = ArrangeTree(accounts);
    if (lines.size() != accounts.size())
        throw DocumentError("the account chart holds accounts that hang below no top account");
    for (TreeLine const& line : lines)
    {
        Account const& account = accounts[line.account];
        std::wstring const code = account.code.empty() ? L"" : account.code + L" ";
        PrintLine(std::wstring(2 * line.depth, L' ') + code + account.name);
    }
    PrintLine(std::to_wstring(accounts.size()) + L" accounts");
}

} // namespace Example

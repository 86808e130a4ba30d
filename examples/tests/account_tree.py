"""Prints the accounts of a GnuCash account chart as a tree, read by Python's own XML library."""
import sys
import xml.etree.ElementTree

ACT = "{http://www.gnucash.org/XML/act}"
GNC = "{http://www.gnucash.org/XML/gnc}"

accounts = xml.etree.ElementTree.parse(sys.argv[1]).getroot().findall(GNC + "account")
children = {}
for account in accounts:
    children.setdefault(account.findtext(ACT + "parent"), []).append(account)


def lines(parent, depth):
    for account in children.get(parent, []):
        code = account.findtext(ACT + "code")
        yield "  " * depth + (code + " " if code else "") + account.findtext(ACT + "name")
        yield from lines(account.findtext(ACT + "id"), depth + 1)


tree = list(lines(None, 0))
assert len(tree) == len(accounts), "accounts outside the tree"
sys.stdout.buffer.write("".join(line + "\n" for line in tree + [f"{len(accounts)} accounts"]).encode("utf-8"))

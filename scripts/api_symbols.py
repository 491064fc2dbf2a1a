"""Fails on a public symbol of the API reference without a comment, and says how many symbols there are.

usage: api_symbols.py FOLDER    # the XML that doxygen wrote

doxygen's own warnings leave out enumerators, default constructors, destructors, and what is in a namespace or a file
without a comment. An override counts as documented where what it overrides is: doxygen copies that comment.
"""

import pathlib
import sys
import xml.etree.ElementTree

NOT_SYMBOLS = ("dir", "file", "page")  # what is declared in a file is
SPEAKS_FOR_ITSELF = ("=default", "=delete")


def has_comment(element):
    parts = element.findall("briefdescription") + element.findall("detaileddescription")
    return any("".join(part.itertext()).strip() for part in parts)


def place(element):
    location = element.find("location")
    return f"{location.get('file')}:{location.get('line')}"


def members_of(compound):
    for member in compound.iter("memberdef"):
        speaks_for_itself = member.findtext("argsstring", "").endswith(SPEAKS_FOR_ITSELF)
        if member.get("prot") != "private" and not speaks_for_itself:
            yield member


def symbols_of(compound):
    """Yields the name, the place and the XML element of the compound itself and of all that it declares."""
    members = list(members_of(compound))
    only_holds_namespaces = compound.get("kind") == "namespace" and not members
    if compound.get("kind") not in NOT_SYMBOLS and compound.get("prot") != "private" and not only_holds_namespaces:
        yield compound.findtext("compoundname"), place(compound), compound
    for member in members:
        name = member.findtext("qualifiedname") or member.findtext("name")
        yield name, place(member), member
        for value in member.iter("enumvalue"):
            yield f"{name}::{value.findtext('name')}", place(member), value


def main():
    (folder,) = sys.argv[1:]
    compounds = [
        compound
        for path in sorted(pathlib.Path(folder).glob("*.xml"))
        for compound in xml.etree.ElementTree.parse(path).getroot().findall("compounddef")
    ]
    # What is in a namespace stands in the XML of its file too.
    symbols = {symbol[2].get("id"): symbol for compound in compounds for symbol in symbols_of(compound)}
    missing = [symbol for symbol in symbols.values() if not has_comment(symbol[2])]
    for name, where, _ in missing:
        print(f"{where}: {name} has no comment", file=sys.stderr)
    headers = sum(compound.findtext("compoundname").endswith(".h") for compound in compounds)
    print(f"api-reference: {len(symbols)} public symbols in {headers} headers, {len(missing)} of them without a comment")
    return 1 if missing or not symbols else 0


if __name__ == "__main__":
    sys.exit(main())

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the layer's wrappers, one for each function of the public header.

Usage: generate.py HEADER.xml INTERFACE.ini WRAPPERS.cpp TYPES.h

HEADER.xml is castxml's account of the header. INTERFACE.ini says what its types don't tell about parameters.
"""
import configparser
import sys
import xml.etree.ElementTree as ElementTree

KINDS = {"latin1": "Latin1", "utf8": "Utf8", "format": "Format", "position": "Position",
         "position-or-0": "PositionOrZero", "positions": "Positions", "unread": "Unread"}


def camel(name):
    return "".join(part.capitalize() for part in name.split("-"))


class Header:
    """The header's functions, with the C types as they are written there."""

    def __init__(self, file):
        root = ElementTree.parse(file).getroot()
        self.nodes = {node.get("id"): node for node in root if node.get("id")}
        self.functions = [node for node in root.iter("Function") if node.get("name").startswith("ZelGUI")]

    def type_name(self, identifier):
        node = self.nodes[identifier]
        if node.tag == "PointerType":
            return self.type_name(node.get("type")) + " *"
        if node.tag == "CvQualifiedType":
            return "const " + self.type_name(node.get("type"))
        if node.tag == "ElaboratedType":
            return self.type_name(node.get("type"))
        if node.tag in ("FundamentalType", "Typedef", "Struct"):
            return node.get("name")
        raise SystemExit(f"generate.py: no wrapper for a type of the kind {node.tag}")

    def parameters(self, function):
        return [(argument.get("name"), self.type_name(argument.get("type"))) for argument in function.iter("Argument")]


class Table:
    """What interface.ini says; every name in it has to exist in the header."""

    def __init__(self, file, header):
        self.sections = configparser.ConfigParser(delimiters="=", comment_prefixes=";")
        self.sections.optionxform = str
        self.sections.read_file(open(file, encoding="utf-8"))
        self.types = list(self.sections["types"])
        self.created = dict(self.sections["created by"])
        self.positions = dict(self.sections["callbacks with positions"])
        self.inert = self.sections["without effect"]["functions"].split()
        self.check(header)

    def check(self, header):
        functions = {node.get("name"): [name for name, _ in header.parameters(node)] for node in header.functions}
        special = ["types", "created by", "parameters", "callbacks with positions", "without effect"]
        own = [section for section in self.sections.sections() if section not in special]
        for name in own + list(self.created) + list(self.positions) + self.inert:
            if name not in functions:
                raise SystemExit(f"generate.py: the header has no function {name}")
        everywhere = {parameter for parameters in functions.values() for parameter in parameters}
        unknown = [name for name in self.sections["parameters"] if name not in everywhere]
        unknown += [f"{name}.{key}" for name in own for key in self.sections[name] if key not in functions[name]]
        if unknown:
            raise SystemExit(f"generate.py: the header has no parameter {', '.join(unknown)}")

    def parameter(self, function, name):
        """The C++ initialiser of one parameter's description."""
        words = self.sections["parameters"].get(name, "").split()
        if function in self.sections and name in self.sections[function]:
            words = self.sections[function][name].split()
        if function in self.inert:
            words = ["unread"]
        if not words:
            # A parameter of this name that the table forgets would silently not be checked.
            if name.lower().endswith("id"):
                raise SystemExit(f"generate.py: what kind of identifier is {name} of {function}?")
            kind = "PositionsCallback" if self.positions.get(function) == name else "Plain"
            return f'{{"{name}", Kind::{kind}}}'
        if words[0] == "id":
            types = self.types[1:] if words[1] == "any" else words[1:]
            bits = " | ".join(f"bit(ObjectType::{camel(self.known(word))})" for word in types)
            return f'{{"{name}", Kind::Identifier, {bits}}}'
        return f'{{"{name}", Kind::{KINDS[words[0]]}}}'

    def known(self, word):
        if word not in self.types:
            raise SystemExit(f"generate.py: there is no type {word}")
        return word


def wrapper(header, table, node):
    function = node.get("name")
    parameters = header.parameters(node)
    declared = ", ".join(f"{kind} {name}" for name, kind in parameters) or "void"
    described = ", ".join(table.parameter(function, name) for name, _ in parameters)
    passed = "".join(f", {name}" for name, _ in parameters)
    created = camel(table.known(table.created[function])) if function in table.created else "None"
    return f"""
{header.type_name(node.get("returns"))} {function}({declared})
{{
    static const Function function{{"{function}", ObjectType::{created}, {{{described}}}}};
    static const auto real = realFunction(&::{function}, function.name);
    return intercept(function, real, __builtin_return_address(0){passed});
}}
"""


def types(table):
    enumerators = ", ".join(camel(name) for name in table.types)
    creators = {name: [] for name in table.types}
    for function, name in table.created.items():
        creators[name].append(function)
    rows = "".join(f'    {{"{words}", "{" or ".join(creators[name])}"}},\n'
                   for name, words in table.sections["types"].items())
    return f"""// Generated by generate.py.
#ifndef ZELGUI_TRACE_TYPES_H
#define ZELGUI_TRACE_TYPES_H

namespace orvane::trace {{

/// What an identifier can name.
enum class ObjectType {{ {enumerators}, None }};

struct TypeText
{{
    const char *name;
    /// The functions that answer with identifiers of this type.
    const char *creators;
}};

constexpr TypeText typeTexts[] = {{
{rows}}};

}} // namespace orvane::trace

#endif
"""


def main():
    source, table_file, wrappers_file, types_file = sys.argv[1:]
    header = Header(source)
    table = Table(table_file, header)
    with open(wrappers_file, "w", encoding="utf-8") as output:
        output.write("// Generated by generate.py.\n#include \"intercept.h\"\n\nusing namespace orvane::trace;\n")
        output.writelines(wrapper(header, table, node) for node in header.functions)
    with open(types_file, "w", encoding="utf-8") as output:
        output.write(types(table))


main()

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the table behind functions.h: a row for each function.

Usage: table.py HEADER.xml INTERFACE.ini FUNCTIONS.cpp OBJECTTYPES.h
"""
import sys

from description import Description, camel


def parameter(each):
    def types(names):
        return " | ".join(f"bit(ObjectType::{camel(name)})" for name in names) or "0"

    kind = "Output" if each.is_output else camel(each.meaning)
    content = camel((each.told if each.meaning == "told" else each.meaning if each.is_output else "") or "none")
    optional = "true" if each.is_optional else "false"
    return (f'{{"{each.name}", Kind::{kind}, {types(each.accepted)}, {types(each.tolerated)}, Kind::{content}, '
            f"{optional}}}")


def row(function):
    flags = ", ".join("true" if flag else "false" for flag in (function.reports, function.is_inert))
    parameters = ",\n             ".join(parameter(each) for each in function.parameters)
    answer = "id" if function.created else function.answer or "none"
    return (f'        Row<decltype({function.name})>::describe(\n'
            f'            "{function.name}", ObjectType::{camel(function.created or "none")}, Kind::{camel(answer)}, '
            f"{function.neutral}, {function.without_gui}, {flags},\n"
            f"            {{{parameters}}}),\n")


def main():
    header, table, functions_file, types_file = sys.argv[1:]
    description = Description(header, table)
    with open(functions_file, "w", encoding="utf-8") as output:
        output.write("// Written by table.py.\n#include \"describe.h\"\n\nnamespace orvane::interface {\n\n"
                     "const std::vector<Function> &functions()\n{\n"
                     "    static const auto *const all = new std::vector<Function>{\n")
        output.writelines(row(function) for function in description.functions)
        output.write("    };\n    return *all;\n}\n\n} // namespace orvane::interface\n")
    with open(types_file, "w", encoding="utf-8") as output:
        output.write("// Written by table.py.\n#ifndef ZELGUI_INTERFACE_OBJECTTYPES_H\n"
                     "#define ZELGUI_INTERFACE_OBJECTTYPES_H\n\nnamespace orvane::interface {\n\n"
                     "/// What an identifier can name.\n"
                     f"enum class ObjectType {{ {', '.join(map(camel, description.types))}, None }};\n\n"
                     "struct TypeText\n{\n    const char *name;\n"
                     "    /// The functions that answer with identifiers of this type.\n    const char *creators;\n};\n\n"
                     "constexpr TypeText typeTexts[] = {\n")
        output.writelines(f'    {{"{text}", "{" or ".join(description.creators(name))}"}},\n'
                          for name, text in description.types.items())
        output.write("};\n\n} // namespace orvane::interface\n\n#endif\n")


main()

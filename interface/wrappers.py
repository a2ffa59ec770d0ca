#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes functions of the same names as the library's, to stand in front of it. What they do is told by "intercept.h",
which whoever compiles them has.

Usage: wrappers.py HEADER.xml INTERFACE.ini WRAPPERS.cpp
"""
import sys

from description import Description


def wrapper(index, function):
    declared = ", ".join(f"{each.c_type} {each.name}" for each in function.parameters) or "void"
    passed = "".join(f", {each.name}" for each in function.parameters)
    return f"""
{function.c_type} {function.name}({declared})
{{
    static const auto real = realFunction(&::{function.name}, "{function.name}");
    return intercept(orvane::interface::functions()[{index}], real, __builtin_return_address(0){passed});
}}
"""


def main():
    header, table, file = sys.argv[1:]
    with open(file, "w", encoding="utf-8") as output:
        output.write("// Written by wrappers.py.\n#include \"intercept.h\"\n")
        output.writelines(wrapper(index, each) for index, each in enumerate(Description(header, table).functions))


main()

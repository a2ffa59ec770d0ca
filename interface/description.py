# SPDX-License-Identifier: MIT
"""Reads the description of the interface: castxml's account of zelgui.h, and interface.ini.

A writer takes `functions` and `types` of a Description. As a program, `description.py HEADER.xml INTERFACE.ini` checks
that the two fit each other, and prints the names of all functions.
"""
import configparser
import dataclasses
import sys
import typing
import xml.etree.ElementTree as ElementTree

# What a word of interface.ini can stand beside, by C type.
C_TYPES = {
    "id": ["int"], "units": ["int"], "number": ["int", "double", "double *", "LgIndex", "LgIndex *", "unsigned char"], "position": ["int"], "position-or-0": ["int"],
    "columns": ["int"], "rows": ["int"], "count": ["int", "int *"], "positions": ["const int *", "int * *"],
    "one": ["ZelBoolean"], "latin1": ["const char *", "StringList_s *"], "utf8": ["const char *"],
    "format": ["const char *"], "rgb": ["const unsigned char *"], "told": ["ZelGUIVoidCallback", "ZelGUIIntCallback", "ZelGUITextCallback"],
}
# What a C type alone says.
MEANINGS = {
    "double": "number", "LgIndex": "number", "unsigned char": "number", "ZelBoolean": "boolean", "IndexSet": "set",
    "double *": "number", "LgIndex *": "number", "IndexSet *": "set",
    "ZelGUIVoidCallback": "told", "ZelGUITextCallback": "told utf8",
}
# What a function may answer, by C type.
ANSWERS = {"void": [""], "ZelBoolean": ["boolean"], "char *": ["utf8"],
           "int": ["creates", "position", "count", "number"]}
OUTPUTS = ("int *", "int * *", "double *", "LgIndex *", "IndexSet *")
CREATES_NOTHING = "-2"


def stop(message):
    sys.exit(f"interface.ini: {message}")


@dataclasses.dataclass
class Parameter:
    name: str
    c_type: str
    #: The word of interface.ini.
    meaning: str
    #: What an identifier may name, and what works besides.
    accepted: typing.List[str] = dataclasses.field(default_factory=list)
    tolerated: typing.List[str] = dataclasses.field(default_factory=list)
    #: What a callback is told: a word of interface.ini, or none.
    told: str = ""
    is_optional: bool = False

    @property
    def is_output(self):
        return self.c_type in OUTPUTS


@dataclasses.dataclass
class Function:
    name: str
    c_type: str
    parameters: typing.List[Parameter]
    #: The word of interface.ini for what is answered, or none.
    answer: str
    #: The type of object that is made, or none.
    created: str
    neutral: str
    without_gui: str
    reports: bool
    is_inert: bool


class Header:
    """The functions that the header declares, with the C types as they are written there."""

    def __init__(self, file):
        root = ElementTree.parse(file).getroot()
        self.nodes = {node.get("id"): node for node in root if node.get("id")}
        self.functions = {}
        for node in root.iter("Function"):
            if node.get("name").startswith("ZelGUI"):
                arguments = {each.get("name"): self.type_name(each.get("type")) for each in node.iter("Argument")}
                self.functions[node.get("name")] = (self.type_name(node.get("returns")), arguments)

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
        return stop(f"nothing is known of C types of the kind {node.tag}")


class Description:
    def __init__(self, header_file, table_file):
        self.table = configparser.ConfigParser(delimiters="=", comment_prefixes=";")
        self.table.optionxform = str
        self.table.read(table_file, encoding="utf-8")
        #: What each type of object is called.
        self.types = dict(self.table["types"])
        header = Header(header_file).functions
        self.check_names(header)
        self.functions = [self.function(name, c_type, arguments) for name, (c_type, arguments) in header.items()]

    def check_names(self, header):
        rows = self.table["functions"]
        own = [name for name in self.table.sections() if name not in ("types", "functions", "parameters")]
        everywhere = {parameter for _, arguments in header.values() for parameter in arguments}
        missing = [name for name in header if name not in rows]
        unknown = [name for name in [*rows, *own] if name not in header]
        unknown += [name for name in self.table["parameters"] if name not in everywhere]
        unknown += [f"{name}.{key}" for name in own if name in header for key in self.table[name]
                    if key not in header[name][1]]
        if missing:
            stop(f"[functions] has no row for {', '.join(missing)}")
        if unknown:
            stop(f"zelgui.h has no {', '.join(unknown)}")

    def function(self, name, c_type, arguments):
        words = self.table["functions"][name].split()
        is_inert = "inert" in words
        reports = "reports" in words
        created = self.known(words[words.index("creates") + 1]) if "creates" in words else ""
        answer = words[0] if words and words[0] not in ("silent", "reports", "inert") else ""
        if not words or answer not in ANSWERS[c_type]:
            stop(f"{name} answers {c_type}; its row says {' '.join(words) or 'nothing'}")
        neutral = CREATES_NOTHING if created else "0"
        if "neutral" in words:
            neutral = words[words.index("neutral") + 1]
        elif c_type == "int" and not created:
            stop(f"what is the neutral answer of {name}?")
        without_gui = words[words.index("without-gui") + 1] if "without-gui" in words else neutral
        parameters = [self.parameter(name, each, kind, is_inert) for each, kind in arguments.items()]
        return Function(name, c_type, parameters, answer, created, neutral, without_gui, reports, is_inert)

    def parameter(self, function, name, c_type, is_unread):
        rows = {**self.table["parameters"], **(self.table[function] if function in self.table else {})}
        words = ["unread"] if is_unread else rows.get(name, MEANINGS.get(c_type, "")).split()
        if not words:
            stop(f"what is {name} of {function}?")
        is_optional = "optional" in words
        words = [word for word in words if word != "optional"]
        if name in rows and words[0] != "unread" and c_type not in C_TYPES.get(words[0], []):
            stop(f"{name} of {function} is {c_type}, which is no {words[0]}")
        result = Parameter(name, c_type, words[0], is_optional=is_optional)
        if words[0] == "id":
            also = words.index("also") if "also" in words else len(words)
            result.accepted = self.all_types(words[1:also])
            result.tolerated = [each for each in self.all_types(words[also + 1:]) if each not in result.accepted]
        elif words[0] == "told":
            result.told = words[1] if len(words) > 1 else ""
        return result

    def all_types(self, words):
        if words == ["any"]:
            return [name for name in self.types if name != "main-window"]
        if words == ["widget"]:
            return [name for name in self.all_types(["any"]) if name not in ("radio-box", "menu-item", "menu-toggle")]
        return [self.known(word) for word in words]

    def known(self, word):
        if word not in self.types:
            stop(f"there is no type {word}")
        return word

    def creators(self, type_name):
        return [function.name for function in self.functions if function.created == type_name]


def camel(name):
    """A word of interface.ini as a name of C++: "text-field" is TextField."""
    return "".join(part.capitalize() for part in name.split("-"))


if __name__ == "__main__":
    print(*sorted(function.name for function in Description(*sys.argv[1:]).functions), sep="\n")

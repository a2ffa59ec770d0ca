#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tries the code samples of a page.

Usage: samples.py SOURCE_FOLDER INSTALLED_FOLDER PAGE

A comment in the line before a block of C, C++, CMake or shell says what it is:

  <!-- sample: quotes FILE -->   part of that file of the repository
  <!-- sample: within FILE -->   compiled in the place of @sample@ in that file of tests/docs/wrappers
  <!-- sample: writes FILE -->   a file of the reader's, in the folder where later commands run
  <!-- sample: edits FILE -->    takes the place of the function of the same head in a file of the reader's
  <!-- sample: runs -->          commands that have to succeed, one block after the other
  <!-- sample: shows -->         commands for a display or another machine: their syntax, and the options of zelhost

A block without such a comment is an error, and so is a link to a file that isn't there.
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import urllib.parse

LANGUAGES = ("c", "cpp", "cmake", "sh")
BLOCK = re.compile(r"^(?:<!-- sample: (\w+)(?: (\S+))? -->\n)?```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
LINK = re.compile(r"\]\((?!https?:)([^)#]+)[^)]*\)")


class Page:
    def __init__(self, source, installed, folder):
        self.source, self.installed, self.folder = source, installed, folder
        self.here = folder
        self.environment = dict(
            os.environ,
            PATH=f"{installed}/bin:{os.environ['PATH']}",
            PKG_CONFIG_PATH=":".join(str(file.parent) for file in installed.rglob("zelgui.pc")),
            QT_QPA_PLATFORM="offscreen",
        )

    def shell(self, commands, *options):
        result = subprocess.run(["sh", *options, "-c", commands], cwd=self.here, env=self.environment,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        if result.returncode != 0:
            raise ValueError(result.stdout)
        return result.stdout

    def quotes(self, file, language, text):
        if text not in (self.source / file).read_text():
            raise ValueError(f"{file} says something else")

    def within(self, file, language, text):
        wrapper = (self.source / "tests/docs/wrappers" / file).read_text()
        whole = wrapper.replace("@sample@", text).replace("@source@", str(self.source))
        work = pathlib.Path(tempfile.mkdtemp(dir=self.folder))
        (work / file).write_text(whole)
        if language == "cmake":
            self.shell(f"cd {work} && cmake -G Ninja . && cmake --build .")
        else:
            compiler = "cc -std=c99" if language == "c" else "c++ -std=c++17"
            self.shell(f"{compiler} -Wall -Wextra -Werror -fsyntax-only -I {self.installed}/include {work / file}")

    def writes(self, file, language, text):
        (self.here / file).write_text(text)

    def edits(self, file, language, text):
        old = (self.here / file).read_text()
        head = re.escape(re.search(r"^(.*)\n{$", text, re.MULTILINE).group(1))
        new, count = re.subn(rf"^{head}\n{{\n.*?^}}\n", lambda match: text, old, flags=re.MULTILINE | re.DOTALL)
        if count != 1:
            raise ValueError(f"{file} has {count} functions with that head")
        (self.here / file).write_text(new)

    def runs(self, argument, language, text):
        output = self.shell(f"{text}\npwd >{self.folder}/.here", "-e")
        self.here = pathlib.Path((self.folder / ".here").read_text().strip())
        print(output, end="")

    def shows(self, argument, language, text):
        self.shell(text, "-n")
        known = set(re.findall(r"--[a-z-]+", self.shell("zelhost --help")))
        for line in text.splitlines():
            command = line.split("#")[0].split()
            if command[:1] == ["zelhost"]:
                unknown = {word for word in command if word.startswith("--")} - known
                if unknown:
                    raise ValueError(f"zelhost has no {unknown}")
            elif command and command[0].startswith("./") and not (self.source / command[0]).exists():
                raise ValueError(f"{command[0]} is missing")


def main():
    source, installed, file = (pathlib.Path(argument).absolute() for argument in sys.argv[1:])
    text = file.read_text()
    errors = []
    with tempfile.TemporaryDirectory() as folder:
        page = Page(source, installed, pathlib.Path(folder))
        for match in BLOCK.finditer(text):
            kind, argument, language, sample = match.groups()
            line = text.count("\n", 0, match.start()) + 1
            if language not in LANGUAGES and not kind:
                continue
            try:
                if kind not in ("quotes", "within", "writes", "edits", "runs", "shows"):
                    raise ValueError("no comment says what this sample is")
                getattr(page, kind)(argument, language, sample)
            except (ValueError, OSError) as error:
                errors.append(f"{file}:{line}: {error}")
    for match in LINK.finditer(text):
        if not (file.parent / urllib.parse.unquote(match.group(1))).exists():
            errors.append(f"{file}: link to {match.group(1)}")
    print("\n".join(errors))
    sys.exit(1 if errors else 0)


main()

#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Plays a transcript: commands, and all that each of them prints.

Usage: transcript.py TRANSCRIPT FILE...

  $ zelhost x.so    a command for the shell
  > more            its next line
  text              a line of its standard output
  ! text            a line of its standard error
  [2]               its exit code, if not 0

In an expected line, "…" stands for any text. Empty lines don't count, and lines that start with # are comments. Lines
before the first command are run before each of the commands: functions, say. All commands run in one new folder with
links to the FILEs.
"""
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile


def read(transcript):
    """The commands: for each its line number, its text and the lines that are expected of it."""
    preamble, commands = "", []
    for number, line in enumerate(transcript.read_text("utf-8").splitlines(), 1):
        if line.startswith("$ "):
            commands.append([number, preamble + line[2:], []])
        elif not commands:
            preamble += line + "\n"
        elif line.startswith("> "):
            commands[-1][1] += "\n" + line[2:]
        elif line and not line.startswith("#"):
            commands[-1][2].append(line)
    return commands


def run(command, folder):
    environment = dict(os.environ, LC_ALL="C.UTF-8", PATH=f"{folder}:{os.environ['PATH']}")
    result = subprocess.run(["sh", "-c", command], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                            capture_output=True, encoding="utf-8", errors="backslashreplace", check=False)
    lines = result.stdout.split("\n") + [line and f"! {line}" for line in result.stderr.split("\n")]
    return [line for line in lines if line] + ([f"[{result.returncode}]"] if result.returncode else [])


def matches(line, expected):
    return re.fullmatch(".*".join(map(re.escape, expected.split("…"))), line) is not None


def main():
    transcript, *files = (pathlib.Path(argument).absolute() for argument in sys.argv[1:])
    commands = read(transcript)
    failures = 0 if commands else 1
    with tempfile.TemporaryDirectory() as folder:
        for file in files:
            (pathlib.Path(folder) / file.name).symlink_to(file)
        for number, command, expected in commands:
            printed = run(command, folder)
            if len(printed) == len(expected) and all(map(matches, printed, expected)):
                continue
            failures += 1
            # What matches is no difference.
            shown = [next((wanted for wanted in expected if matches(line, wanted)), line) for line in printed]
            difference = difflib.unified_diff(expected, shown, "expected", "printed", n=len(expected), lineterm="")
            print(f"{transcript}:{number}: {command}", *difference, sep="\n")
    print(f"{len(commands)} commands, {failures} failures")
    sys.exit(1 if failures else 0)


main()

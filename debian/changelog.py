#!/usr/bin/env python3
"""Prints debian/changelog, made from CHANGELOG.md. A version without a tag gets the time of its
commit as well, and comes before the tagged one.

usage: changelog.py SOURCE
"""
import pathlib
import re
import subprocess
import sys
import textwrap

MAINTAINER = re.compile("^Maintainer: (.*)$", re.MULTILINE)


def git(source, *words):
    return subprocess.run(["git", "-C", source, *words], text=True, capture_output=True,
                          check=True).stdout.strip()


def lines(text):
    """The sections and bullets of a version."""
    for block in re.split(r"\n(?=- |\n)", text):
        words = " ".join(block.split()).replace("`", "")
        if words.startswith("**"):
            yield from ("", f"  [ {words.replace('**', '')} ]")
        elif words:
            yield from textwrap.wrap(words.removeprefix("- "), 78, initial_indent="  * ",
                                     subsequent_indent="    ")


def main():
    source = pathlib.Path(sys.argv[1])
    maintainer = MAINTAINER.search((source / "debian/control").read_text())[1]
    for version, text in re.findall(r"^## (\S+?),? .*\n((?:(?!## ).*\n)*)",
                                    (source / "CHANGELOG.md").read_text(), re.MULTILINE):
        tagged = git(source, "tag", "--list", f"v{version}")
        commit = tagged or "HEAD"
        if not tagged:
            version += "~" + git(source, "log", "-1", "--format=%cd", "--date=format:%Y%m%d.%H%M")
        print(f"tessel-switch ({version}) unstable; urgency=medium\n")
        print(*lines(text), sep="\n")
        print(f"\n -- {maintainer}  {git(source, 'log', '-1', '--format=%cD', commit)}\n")


main()

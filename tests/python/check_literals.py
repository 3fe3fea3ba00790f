#!/usr/bin/env python3
"""Reads every schema and value string of the library as a Python literal.

usage: check_literals.py LIBSOFT_SDK LIBRARY EXPORTS TESSELCTL SCRIPT

Loads the library through ctypes, with the soft SDK in front of it, and finds the functions by their
names in the list of exports. Long suffixes, which Python 3 no longer reads, are removed first.
Records are random bytes, larger than any of them. Values of entries are what TESSELCTL dumps after
SCRIPT.
"""
import ast
import ctypes
import os
import random
import re
import subprocess
import sys

PREFIX = "p4_pd_tessel_switch_"
faults = []


def literal(text):
    return ast.literal_eval(re.sub(r"(0x[0-9a-f]+)L\b", r"\1", text))


def check(name, holds):
    if not holds:
        faults.append(name)


def schema_text(library, name):
    function = getattr(library, PREFIX + name)
    if name.endswith("_match_spec_schema") or not writes_schema(library, name):
        function.restype = ctypes.c_char_p
        return function().decode("ascii")
    buffer = ctypes.create_string_buffer(4096)
    length = function(buffer)
    check(name + ": length", length == len(buffer.value))
    return buffer.value.decode("ascii")


def writes_schema(library, name):
    stem = name[: -len("_schema")]
    return hasattr(library, PREFIX + stem + "_get_entry_count") or hasattr(
        library, PREFIX + stem + "_create_group")


def value_text(library, name, with_record):
    function = getattr(library, PREFIX + name)
    buffer = ctypes.create_string_buffer(512)
    record = ctypes.create_string_buffer(random.randbytes(1024), 1024)
    length = function(record, buffer) if with_record else function(buffer)
    check(name + ": length", length == len(buffer.value))
    return buffer.value.decode("ascii")


def check_fields(name, fields):
    for field in fields:
        check(name, len(field) == 7 and isinstance(field[0], str) and isinstance(field[1], str))
        check(name, 1 <= field[2] <= 128 and 0 < field[3] < 1 << field[2])
        check(name, field[4] in (None, "port", "vport", "v6addr", "mac", "v4addr"))
        check(name, field[5:] == (None, None))


def check_action(name, action):
    check(name, len(action) == 2 and isinstance(action[0], str))
    for param in action[1]:
        check(name, len(param) == 4 and 1 <= param[2] <= 32 and param[3] is None)
        check(name, param[1] in (None, "mac", "v4addr", "vport"))


def check_table(library, table):
    name = table + "_schema"
    head, key, actions = literal(schema_text(library, name))
    check(name, head[:2] == (table, "mat") and head[2] in ((True,), (False,)))
    check_fields(name, key)
    for action in actions:
        check_action(name, action)
    names = [action[0] for action in actions]
    check(name + ": order", head[2] == (True,) or names == sorted(names))
    check(name + ": keyless", bool(key) or len(actions) == 1)
    if not key:
        return
    check(name + ": key", key == literal(schema_text(library, table + "_match_spec_schema")))
    (values,) = literal(value_text(library, table + "_match_spec_value", True))
    check(table + "_match_spec_value: numbers", len(values) == len(key))
    for value, field in zip(values, key):
        full = field[2] == 128
        in_mask = full or value & ~field[3] == 0
        check(table + "_match_spec_value: mask", value < 1 << field[2] and in_mask)


def dumped(tesselctl, script, table):
    lines = open(script).read() + "\ndump " + table + "\n"
    run = subprocess.run([tesselctl, "run", "-"], input=lines, capture_output=True, text=True)
    check(table + ": dump", run.returncode == 0)
    return [line for line in run.stdout.splitlines() if line.startswith("((")]


def check_entries(library, tables, tesselctl, script):
    entries = 0
    for table in tables:
        head, key, actions = literal(schema_text(library, table + "_schema"))
        parameters = dict(actions)
        for line in dumped(tesselctl, script, table) if key else []:
            (values, (action, numbers)), (priority, last) = literal(line)
            check(line, len(values) == len(key) and len(numbers) == len(parameters[action]))
            check(line, isinstance(priority, int) and last is True)
            entries += 1
    check("entries of the script", entries > 40)
    return entries


def main(soft_sdk, path, exports, tesselctl, script):
    ctypes.CDLL(soft_sdk, mode=ctypes.RTLD_GLOBAL)
    library = ctypes.CDLL(path, mode=os.RTLD_LAZY)
    names = [line[len(PREFIX):] for line in open(exports).read().split() if line.startswith(PREFIX)]
    counts = [name for name in names if name.endswith("_get_entry_count")]
    tables = [name[: -len("_get_entry_count")] for name in counts]
    for table in tables:
        check_table(library, table)
    profiles = [name[: -len("_create_group")] for name in names if name.endswith("_create_group")]
    for profile in profiles:
        for action in literal(schema_text(library, profile + "_schema")):
            check_action(profile, action)
    owners = set(tables) | set(profiles) | {"cli"}
    actions = 0
    for name in names:
        stem = name[: -len("_schema")]
        if not name.endswith("_schema") or stem.endswith("_match_spec") or stem in owners:
            continue
        action = literal(schema_text(library, name))
        check(name, action[0] == stem)
        check_action(name, action)
        value = literal(value_text(library, stem + "_value", bool(action[1])))
        check(stem + "_value", value[0][0] == stem and len(value[0][1]) == len(action[1]))
        actions += 1
    check("numbers of objects", (len(tables), len(profiles), actions) == (120, 4, 232))
    entries = check_entries(library, tables, tesselctl, script)
    for fault in faults:
        print("no literal of its kind:", fault)
    print(f"{len(tables)} tables, {len(profiles)} profiles, {actions} actions, {entries} entries")
    return 1 if faults else 0


if __name__ == "__main__":
    if len(sys.argv) != 6:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))

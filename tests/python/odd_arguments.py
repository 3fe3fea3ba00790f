"""Calls all that the package of a program has with odd arguments, each in each place beside good ones.

The file of the second argument names the call at hand, for whoever finds that the process has died.
"""
import importlib
import inspect
import os
import sys

import pd
from samples import argument_of, generator, outcomes

ODD = (None, "", -1, 1 << 200, object())
FAULTS = (TypeError, ValueError, AttributeError, KeyError, ImportError, IndexError,
          pd.StatusError)
# What Python says without the name of the parameter.
NAMELESS = ("interpreted as an integer", "bad argument type", "supported between")
NOT_HERE = {"p4_pd_{}_cleanup", "p4_pd_{}_init"}

package = importlib.import_module(sys.argv[1])
program = package.program
current = os.open(sys.argv[2], os.O_CREAT | os.O_WRONLY)
sys.unraisablehook = lambda raised: None
calls = 0


def attempt(name, function, /, *arguments, **named):
    global calls
    calls += 1
    os.pwrite(current, f"{name} {arguments} {named}".encode()[:200].ljust(200), 0)
    try:
        made = function(*arguments, **named)
        if hasattr(made, "__next__"):
            next(made, None)
    except FAULTS as fault:
        if any(one in str(fault) for one in NAMELESS):
            raise


def in_each_place(name, function, good):
    for at in range(len(good)):
        for odd in ODD:
            attempt(name, function, *good[:at], odd, *good[at + 1:])
    for odd in ODD:
        attempt(name, function, *[odd] * len(good))


def try_any(name, function):
    """What says nothing of its arguments, or only their names."""
    try:
        named = [one.name for one in inspect.signature(function).parameters.values()
                 if one.kind in (one.KEYWORD_ONLY, one.POSITIONAL_OR_KEYWORD)]
    except (TypeError, ValueError):
        named = []
    for odd in ODD:
        for count in range(7):
            attempt(name, function, *[odd] * count)
        for count in range(3):
            attempt(name, function, *[odd] * count, x=odd)
            for keyword in (*named, "key", "entry", "priority", "keep"):
                attempt(name, function, *[odd] * count, **{keyword: odd})


def functions_of(session):
    rng = generator()
    for name, function in pd._core.soft.items():
        if "journal" in name:
            continue
        yield name, function, [pd.Output() if c_type.endswith("*") and "const" not in c_type
                               else bytes(64) if c_type.endswith("*") else 1
                               for c_type, _ in function.parameters]
    for name in program.functions():
        if name in {one.format(program.name) for one in NOT_HERE}:
            continue
        function = getattr(package.raw, name)
        yield name, function, [9999 if row[1] == "descriptor" else
                               argument_of(row, session, program, rng)
                               for row in function.parameters]


def objects_of(device, session):
    """One of each class, and all functions of the extension."""
    rng = generator()
    yield from (session, device, session.on(pipe=0), pd.clock, pd.faults, program, pd.Output())
    for kind in ("profiles", "counters", "meters", "registers", "hashes", "digests", "value_sets"):
        yield getattr(session, kind)
        yield from list(getattr(session, kind))[:1]
    for table in list(session.tables)[:3]:
        yield table
        yield from outcomes(session, table, rng)[:2]
        yield program.record("keys", table.name)
    if program.records("triggers"):
        yield session.snapshot()
    yield pd._core


def main():
    device = package.Device()
    session = device.session()
    for name, function, good in functions_of(session):
        in_each_place(name, function, good)
    for one in objects_of(device, session):
        for name in dir(one):
            if name.startswith("_") or name in ("close", "remove", "journal", "soft", "unsigned"):
                continue
            function = getattr(one, name)
            if callable(function):
                try_any(f"{one!r}.{name}", function)
        if callable(one):
            try_any(repr(one), one)
    session.close()
    print(calls)


main()

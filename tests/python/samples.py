"""Values of any program's objects, made from what these say of themselves."""
import random

import pd

CELLS = 0xffff  # parameters stay below the limit of cells that they may name


def value_of(width, match, rng):
    """A number of the field, alone or with a prefix length or a mask."""
    number = rng.getrandbits(width)
    if match == "exact":
        return number & CELLS
    ones = (1 << width) - 1
    length = rng.randint(1, width)
    mask = ones << (width - length) & ones
    return number & mask, (length if match == "lpm" else mask)


def fields_of(record, rng):
    """As arguments: with a '_' behind each, which always means a field."""
    return {label + "_": value_of(width, match, rng)
            for label, _, _, match, width in record._describe()}


def record_of(program, kind, name, rng):
    kind = program.record(kind, name)
    return kind(**fields_of(kind, rng))


def outcomes(session, table, rng):
    """Actions that entries of the table may have, or a member and a group of its profile."""
    program = session._program
    if table.profile is None:
        return [record_of(program, "actions", name, rng) for name in table.actions]
    profile = session.profiles[table.profile]
    member = profile.add(record_of(program, "actions", profile.actions[0], rng))
    return [member, profile.create_group(member)]


def with_meter(call, *arguments, **fields):
    """Calls with a meter where the table needs one."""
    try:
        return call(*arguments, **fields)
    except pd.errors.MeterSpecMissing:
        return call(*arguments, meter=(1000, 1000, 2000, 2000), **fields)


def generator(seed=1):
    return random.Random(seed)

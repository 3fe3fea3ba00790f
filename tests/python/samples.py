"""Values of any program's objects, made from what these say of themselves."""
import random

import pd

CELLS = 0xffff  # parameters stay below the limit of cells that they may name
STRUCTURES = {"p4_pd_counter_values_t": (1, 64), "p4_pd_parser_target_t": (0, 0, 0, 0),
              "p4_pd_idle_time_params_t": (1, 500, 0, 0, 0, 0)}


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


def argument_of(parameter, session, program, rng):
    """Something that a parameter of C takes."""
    c_type, name = parameter
    if c_type in STRUCTURES:
        return STRUCTURES[c_type]
    if c_type.endswith("_cb_t"):
        return lambda *_: None
    if name in ("session", "target", "device"):
        return session
    if c_type == "const char *":
        return "name"
    if "placement_t" in c_type or "message_t" in c_type or name in ("cookie", "client_data"):
        return None
    if c_type.endswith("_match_spec_t *") or c_type.endswith("_action_spec_t *"):
        kind = "keys" if "_match_spec_t" in c_type else "actions"
        record = c_type.split(f"p4_pd_{program.name}_")[1].rsplit("_", 3)[0]
        return record_of(program, kind, record, rng) if "const" in c_type else pd.Output()
    if "query_t" in c_type:
        return bytearray(64)
    if c_type.endswith("*"):
        return bytes(4096) if c_type.startswith("const") else pd.Output()
    return 1

"""Control planes in Python: what the packages of all programs have in common.

A program has a package of its own, `import tessel_switch`, with its tables, actions and so on as
objects of the classes here. Its devices are those of the soft SDK.
"""
from pd import errors
from pd._core import (
    BF_ALL_PIPES, CounterValues, Entry, Function, Hit, IdleParams, JournalCall, MeterSpec, Opaque,
    Output, Parsers, ParserTarget, Program, Record, SnapshotControl, Target, WredParams)
from pd._device import Device, Session
from pd._load import load
from pd._numbers import Direction, IdleMode, TableProperty, Update
from pd._profiles import Group, Member, Profile
from pd._services import Digest, DigestEntry, Hash, Snapshot, Stage, ValueSet
from pd._soft import Clock, Faults, Journal, clock, faults, journal
from pd._stateful import Counter, Meter, Register
from pd._tables import Table
from pd.errors import StatusError

ALL_PIPES = BF_ALL_PIPES

__all__ = [
    "ALL_PIPES", "Clock", "Counter", "CounterValues", "Device", "Digest", "DigestEntry", "Direction",
    "Entry", "Faults",
    "Function", "Group", "Hash", "Hit", "IdleMode", "IdleParams", "Journal", "JournalCall", "Member", "Meter",
    "MeterSpec", "Opaque", "Output", "ParserTarget", "Parsers", "Profile", "Program", "Record",
    "Register", "Session", "Snapshot", "SnapshotControl", "Stage", "StatusError", "Table",
    "TableProperty", "Target", "Update", "ValueSet", "WredParams", "clock", "errors", "faults", "journal", "load"]

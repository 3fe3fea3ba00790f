"""Hash calculations, learning digests, value sets and snapshots."""
from __future__ import annotations

from collections import namedtuple
from operator import index

from pd import _core
from pd._call import Name, call, control, function, get, read_control, walk
from pd._core import Opaque, Output, Record, SnapshotControl, unsigned
from pd._listeners import listen
from pd._numbers import Direction

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable, Iterator, Literal, Self


class Hash(Name):
    """A configurable hash calculation."""

    def _set(self, what: str, *arguments: Any) -> None:
        self._call(f"hash_calc_{what}", self.session, self.session, *arguments)

    def _read(self, what: str, *arguments: Any) -> Any:
        return self._get(f"hash_calc_{what}", self.session, self.session, *arguments)

    def input(self) -> int:
        """The input field list; 0 is the calculation's own."""
        return int(self._read("input_get"))

    def set_input(self, number: int = 0) -> None:
        """Chooses an input field list; 0: the calculation's own."""
        self._set("input_set", number)

    def algorithm(self) -> int:
        """The algorithm; 0 is the calculation's own."""
        return int(self._read("algorithm_get"))

    def set_algorithm(self, number: int = 0) -> None:
        """Chooses an algorithm; 0: the calculation's own."""
        self._set("algorithm_set", number)

    def seed(self) -> int:
        """What set_seed has set."""
        return int(self._read("seed_get"))

    def set_seed(self, seed: int) -> None:
        """The seed of the algorithm."""
        self._set("seed_set", seed)

    def attributes(self, input: int = 0) -> list[tuple[int, int, int]]:
        """Field, type and value of each attribute of a list."""
        count = self._read("input_field_attribute_count_get", input)
        if not count:
            return []
        attributes, filled = Output(), Output()
        self._set("input_field_attribute_get", input, count, attributes, filled)
        return [(row[0], row[1], row[2]) for row in attributes.value[:filled.value]]

    def set_attributes(self, attributes: list[tuple[int, int, int]], input: int = 0) -> None:
        """Replaces the attributes of a list."""
        self._set("input_field_attribute_set", input, len(attributes), attributes)

    def calculate(self, *values: tuple[int, int], size: int = 4) -> int:
        """The hash of values with their widths in bits, as a number of so many bytes."""
        import ctypes
        held, attributes = [], []
        for field, pair in enumerate(values):
            if not isinstance(pair, tuple) or len(pair) != 2 or not hasattr(pair[0], "__index__"):
                raise TypeError(f"value {field} is (number, width in bits), not {pair!r}")
            value, width = index(pair[0]), unsigned(pair[1], f"the width of value {field}")
            if value < 0 or value.bit_length() > width:
                raise ValueError(f"value {field} is a number of {width} bits, not {value}")
            if width <= 32:
                attributes.append((field, 0, value))
                continue
            held.append(ctypes.create_string_buffer(value.to_bytes((width + 7) // 8, "big")))
            attributes.append((field, 0, ctypes.addressof(held[-1])))
        bits = bytearray(unsigned(size, "size"))
        self._set("calculate_hash_value", len(values), attributes, [w for _, w in values], bits,
                  size)
        return int.from_bytes(bits, "big")

    def own_field(self, common: int) -> int | None:
        """The calculation's number of a field by its common number."""
        found: int = function(self._program, "p4_field_enum", self.name)(common)
        return None if found < 0 else found

    def common_field(self, own: int) -> int | None:
        """The common number of a field by the calculation's own."""
        found: int = function(self._program, "cmn_field_enum", self.name)(own)
        return None if found == 0xffffffff else found


class DigestEntry(namedtuple("DigestEntry", "record pipe")):
    """An entry of a digest with the pipe that it came from."""

    record: Record
    pipe: int

    if not TYPE_CHECKING:  # what there is follows from the program
        def __getattr__(self, name: str) -> Any:
            return getattr(self.record, name)


class Digest(Name):
    """A learning digest. `listen` gathers entries for `poll`; `register` has them called back."""

    def __init__(self, program: Any, name: str, session: Any, facts: dict[str, Any]):
        super().__init__(program, name, session, facts)
        self._kind = program.record("digests", name)
        self._waiting: list[DigestEntry] = []

    def register(self, callback: Callable[[DigestEntry], object]) -> None:
        """Has the callback called with each entry; messages are given back when it returns.

        An exception of the callback is reported to sys.unraisablehook.
        """
        program, name, kind = self._program, self.name, self._kind

        def deliver(each: Any, session: int, message: Opaque, _device: int, pipe: int, size: int,
                    entries: bytes) -> None:
            try:
                for at in range(0, len(entries), size):
                    each(DigestEntry(kind._from_bytes(entries[at:at + size]), pipe))
            finally:
                call(program, "digest_notify_ack", name, session, message)
        if callback is None:
            raise TypeError("a callback is callable; deregister ends calls")
        listen(program, name, self.session, "digest_register", callback, deliver)

    def listen(self) -> Self:
        """Keeps entries for poll; a context manager that deregisters at its end."""
        self.register(self._waiting.append)
        return self

    def poll(self) -> list[DigestEntry]:
        """The entries since the last call."""
        taken = self._waiting[:]
        del self._waiting[:len(taken)]
        return taken

    def deregister(self) -> None:
        """Ends calls of the callback."""
        listen(self._program, self.name, self.session, "digest_register", None, lambda each: None)

    def __enter__(self) -> Self:
        return self

    def __exit__(self, *_error: object) -> None:
        self.deregister()

    def inject(self, *, pipe: int | None = None, **fields: Any) -> bool:
        """Brings an entry as a packet does, and says whether it was new. Other fields are 0."""
        entry = bytes(self._kind(**fields))
        return bool(read_control("soft_digest_inject", self.session.device_id, self._pipe(pipe),
                                 self.handle, entry, 1, len(entry)))

    def pending(self) -> tuple[int, int]:
        """How many entries are not sent yet, and how many messages wait to be given back."""
        collected, unacknowledged = Output(), Output()
        control("soft_digest_pending", self.session.device_id, self.handle, collected,
                unacknowledged)
        return collected.value, unacknowledged.value


class ValueSet(Name):
    """A parser value set. Without another direction, pipe or parser it is about all of ingress."""

    def _parser(self, direction: int, pipe: int | None, parser: int) -> tuple[int, int, int, int]:
        return (self.session.device_id, direction, self.session.pipe if pipe is None else pipe,
                parser)

    def add(self, value: int, mask: int = 0xffffffff, *, direction: int = Direction.INGRESS,
            pipe: int | None = None, parser: int = 255) -> int:
        """Adds a value and returns the handle of its entry."""
        return int(self._get("pvs_entry_add", self.session,
                             self._parser(direction, pipe, parser), value, mask))

    def modify(self, entry: int, value: int, mask: int = 0xffffffff) -> None:
        """Gives an entry another value and mask."""
        self._call("pvs_entry_modify", self.session, self.session, entry, value, mask)

    def delete(self, entry: int) -> None:
        """Deletes an entry."""
        self._call("pvs_entry_delete", self.session, self.session, entry)

    def get(self, entry: int) -> tuple[int, int]:
        """Value and mask of an entry."""
        value, mask = Output(), Output()
        self._call("pvs_entry_get", self.session, self.session, entry, value, mask)
        return value.value, mask.value

    def find(self, value: int, mask: int = 0xffffffff, *, direction: int = Direction.INGRESS,
             pipe: int | None = None, parser: int = 255) -> int:
        """The handle of the entry with this value and mask."""
        return int(self._get("pvs_entry_handle_get", self.session,
                             self._parser(direction, pipe, parser), value, mask))

    def handles(self, *, direction: int = Direction.INGRESS, pipe: int | None = None,
                parser: int = 255) -> Iterator[int]:
        """The handles of its entries."""
        target = self._parser(direction, pipe, parser)
        found: Iterator[int] = walk(
            lambda: self._get("pvs_entry_get_first_entry_handle", self.session, target),
            lambda entry, count: self._get("pvs_entry_get_next_entry_handles", self.session,
                                           target, entry, count),
            _core.ObjectNotFound)
        return found

    def __iter__(self) -> Iterator[int]:
        """The handles of its entries in all of ingress."""
        return self.handles()

    def __len__(self) -> int:
        return self.count()

    def __bool__(self) -> bool:
        return True

    def count(self, *, direction: int = Direction.INGRESS, pipe: int | None = None, parser: int = 255) -> int:
        """How many entries there are."""
        return int(self._get("pvs_entry_get_count", self.session,
                             self._parser(direction, pipe, parser), 0))

    def property(self, number: int, argument: int = 0) -> int:
        """A property by its number."""
        output = Output()
        self._call("pvs_get_property", self.session, self.session, number, output, argument)
        return int(output.value)

    def set_property(self, number: int, value: int, argument: int = 0) -> None:
        """Sets a property by its number."""
        self._call("pvs_set_property", self.session, self.session, number, value, argument)

    def capacity(self) -> int:
        """How many entries there may be; 0: any number."""
        return self.property(1)

    def set_capacity(self, capacity: int) -> None:
        """Limits how many entries there may be; 0: any number."""
        self.set_property(1, capacity)

    def parsers(self, entry: int) -> _core.Parsers:
        """The parsers that an entry is in."""
        found: _core.Parsers = read_control("soft_value_set_parsers", self.session.device_id,
                                            self.handle, entry)
        return found

    def match(self, value: int, *, direction: int = Direction.INGRESS, pipe: int | None = None,
              parser: int = 0) -> int | None:
        """The entry that a value matches in one parser."""
        try:
            return int(read_control("soft_value_set_match", self.session.device_id, self.handle,
                                    direction, self._pipe(pipe), parser, value))
        except _core.ObjectNotFound:
            return None


class Stage(namedtuple("Stage", "record stage valid triggered")):
    """What a snapshot captured at one stage."""

    record: Record
    stage: int
    valid: bool
    triggered: bool

    if not TYPE_CHECKING:  # what there is follows from the program
        def __getattr__(self, name: str) -> Any:
            return getattr(self.record, name)


class Snapshot:
    """Packet fields captured at a range of stages; a context manager that deletes it."""

    def __init__(self, session: Any, direction: Literal["ingress", "egress"] = "ingress",
                 first_stage: int = 0, last_stage: int = 0):
        if direction not in ("ingress", "egress"):
            raise ValueError(f"direction is 'ingress' or 'egress', not {direction!r}")
        self.session, self.direction = session, direction
        self._program = session._program
        session.handle  # raises for a session that is closed
        self.handle: int = get(self._program, "snapshot_create", "", session.device_id,
                               session.pipe, first_stage, last_stage, direction == "egress")

    def _call(self, family: str, *arguments: Any) -> None:
        call(self._program, family, "", self.handle, *arguments)

    def trigger(self, **fields: Any) -> None:
        """Arms the snapshot: a packet matches that has these values; (value, mask) is a mask."""
        kind = self._program.record("triggers", self.direction)
        record = bytes(kind(**fields))
        # A second record behind the values has the masks.
        half = len(record) // 2
        self._call("snapshot_capture_trigger_set", record[:half], record[half:])

    def capture(self, pipe: int | None = None) -> list[Stage]:
        """What was captured, stage by stage; empty before a packet has matched."""
        records, control_records, captures = Output(), Output(), Output()
        try:
            self._call("snapshot_capture_data_get", self.session.pipe if pipe is None else pipe,
                       records, control_records, captures)
        except _core.NotReady:
            return []
        return [Stage(record, control.stage, bool(control.valid), bool(control.triggered))
                for record, control in
                zip(records.value[:captures.value], control_records.value)]

    def inject(self, *, first_stage: int = 0, stages: int = 1, pipe: int | None = None,
               **fields: Any) -> int:
        """Sends a packet through stages and returns how many snapshots captured it.

        Fields that are not given are 0.
        """
        record = bytes(self._program.record("packets", self.direction)(**fields)) * unsigned(stages, "stages", 1)
        number = 0 if self.session.pipe == 0xffff else self.session.pipe
        return int(read_control("soft_snapshot_inject", self.session.device_id,
                                number if pipe is None else pipe,
                                self.direction == "egress", first_stage, record, stages,
                                len(record)))

    def __repr__(self) -> str:
        return f"<Snapshot {self.handle} of {self.direction}, device {self.session.device_id}>"

    def delete(self) -> None:
        """Deletes the snapshot."""
        self._call("snapshot_delete")

    def __enter__(self) -> Self:
        return self

    def __exit__(self, *_error: object) -> None:
        self.delete()

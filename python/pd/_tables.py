"""Match tables."""
from __future__ import annotations

from pd import _core
from pd._call import bytes_of_hash, call, control, delete_all, get, read_control, walk
from pd._core import Entry, Hit, IdleParams, Opaque, Output, Program, TableBase, unsigned
from pd._listeners import listen
from pd._numbers import IdleMode, TableProperty, Update

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable, Iterator

    AnyEntry = Entry[Any, Any]

COLORS = ("green", "yellow", "red")


def number_of(entry: Any, what: str = "cell") -> int:
    """The handle of an entry, or the number that it is."""
    return entry.handle if isinstance(entry, Entry) else unsigned(entry, what)


class Table(TableBase):
    """A match table of a session.

    `add`, `modify`, `delete`, `find`, `lookup` and `traffic` take the fields of the key as keyword
    arguments, by the names that tools show: numbers, texts in native notation ("10.0.0.0/8",
    "02:00:00:00:00:01", "0x10&0xf0", "*"), objects of ipaddress, bytes, or (value, mask). A
    ternary field that is left out matches anything. A field that has the name of another argument,
    or of a word of Python, is written with a '_' behind it.
    """

    def __init__(self, program: Program, name: str, session: Any, facts: dict[str, Any]):
        self._program, self._facts = program, facts
        self.handle: int = facts["handle"]
        self.profile: str | None = facts["profile"]
        self.is_ternary: bool = facts["ternary"]
        self.ages_entries: bool = facts["ages"]
        self.actions: tuple[str, ...] = tuple(facts["actions"])

    def __new__(cls, program: Program, name: str, session: Any, facts: dict[str, Any]) -> Table:
        made: Table = super().__new__(cls, program, name, session)
        return made

    def __repr__(self) -> str:
        return f"<Table {self.name} of {self._program.name}>"

    def _call(self, family: str, *arguments: Any) -> None:
        call(self._program, family, self.name, *arguments)

    def _get(self, family: str, *arguments: Any) -> Any:
        return get(self._program, family, self.name, *arguments)

    def _entry(self, entry: int | AnyEntry) -> int:
        """The handle of one of its entries, or the number that it is."""
        if isinstance(entry, Entry) and entry.key is not None \
                and not isinstance(entry.key, self._program.record("keys", self.name)):
            raise TypeError(f"{self.name} takes an entry of its own, not one of {type(entry.key).__name__}")
        return number_of(entry, "entry")

    # ---- Entries ----

    def replace(self, *arguments: Any, **fields: Any) -> int:
        """Adds an entry, or modifies the one with this key and priority; returns its handle."""
        key = {name: value for name, value in fields.items() if name not in ("meter", "ttl")}
        while True:
            try:
                entry = int(self.find(**key))
                self.modify(*arguments, entry, meter=fields.get("meter"))
                if fields.get("ttl") is not None:
                    self.set_ttl(entry, fields["ttl"])
                return entry
            except _core.ObjectNotFound:
                pass
            try:
                return int(self.add(*arguments, **fields))
            except _core.AlreadyExists:  # another thread has added it
                pass

    def add_entry(self, entry: Any, *, ttl: int | None = None, meter: Any = None) -> int:
        """Adds an entry as it was read, with its key, its priority and what it does."""
        return int(self.add(entry.action or entry.group or entry.member, key=entry.key,
                            priority=entry.priority, ttl=ttl, meter=meter))

    def handles(self) -> Iterator[int]:
        """The handles of all entries, without the default entry."""
        session = self.session
        yield from walk(
            lambda: self._get("get_first_entry_handle", session, session),
            lambda entry, count: self._get("get_next_entry_handles", session, session, entry,
                                           count),
            _core.ObjectNotFound)

    def __iter__(self) -> Iterator[AnyEntry]:
        """All entries, as the library reads them, without those that go meanwhile."""
        for handle in self.handles():
            try:
                entry = self.get(handle)
            except _core.ObjectNotFound:
                continue
            yield entry

    def __contains__(self, entry: object) -> bool:
        """Whether there is such an entry: a handle, an entry as it was read, or a key.

        A key of a ternary table is a pair, the key and the priority.
        """
        try:
            if isinstance(entry, (Entry, int)):
                if not len(self):
                    return False
                self.placement(entry)  # asks the device, so that no call of the SDK fails
                found = self.get(entry)
                return found.key is not None and (isinstance(entry, int) or bool(found == entry))
            key, priority = entry if isinstance(entry, tuple) else (entry, None)
            self.find(key=key, priority=priority)
        except _core.ObjectNotFound:
            return False
        return True

    def __len__(self) -> int:
        return int(self._get("get_entry_count", self.session, self.session))

    def __bool__(self) -> bool:
        return True

    def clear(self) -> int:
        """Deletes all entries but the default entry, and returns how many these were."""
        return delete_all(list(self.handles()), self.delete)

    def default_entry(self) -> AnyEntry | None:
        """The default entry, whose key is None; None without one."""
        try:
            entry = self._get("table_get_default_entry_handle", self.session, self.session)
        except _core.ObjectNotFound:
            return None
        found: AnyEntry = self.get(entry)
        return found

    def reset_default(self) -> None:
        """Puts the program's own default entry back."""
        self._call("table_reset_default_entry", self.session, self.session)

    # ---- Ageing ----

    def set_ttl(self, entry: int | AnyEntry, ttl: int) -> None:
        """Milliseconds until the entry expires unless packets hit it."""
        self._call("set_ttl", self.session, self.session, self._entry(entry), ttl)

    def ttl(self, entry: int | AnyEntry) -> int:
        """Milliseconds until the entry expires."""
        return int(self._get("get_ttl", self.session, self.session, self._entry(entry)))

    def is_active(self, entry: int | AnyEntry) -> bool:
        """Whether a packet has hit the entry since its hit state was updated."""
        return bool(self._get("get_hit_state", self.session, self.session, self._entry(entry)))

    def set_active(self, entry: int | AnyEntry, active: bool = True) -> None:
        """Sets whether a packet has hit the entry."""
        self._call("update_hit_state", self.session, self.session, self._entry(entry),
                   unsigned(active, "active"))

    def enable_ageing(self, *, sweep_interval: int = 1000, max_ttl: int = 0, min_ttl: int = 0,
                      default_ttl: int = 0, poll: bool = False) -> None:
        """Entries age; all in milliseconds. With poll nobody is called, and states are read."""
        params = IdleParams(IdleMode.POLL if poll else IdleMode.NOTIFY, sweep_interval, max_ttl,
                            min_ttl, default_ttl)
        self._call("idle_tmo_enable", self.session, self.session, params)

    def disable_ageing(self) -> None:
        """Entries age no more."""
        self._call("idle_tmo_disable", self.session, self.session)

    def ageing(self) -> IdleParams:
        """What enable_ageing has set."""
        params: IdleParams = self._get("idle_params_get", self.session, self.session)
        return params

    def on_expiry(self, callback: Callable[[int], object] | None) -> None:
        """Has the callback called with the handle of each entry that expires; None: nobody."""
        listen(self._program, self.name, self.session, "idle_register_tmo_cb", callback,
               lambda each, _device, _table, entry: each(entry))

    # ---- The table as a whole ----

    def on_update(self, callback: Callable[[Update, int], object] | None) -> None:
        """Has the callback called with what was done and the entry after each change; None: nobody."""
        listen(self._program, self.name, self.session, "register_mat_update_cb", callback,
               lambda each, _session, _device, _table, update, entry: each(Update(update), entry))

    def property(self, number: int) -> tuple[int, int]:
        """Value and argument of a TableProperty."""
        value, argument = Output(), Output()
        self._call("get_property", self.session, self.session, number, value, argument)
        return value.value, argument.value

    def set_property(self, number: int, value: int, argument: int = 0) -> None:
        """Sets a TableProperty."""
        self._call("set_property", self.session, self.session, number, value, argument)

    def capacity(self) -> int:
        """How many entries the table may have; 0: any number."""
        return self.property(TableProperty.CAPACITY)[0]

    def set_capacity(self, capacity: int) -> None:
        """Limits how many entries the table may have; 0: any number."""
        self.set_property(TableProperty.CAPACITY, capacity)

    def schema(self) -> str:
        """The schema of value strings; empty in a table without them."""
        output = Output()
        self._text("table_schema", output)
        return str(output.value)

    def value(self, entry: int | AnyEntry, from_hardware: bool = False) -> str:
        """The entry as a value string; empty where there is none."""
        output = Output()
        self._text("table_value", self.session, self.session, self._entry(entry), from_hardware,
                   output)
        return str(output.value)

    def label(self, entry: int | AnyEntry) -> str:
        """What monitoring shows for a counted entry; empty in a table without labels."""
        output = Output()
        found = self._program.export("stringify_counter_matchspec")
        if found is not None:
            found(self.session, self.session, self.handle, self._entry(entry), output)
        return str(output.value or "")

    def _text(self, family: str, *arguments: Any) -> None:
        found = self._program.export(family, self.name)
        if found is not None:
            found(*arguments)

    # ---- Placement data ----

    def placement(self, entry: int | AnyEntry) -> Opaque:
        """What the device holds of an entry, without the device."""
        return _core.placement_of(self.session.device_id, self.handle, self._entry(entry), False)

    def has_placement(self, placement: Opaque, entry: int | AnyEntry) -> bool:
        """Whether the hardware holds the same under the entry."""
        found = self._program.export("plcmt_data_eq_to_hw", self.name)
        return found is not None and bool(found(self.session, self.session, self.handle,
                                                self._entry(entry), placement))

    # ---- Packets ----

    def _held(self, kind: str, handle: int) -> Any:
        """A member or a group of the table's profile."""
        assert self.profile is not None
        return getattr(self.session.profiles[self.profile], kind)(handle)

    def lookup(self, *, pipe: int | None = None, **fields: Any) -> AnyEntry | None:
        """The entry that a packet hits, or the default entry, or None. Nothing is counted.

        A packet has one value in each field, and 0 in those that are left out.
        """
        key = self.packet_key(**fields)
        entry, is_default = Output(), Output()
        try:
            control("soft_lookup", self.session.device_id, self._pipe(pipe), self.handle, key,
                    len(key), entry, is_default)
        except _core.TableMiss:
            return None
        found: AnyEntry = self.get(entry.value)
        return found

    def traffic(self, *, packets: int = 1, bytes: int | None = None, hash: bytes | int = b"",
                pipe: int | None = None, **fields: Any) -> Hit | None:
        """Sends packets of 64 bytes, or of so many bytes in all, through the table.

        The hash chooses members of groups. None: there is neither a hit nor a default entry.
        """
        key = self.packet_key(**fields)
        bits = bytes_of_hash(hash)
        try:
            hit = read_control("traffic_hit", self.session.device_id, self._pipe(pipe), self.handle,
                               key, len(key), bits, len(bits), packets,
                               64 * packets if bytes is None else bytes)
        except _core.TableMiss:
            return None
        return Hit(hit.entry, bool(hit.is_default), self._program.action_name(hit.action),
                   self._held("group", hit.group) if hit.group else None,
                   self._held("member", hit.member) if hit.member else None, COLORS[hit.color])

    def memory(self) -> int:
        """Bytes that the soft device holds for the table."""
        return int(read_control("soft_memory_bytes", self.session.device_id, self.handle))

    def _pipe(self, pipe: int | None) -> int:
        if pipe is not None:
            return pipe
        return 0 if self.session.pipe == 0xffff else int(self.session.pipe)

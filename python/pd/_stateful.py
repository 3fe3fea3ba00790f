"""Counters, meters and registers."""
from __future__ import annotations

from pd import _core
from pd._call import Name, control, function, read_control
from pd._core import CounterValues, MeterSpec, Output, unsigned
from pd._listeners import checked
from pd._tables import COLORS, number_of

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable, Iterable, Iterator

    from pd._tables import AnyEntry

READ_FROM_HARDWARE = 1


class _Cells(Name):
    """Cells by index, or of the entries of a table."""

    def __init__(self, program: Any, name: str, session: Any, facts: dict[str, Any]):
        super().__init__(program, name, session, facts)
        self.table: str | None = facts.get("table")

    def used(self) -> Iterator[int]:
        """The cells of the soft device that are not as most are; of an array alone."""
        cell = 0
        while True:
            try:
                cell = read_control("soft_next_cell", self.session.device_id, self.handle, cell)
            except _core.ObjectNotFound:
                return
            yield cell
            cell += 1

    def _sync(self, family: str, callback: Callable[[], object] | None) -> None:
        checked(callback)

        def synchronised(_device: int) -> None:
            if callback is not None:
                callback()
        self._call(family, self.session, self.session, synchronised, None)


class Counter(_Cells):
    """A counter: an array of cells, or a cell for each entry of a table."""

    def read(self, cell: int | AnyEntry, from_hardware: bool = True) -> CounterValues:
        """What the cell has counted, brought up to date from the hardware first."""
        values: CounterValues = self._get("counter_read", self.session, self.session,
                                          number_of(cell), from_hardware)
        return values

    def read_all(self, cells: Iterable[int | AnyEntry] | None = None,
                 from_hardware: bool = True) -> dict[int, CounterValues]:
        """The same of many cells; None: of the entries of its table, or of the cells in use."""
        if cells is None:
            cells = self.used() if self.table is None else self.session.tables[self.table].handles()
        read, output = function(self._program, "counter_read", self.name), Output()
        values: dict[int, CounterValues] = {}
        for cell in map(number_of, cells):
            _core.check(read(self.session, self.session, cell, from_hardware, output), self.name)
            values[cell] = output.value
        return values

    def write(self, cell: int | AnyEntry, packets: int = 0, bytes: int = 0) -> None:
        """Sets what the cell has counted."""
        self._call("counter_write", self.session, self.session, number_of(cell), (packets, bytes))

    def synchronise(self, callback: Callable[[], object] | None = None) -> None:
        """Brings all cells up to date from the hardware and calls the callback."""
        self._sync("counter_hw_sync", callback)

    def count(self, cell: int, packets: int = 1, bytes: int | None = None,
              pipe: int | None = None) -> None:
        """Counts in a cell of an array as packets do."""
        control("soft_counter_count", self.session.device_id, self._pipe(pipe), self.handle, cell,
                packets, 64 * packets if bytes is None else bytes)


class Meter(_Cells):
    """A meter: an array of cells, or a cell for each entry of a table."""

    def set(self, cell: int | AnyEntry, *, committed_rate: int, committed_burst: int, peak_rate: int,
            peak_burst: int) -> None:
        """Rates in kilobits or packets per second, bursts in kilobits or packets."""
        spec = (committed_rate, committed_burst, peak_rate, peak_burst, 1)
        self._call("meter_set", self.session, self.session, number_of(cell), spec)

    def read(self, cell: int | AnyEntry) -> MeterSpec:
        """The rates and bursts of a cell."""
        spec: MeterSpec = self._get("meter_read", self.session, self.session, number_of(cell))
        return spec

    def set_adjustment(self, bytes: int) -> None:
        """Bytes added to the length of every packet that the meter sees."""
        self._call("meter_bytecount_adjust_set", self.session, self.session, bytes)

    def adjustment(self) -> int:
        """What set_adjustment has set."""
        return int(self._get("meter_bytecount_adjust_get", self.session, self.session))

    def mark(self, cell: int, packets: int = 1, bytes: int | None = None,
             pipe: int | None = None) -> str:
        """The colour that a cell of an array gives packets."""
        color = read_control("soft_meter_mark", self.session.device_id, self._pipe(pipe),
                             self.handle, cell, packets, 64 * packets if bytes is None else bytes)
        return COLORS[color]


class Register(_Cells):
    """An array of cells, each with a value in every pipe."""

    def __init__(self, program: Any, name: str, session: Any, facts: dict[str, Any]):
        super().__init__(program, name, session, facts)
        self.width: int = facts["width"]

    def read(self, cell: int, from_hardware: bool = True) -> list[int]:
        """The value in each pipe that the session is about."""
        values, count = Output(), Output()
        self._call("register_read", self.session, self.session, cell, from_hardware, values,
                   count)
        found: list[int] = values.value[:count.value]
        return found

    def read_range(self, first: int, count: int, from_hardware: bool = True) -> list[list[int]]:
        """The same of several cells, perhaps of fewer at the end of the register."""
        read, values, filled = Output(), Output(), Output()
        self._call("register_range_read", self.session, self.session, first, count,
                   from_hardware, read, values, filled)
        if not read.value:
            return []
        pipes = filled.value // read.value
        return [values.value[at * pipes:(at + 1) * pipes] for at in range(read.value)]

    def _value(self, value: int) -> bytes:
        size = max(self.width, 8) // 8
        if unsigned(value, f"a value of {self.name}", 8) >= 1 << self.width:
            raise ValueError(f"{self.name} has {self.width} bits, so 0 to {(1 << self.width) - 1}; "
                             f"not {value}")
        return value.to_bytes(size, "little")

    def write(self, cell: int, value: int) -> None:
        """Writes the value into all pipes that the session is about."""
        self._call("register_write", self.session, self.session, cell, self._value(value))

    def write_all(self, value: int) -> None:
        """Writes the value into all cells."""
        self._call("register_write_all", self.session, self.session, self._value(value))

    def reset(self, first: int | None = None, count: int = 1) -> None:
        """All cells to 0, or so many from one on."""
        if first is None:
            self._call("register_reset_all", self.session, self.session)
        else:
            self._call("register_range_reset", self.session, self.session, first, count)

    def synchronise(self, callback: Callable[[], object] | None = None) -> None:
        """Brings the software copy up to date and calls the callback."""
        self._sync("register_hw_sync", callback)

    def packet_write(self, cell: int, value: int, pipe: int | None = None) -> None:
        """Writes a cell in the hardware as an action of the data plane does."""
        self._value(value)
        control("soft_register_write", self.session.device_id,
                self.session.pipe if pipe is None else pipe, self.handle, cell, value)

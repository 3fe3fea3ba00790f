"""Devices of the soft SDK, and sessions, which control them."""
from __future__ import annotations

from pd import _core
from pd._call import call, control, function, meant, read_control
from pd._core import Program, SessionBase, WredParams
from pd._listeners import forget_device, forget_session
from pd._profiles import Profile
from pd._services import Digest, Hash, Snapshot, ValueSet
from pd._stateful import Counter, Meter, Register
from pd._tables import Table

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Iterable, Iterator, KeysView, Literal, Self

_started: set[str] = set()
# Devices that were made and are not removed, by number.
opened: dict[int, Device] = {}


def number_of(device: Device | int) -> int:
    return device.id if isinstance(device, Device) else device


def start(program: Program) -> None:
    """Initialises the library of a program, once."""
    if program.name in _started:
        return
    status = function(program, "init")()
    # Refused: it was initialised by the raw function.
    if status != _core.DriverRefused.status:
        _core.check(status, f"{program.name} init")
    _started.add(program.name)


def program_of(made: Any) -> Program:
    """The program of a device or a session, whose library is initialised."""
    program: Program | None = getattr(type(made), "_program", None)
    if program is None:
        name = type(made).__name__
        raise TypeError(f"pd.{name} has no program: use the {name} of its package, such as "
                        f"tessel_switch.{name}")
    start(program)
    return program


class Namespace:
    """The objects of a kind, as attributes and by name; each is made when it is asked for."""

    _program: Program
    _kind: str
    _make: Any
    _session: Any
    _facts: dict[str, Any]

    def __init__(self, program: Program, kind: str, make: Any, session: Any):
        self.__dict__.update(_program=program, _kind=kind, _make=make, _session=session,
                             _facts=program.objects(kind))


    if not TYPE_CHECKING:  # what there is follows from the program
        def __getattr__(self, name: str) -> Any:
            if name.startswith("_"):
                raise AttributeError(name)
            return self._find(name)

    def _find(self, name: str) -> Any:
        # A '_' behind a name that Python takes for itself.
        facts = self._facts.get(name) or self._facts.get(name.rstrip("_"))
        if facts is None:
            raise AttributeError(f"{self._program.name} has no {self._kind} of the name {name}"
                                 + meant(name, list(self._facts)))
        made = self._make(self._program, name.rstrip("_") if name not in self._facts else name,
                          self._session, facts)
        self.__dict__[name] = made
        return made

    def __setattr__(self, name: str, value: object) -> None:
        raise AttributeError(f"the {self._kind} of {self._program.name} are those of the program")

    def keys(self) -> KeysView[str]:
        """The names of the objects."""
        return self._facts.keys()

    def items(self) -> list[tuple[str, Any]]:
        """Each object with its name."""
        return [(name, self[name]) for name in self._facts]

    def __repr__(self) -> str:
        return f"<{len(self)} {self._kind} of {self._program.name}>"

    def __getitem__(self, name: str) -> Any:
        if name not in self._facts:
            raise KeyError(name)
        return getattr(self, name)

    def __iter__(self) -> Iterator[Any]:
        return (getattr(self, name) for name in self._facts)

    def __len__(self) -> int:
        return len(self._facts)

    def __contains__(self, name: object) -> bool:
        return name in self._facts

    def __dir__(self) -> list[str]:
        return sorted(self._facts)


KINDS: dict[str, Any] = {
    "tables": Table, "profiles": Profile, "counters": Counter, "meters": Meter,
    "registers": Register, "hashes": Hash, "digests": Digest, "value_sets": ValueSet}


class Device:
    """A soft device that runs the program; a context manager that removes it."""

    _program: Program

    def __init__(self, id: int = 0, *, pipes: int = 4, virtual: bool = False):
        program_of(self)
        self._program.create_device(id, pipes, virtual)
        self.id, self.pipes, self.virtual = id, pipes, virtual
        self._exists = True
        opened[self.id] = self

    def session(self, pipe: int | None = None) -> Any:
        """A new session for the device."""
        return self._session_type(self.id, pipe)

    _session_type: Any

    def remove(self) -> None:
        """Removes the device; again does nothing."""
        if self._exists:
            _core.device_remove(self.id)
            self._exists = False
            opened.pop(self.id, None)
            forget_device(self.id)

    def now(self) -> int:
        """The time of the device in milliseconds."""
        return int(read_control("soft_device_clock_now", self.id))

    def advance(self, milliseconds: int) -> None:
        """Moves this device ahead of the others."""
        control("soft_device_clock_advance", self.id, milliseconds)

    def copy_to(self, other: Device | int) -> None:
        """Makes another device of the program the same, handles and counts included."""
        control("soft_device_copy", self.id, number_of(other))

    def memory(self) -> int:
        """Bytes that the device holds."""
        return int(read_control("soft_memory_bytes", self.id, 0))

    def log(self) -> str:
        """What the libraries keep for the device, as JSON."""
        return _core.device_log(self.id)

    def restore(self, state: str) -> None:
        """Gives the libraries a log back."""
        _core.device_restore(self.id, state)

    def __enter__(self) -> Self:
        return self

    def __exit__(self, *_error: object) -> None:
        self.remove()

    def __repr__(self) -> str:
        return f"<Device {self.id} of {self._program.name}{'' if self._exists else ', removed'}>"


class Session(SessionBase):
    """A session for a device and a pipe, or all its pipes; a context manager that closes it.

    Any number of threads may use it.
    """

    _program: Program

    def __init__(self, device: Device | int = 0, pipe: int | None = None):
        """Opens the session."""
        program_of(self)
        super().__init__(number_of(device), pipe)

    def close(self) -> None:
        """Closes the session, whose callbacks nobody calls any more; again does nothing."""
        if not self.closed:
            try:
                forget_session(self.handle)
            finally:
                super().close()

    def __dir__(self) -> list[str]:
        return sorted({*super().__dir__(), *KINDS})

    if not TYPE_CHECKING:  # what there is follows from the program
        def __getattr__(self, name: str) -> Any:
            kind = KINDS.get(name)
            if kind is None:
                near = "" if name.startswith("_") else meant(name, dir(self))
                raise AttributeError(f"a session has no {name}{near}")
            made = Namespace(self._program, name, kind, self)
            setattr(self, name, made)
            return made

    def on(self, device: Device | int | None = None, pipe: int | None = None) -> Self:
        """The same session for another device, or for one pipe; None: all pipes."""
        number = self.device_id if device is None else number_of(device)
        view: Self = self._on(number, pipe)
        # What a class below this one keeps.
        view.__dict__.update((name, kept) for name, kept in self.__dict__.items()
                             if name not in KINDS)
        return view

    def snapshot(self, direction: Literal["ingress", "egress"] = "ingress", first_stage: int = 0,
                 last_stage: int = 0) -> Snapshot:
        """A new snapshot of stages of the session's pipe."""
        return Snapshot(self, direction, first_stage, last_stage)

    def add_routes(self, routes: Iterable[tuple[Any, Any]] | tuple[Any, Any], *, keep: bool = False,
                   **fields: Any) -> int:
        """Adds (prefix, next hop) for each route to the tables of IPv4 and IPv6.

        Routes of one kind may also be columns, ((addresses, lengths), next hops). The other fields
        of the keys are the same for all. Returns how many were added. All or none are, unless keep
        says that what was added before a fault stays.
        """
        tables, action = self._program.routes
        if len(tables) != 2 or action is None:
            raise TypeError(f"{self._program.name} has no tables of routes")
        four, six = (getattr(self, "tables")[name] for name in tables)
        return _core.add_routes(four, six, self._program.record("actions", action), routes,
                                keep=keep, **fields)

    def set_learning_timeout(self, microseconds: int) -> None:
        """How long the device collects entries of digests before it sends them."""
        call(self._program, "set_learning_timeout", "", self, self, microseconds)

    def set_wred(self, handle: int, cell: int, params: WredParams | tuple[float, int, int, float]
                 ) -> None:
        """A random early detection profile: time constant in ns, thresholds in cells, probability."""
        call(self._program, "wred_set", "", self, self, handle, cell, params)

    def wred(self, handle: int, cell: int, pipe: int = 0) -> WredParams:
        """The profile that was set in a cell."""
        params: WredParams = read_control("soft_wred_get", self.device_id, pipe, handle, cell)
        return params

    def restore_virtual(self, virtual: Device | int) -> None:
        """Replays a virtual device onto the session's device."""
        call(self._program, "restore_virtual_dev_state", "", self, self,
             number_of(virtual), self.pipe, 0)

    def __enter__(self) -> Self:
        return self

    def __exit__(self, *_error: object) -> None:
        self.close()

    def __repr__(self) -> str:
        pipe = "all pipes" if self.pipe == 0xffff else f"pipe {self.pipe}"
        state = ", closed" if self.closed else ""
        return f"<Session of device {self.device_id}, {pipe}{state}>"

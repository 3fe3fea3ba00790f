"""Control of the soft SDK for a whole process: its clock, fault plan and journal."""
from __future__ import annotations

from pd._call import meant
from pd._core import JournalCall, StatusError, journal_calls, sdk_functions, soft, unsigned

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any


class Clock:
    """The virtual clock of all devices, in milliseconds. Time passes here alone."""

    def __repr__(self) -> str:
        return f"<Clock at {self.now()} ms>"

    def now(self) -> int:
        """The time of all devices."""
        return int(soft["soft_clock_now"]())

    def advance(self, milliseconds: int) -> None:
        """Ages entries and runs the callbacks of those that expire before it returns."""
        soft["soft_clock_advance"](milliseconds)


def _function(name: str) -> str:
    if not isinstance(name, str):
        raise TypeError(f"function is a str, not {type(name).__name__}")
    if name not in sdk_functions:
        raise ValueError(f"the SDK has no function {name!r}{meant(name, sdk_functions)}")
    return name


def _status(status: int | type[StatusError]) -> int:
    number = unsigned(getattr(status, "status", status), "status")
    if number == 0:
        raise ValueError("a call that fails returns another status than 0")
    return number


def _count(n: int) -> int:
    if n == 0:
        raise ValueError("n counts from 1, the next one")
    return n


class Faults:
    """Calls that are to fail, once each; n counts from 1, the next one."""

    def __init__(self) -> None:
        self._planned: list[str] = []

    def __repr__(self) -> str:
        return f"<Faults, {self.pending()} of {self._planned} have not struck>"

    def _plan(self, what: str, name: str, *arguments: Any) -> None:
        before = self._planned if self.pending() else []
        soft[name](*arguments)
        self._planned = [*before, what]

    def fail_call(self, function: str, status: int | type[StatusError], n: int = 1) -> None:
        """The nth next call of a function of the SDK."""
        self._plan(f"call {n} of {function}", "fail_call", _function(function), _count(n),
                   _status(status))

    def fail_any_call(self, status: int | type[StatusError], n: int = 1) -> None:
        """The nth next call of any function of the SDK."""
        self._plan(f"call {n}", "fail_any_call", _count(n), _status(status))

    def fail_allocation(self, n: int = 1) -> None:
        """The nth next allocation of a library."""
        self._plan(f"allocation {n}", "fail_allocation", _count(n))

    def pending(self) -> int:
        """How many have not struck."""
        return int(soft["faults_pending"]())

    def clear(self) -> None:
        """Forgets what was planned."""
        soft["faults_clear"]()
        self._planned = []


class Journal:
    """The calls of the SDK between start and stop; `with journal as calls:` does both."""

    def __repr__(self) -> str:
        return f"<Journal, {len(self.calls())} calls>"

    def start(self) -> None:
        """Calls are kept from here on."""
        soft["journal_start"]()

    def stop(self) -> None:
        """No more calls are kept."""
        soft["journal_stop"]()

    def clear(self) -> None:
        """Forgets the calls."""
        soft["journal_clear"]()

    def calls(self, function: str | None = None) -> list[JournalCall]:
        """The calls in their order, or those of one function."""
        return journal_calls(None if function is None else _function(function))

    def __enter__(self) -> Journal:
        self.start()
        return self

    def __exit__(self, *_error: object) -> None:
        self.stop()


clock, faults, journal = Clock(), Faults(), Journal()

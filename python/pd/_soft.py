"""Control of the soft SDK for a whole process: its clock, fault plan and journal."""
from __future__ import annotations

from operator import index

from pd._core import JournalCall, StatusError, is_sdk_function, journal_calls, soft

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any


class Clock:
    """The virtual clock of all devices, in milliseconds. Time passes here alone."""

    def now(self) -> int:
        """The time of all devices."""
        return int(soft["soft_clock_now"]())

    def advance(self, milliseconds: int) -> None:
        """Ages entries and runs the callbacks of those that expire before it returns."""
        soft["soft_clock_advance"](milliseconds)


def _function(name: str) -> str:
    if not is_sdk_function(name):
        raise ValueError(f"the SDK has no function {name!r}")
    return name


def _status(status: int | type[StatusError]) -> int:
    number: Any = getattr(status, "status", status)
    if number == 0:
        raise ValueError("a call that fails returns another status than 0")
    return index(number)


def _count(n: int) -> int:
    if n == 0:
        raise ValueError("n counts from 1, the next one")
    return n


class Faults:
    """Calls that are to fail, once each; n counts from 1, the next one."""

    def fail_call(self, function: str, status: int | type[StatusError], n: int = 1) -> None:
        """The nth next call of a function of the SDK."""
        soft["fail_call"](_function(function), _count(n), _status(status))

    def fail_any_call(self, status: int | type[StatusError], n: int = 1) -> None:
        """The nth next call of any function of the SDK."""
        soft["fail_any_call"](_count(n), _status(status))

    def fail_allocation(self, n: int = 1) -> None:
        """The nth next allocation of a library."""
        soft["fail_allocation"](_count(n))

    def pending(self) -> int:
        """How many have not struck."""
        return int(soft["faults_pending"]())

    def clear(self) -> None:
        """Forgets what was planned."""
        soft["faults_clear"]()


class Journal:
    """The calls of the SDK between start and stop; `with journal as calls:` does both."""

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

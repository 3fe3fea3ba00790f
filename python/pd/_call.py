"""Calls of the library by family and object."""
from __future__ import annotations

from pd import _core
from pd._core import Function, Output, Program, check, soft, unsigned

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable

# Functions by program, family, object and action.
_functions: dict[tuple[str, str, str, str], Function] = {}

# What tables lack whose entries do not age.
_AGEING = ("set_ttl", "get_ttl", "get_hit_state", "update_hit_state", "idle_tmo_enable",
           "idle_tmo_disable", "idle_params_get", "idle_register_tmo_cb")


def function(program: Program, family: str, name: str = "", action: str = "") -> Function:
    """The function; AttributeError where the program has none."""
    key = (program.name, family, name, action)
    found = _functions.get(key)
    if found is None:
        found = program.export(family, name, action)
        if found is None:
            raise AttributeError(f"{name} does not age its entries" if family in _AGEING else
                                 f"{name or program.name} has no function {family} {action}".rstrip())
        _functions[key] = found
    return found


def call(program: Program, family: str, name: str, *arguments: Any, action: str = "") -> None:
    """Calls it and raises the exception of its status."""
    check(function(program, family, name, action)(*arguments),
          f"{name or program.name}.{family}")


def get(program: Program, family: str, name: str, *arguments: Any, action: str = "") -> Any:
    """The same, for the value of an output behind the arguments."""
    output = Output()
    call(program, family, name, *arguments, output, action=action)
    return output.value


def control(name: str, *arguments: Any) -> None:
    """A call of the soft SDK's control interface."""
    check(soft[name](*arguments), name)


def read_control(name: str, *arguments: Any) -> Any:
    output = Output()
    control(name, *arguments, output)
    return output.value


def meant(name: str, names: list[str]) -> str:
    """What a message about a wrong name ends with."""
    near = _core.nearest(name, names)
    return f"; did you mean {near}?" if near else ""


def bytes_of_hash(hash: bytes | int) -> bytes:
    return unsigned(hash, "hash", 8).to_bytes(8, "big") if isinstance(hash, int) else hash


class Name:
    """An object of a program by name, as a session calls it."""

    def __init__(self, program: Program, name: str, session: Any, facts: dict[str, Any]):
        self._program, self.name, self.session = program, name, session
        self._facts = facts
        self.handle: int = facts["handle"]

    def _call(self, family: str, *arguments: Any) -> None:
        call(self._program, family, self.name, *arguments)

    def _get(self, family: str, *arguments: Any) -> Any:
        return get(self._program, family, self.name, *arguments)

    def _pipe(self, pipe: int | None) -> int:
        """A pipe that packets go through: the session's, or the first."""
        if pipe is not None:
            return pipe
        return 0 if self.session.pipe == 0xffff else int(self.session.pipe)

    def __repr__(self) -> str:
        return f"<{type(self).__name__} {self.name} of {self._program.name}>"


def walk(first: Any, following: Any, missing: type[Exception]) -> Any:
    """Handles that a pair of functions enumerates, each with an output behind its arguments.

    Those that other threads delete meanwhile do not end it.
    """
    count = 256
    try:
        found = [first()]
    except missing:
        return
    while found:
        yield from found
        known = set(found)
        # Behind the last one that is still there.
        for handle in reversed(found):
            try:
                found = [one for one in following(handle, count)
                         if one != 0xffffffff and one not in known]
                break
            except missing:
                pass
        else:
            return


def delete_all(things: list[Any], delete: Callable[[Any], object]) -> int:
    """Deletes what other threads have not deleted meanwhile; how many these are."""
    deleted = 0
    for one in things:
        try:
            delete(one)
            deleted += 1
        except _core.ObjectNotFound:
            pass
    return deleted

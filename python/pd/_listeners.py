"""Who is called about objects of devices: a callable of each session; the library has one."""
from __future__ import annotations

from pd import _core
from pd._call import call

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable

    Deliver = Callable[..., object]


def checked(callback: Any) -> Any:
    if callback is None or callable(callback):
        return callback
    raise TypeError(f"a callback is callable or None, not {type(callback).__name__}")


class Listeners:
    """The callables of sessions about one object of a device, by the handles of the sessions."""

    def __init__(self, deliver: Deliver):
        self.callbacks: dict[int, Any] = {}
        self._deliver = deliver

    def receive(self, *arguments: Any) -> None:
        """Calls all, and raises what the last of those raised that failed."""
        failed = None

        def each(*values: Any) -> None:
            nonlocal failed
            for callback in list(self.callbacks.values()):
                try:
                    callback(*values)
                except Exception as error:
                    failed = error
        self._deliver(each, *arguments)
        if failed is not None:
            raise failed


# By program, device, family and object.
_all: dict[tuple[Any, int, str, str], Listeners] = {}


def listen(program: Any, name: str, session: Any, family: str, callback: Any,
           deliver: Deliver) -> None:
    """Has the callback called instead of the one that the session had; None: it has none.

    The callback gets what `deliver` hands to its first argument of what the library sends.
    """
    key = (program, session.device_id, family, name)
    _set(key, _all.get(key) or Listeners(deliver), session.handle, checked(callback))


def _set(key: tuple[Any, int, str, str], listeners: Listeners, session: int, callback: Any) -> None:
    before = listeners.callbacks
    changed = {**before, session: callback}
    if callback is None:
        del changed[session]
    listeners.callbacks = changed
    try:
        _register(key, listeners, next(iter(before), None), next(iter(changed), None), session)
    except BaseException:
        listeners.callbacks = before
        raise
    if changed:
        _all[key] = listeners
    else:
        _all.pop(key, None)


def _register(key: tuple[Any, int, str, str], listeners: Listeners, old: int | None,
              new: int | None, session: int) -> None:
    """The library knows the first session that listens, which messages are given back with."""
    program, device, family, name = key
    if new is not None and new == old:
        return
    if family == "digest_register":
        if old is not None or new is None:
            call(program, "digest_deregister", name, session if old is None else old, device)
        if new is None:
            return
    call(program, family, name, session if new is None else new, device,
         None if new is None else listeners.receive, None)


def forget_session(session: int) -> None:
    for key, listeners in list(_all.items()):
        if session in listeners.callbacks:
            _set(key, listeners, session, None)


def forget_device(device: int) -> None:
    """The device is gone, and with it who listened to it."""
    for key in list(_all):
        if key[1] == device:
            del _all[key]

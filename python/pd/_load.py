"""What the package of a program is made of."""
from __future__ import annotations

import os
import sys

from pd import _core, errors
from pd._call import meant
from pd._device import Device, Session
from pd._soft import clock, faults, journal

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any

ModuleType = type(sys)


class Records(ModuleType):  # type: ignore[misc, valid-type]
    """A module of record types, or of functions, made when they are asked for."""

    def __init__(self, name: str, note: str, find: Any, names: Any):
        super().__init__(name, note)
        self.__dict__.update(_find=find, _names=names, __path__=[])

    def __getattr__(self, name: str) -> Any:
        if name == "__all__":
            return self._names()
        found = None if name.startswith("__") else self._find(name)
        if found is None:
            raise AttributeError(f"{self.__name__} has no {name}{meant(name, self._names())}")
        setattr(self, name, found)
        return found

    def __dir__(self) -> list[str]:
        return sorted(self._names())


def module_file(name: str | os.PathLike[str], package: str) -> str:
    """The module of a program: a file that is named, else beside the package, else beside pd."""
    name = os.fsdecode(name)
    if os.sep in name or name.endswith(".so"):
        return os.path.abspath(name)
    here = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    beside = os.path.dirname(os.path.dirname(os.path.abspath(package))) if package else here
    files = [os.path.join(folder, _core.modules, name + ".so") for folder in (beside, here)]
    for file in files:
        if os.path.exists(file):
            return file
    raise ImportError(f"there is no module of the program {name}: no file "
                      + " or ".join(dict.fromkeys(files)))


def load(name: str | os.PathLike[str]) -> Any:
    """Loads a program by its name or the file of its module, without a package; what one would be."""
    made = contents(name)
    module = ModuleType(made["program"].name)
    module.__dict__.update(made)
    return sys.modules.setdefault(module.__name__, module)


def contents(name: str | os.PathLike[str], package: str = "") -> dict[str, Any]:
    """What the package of a program has, by name; package is its file."""
    program = _core.load(module_file(name, package))
    made: dict[str, Any] = {}
    known = program.name
    for kind, note in (("actions", "Actions, as types of records."),
                       ("keys", "Keys of tables, as types of records."),
                       ("digests", "Entries of digests, as types of records.")):
        made[kind] = Records(f"{known}.{kind}", note,
                             lambda one, kind=kind: program.record(kind, one),
                             lambda kind=kind: program.records(kind))
    made["raw"] = Records(f"{known}.raw", "The functions of the library, as C has them.",
                          program.function, program.functions)
    for kind in list(made):
        sys.modules[f"{known}.{kind}"] = made[kind]
    # By name for pickle alone.
    for kind in ("triggers", "packets", "captures"):
        sys.modules[f"{known}.{kind}"] = Records(f"{known}.{kind}", "",
                                                 lambda one, kind=kind: program.record(kind, one),
                                                 lambda kind=kind: program.records(kind))
    session = type("Session", (Session,), {"_program": program, "__module__": known})
    device = type("Device", (Device,), {"_program": program, "__module__": known,
                                        "_session_type": session})
    made.update(errors=errors, Device=device, Session=session, program=program, clock=clock, faults=faults,
                journal=journal, __version__=program.version)
    return made

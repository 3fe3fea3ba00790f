"""Fixtures for tests of a control plane on the soft SDK.

pytest finds them by itself. The program is the one that the module of the test imports, unless
`pd_program` in pytest's configuration names it or a fixture `program` returns its package.
"""
from __future__ import annotations

import importlib
from types import ModuleType
from typing import Any, Iterator

import pytest

import pd
from pd._device import opened


def pytest_addoption(parser: pytest.Parser) -> None:
    parser.addini("pd_program", "the program that the fixtures device and session are of")


@pytest.fixture(scope="module")
def program(request: pytest.FixtureRequest) -> Any:
    """The package of the program."""
    if name := request.config.getini("pd_program"):
        return importlib.import_module(name)
    for value in vars(request.module).values():
        if isinstance(value, ModuleType) and isinstance(getattr(value, "program", None), pd.Program):
            return value
    pytest.fail("the module of the test should import the package of a program, or pd_program in "
                "the configuration of pytest should name it")


@pytest.fixture
def soft_sdk() -> Iterator[None]:
    """Devices, faults and calls of the test go after it; the clock goes on."""
    before = set(opened)
    yield
    pd.faults.clear()
    pd.journal.stop()
    pd.journal.clear()
    for number in set(opened) - before:
        opened[number].remove()


@pytest.fixture
def device(program: Any, soft_sdk: None) -> Iterator[Any]:
    """A fresh device 0."""
    with program.Device() as made:
        yield made


@pytest.fixture
def session(device: Any) -> Iterator[Any]:
    """A session for all pipes of the device."""
    with device.session() as opened:
        yield opened


@pytest.fixture
def faults(soft_sdk: None) -> Iterator[Any]:
    """The fault plan. The test fails if a fault that it planned has not struck."""
    yield pd.faults
    left = pd.faults.pending()
    if left:
        pytest.fail(f"{left} of the faults that were planned have not struck; planned: "
                    + ", ".join(pd.faults._planned))


@pytest.fixture
def journal(soft_sdk: None) -> Iterator[Any]:
    """The journal of the test's calls."""
    with pd.journal:
        yield pd.journal


@pytest.fixture
def good_calls(journal: Any) -> Iterator[Any]:
    """The same. The test fails if a call of the SDK has failed, but for those that only ask.

    These are the end of an enumeration, and what `in`, find and default_entry look for.
    """
    yield journal
    ends = (pd.errors.ObjectNotFound.status, pd.errors.EndOfList.status)
    asking = ("get_first", "get_next", "match_spec_to_ent_hdl", "get_default_entry_handle")
    failed = [call for call in journal.calls() if call.status and not (
        call.status in ends and any(one in call.function for one in asking))]
    if failed:
        pytest.fail("\n".join(f"{call.function} returned {call.status}" for call in failed))

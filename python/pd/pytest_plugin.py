"""Fixtures for tests of a control plane on the soft SDK.

pytest finds them by itself. `pd_program` in its configuration names the program, unless a fixture
`program` of the tests returns its package.
"""
from __future__ import annotations

import importlib
from typing import Any, Iterator

import pytest

import pd


def pytest_addoption(parser: pytest.Parser) -> None:
    parser.addini("pd_program", "the program that the fixtures device and session are of")


@pytest.fixture(scope="session")
def program(pytestconfig: pytest.Config) -> Any:
    """The package of the program."""
    name = pytestconfig.getini("pd_program")
    if not name:
        pytest.fail("pd_program in the configuration of pytest should name a program, or a "
                    "fixture program should return its package")
    return importlib.import_module(name)


@pytest.fixture
def device(program: Any) -> Iterator[Any]:
    """A fresh device 0."""
    with program.Device() as made:
        yield made


@pytest.fixture
def session(device: Any) -> Iterator[Any]:
    """A session for all pipes of the device."""
    with device.session() as opened:
        yield opened


@pytest.fixture
def faults() -> Iterator[Any]:
    """The fault plan. The test fails if a fault that it planned has not struck."""
    pd.faults.clear()
    yield pd.faults
    left = pd.faults.pending()
    pd.faults.clear()
    if left:
        pytest.fail(f"{left} of the faults that were planned have not struck")


@pytest.fixture
def journal() -> Iterator[Any]:
    """The journal of the test's calls."""
    with pd.journal:
        yield pd.journal
    pd.journal.clear()


@pytest.fixture
def good_calls(journal: Any) -> Iterator[Any]:
    """The same. The test fails if a call of the SDK has failed, but for the end of an enumeration."""
    yield journal
    failed = [call for call in journal.calls() if call.status
              and "get_first" not in call.function and "get_next" not in call.function]
    if failed:
        pytest.fail("\n".join(f"{call.function} returned {call.status}" for call in failed))

"""Fixtures: the programs of the environment's PD_PROGRAMS."""
import importlib
import os

import pytest

import pd

pytest_plugins = ["pd.pytest_plugin"]


@pytest.fixture(scope="session")
def program():
    return importlib.import_module("tessel_switch")


@pytest.fixture(params=os.environ["PD_PROGRAMS"].split())
def package(request):
    return importlib.import_module(request.param)


@pytest.fixture
def device(request):
    """Of the package where a test is about any, else of the program."""
    wanted = "package" if "package" in request.fixturenames else "program"
    with request.getfixturevalue(wanted).Device() as made:
        yield made


@pytest.fixture
def routes(session):
    return session.tables.ipv4ShortMaskLpm

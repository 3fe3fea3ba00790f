"""A control-plane function and its test on the soft SDK: `pytest test_routes.py`"""
import pytest

import pd
import tessel_switch as ts
from tessel_switch.actions import setNextHop


def put_route(session: ts.Session, prefix: str, next_hop: int) -> None:
    """Adds a route, or gives the one that is there another next hop."""
    routes = session.tables.ipv4ShortMaskLpm
    try:
        routes.add(setNextHop(nextHop=next_hop), vrfId=0, dip=prefix)
    except pd.errors.AlreadyExists:
        routes.modify(setNextHop(nextHop=next_hop), vrfId=0, dip=prefix)


def test_put_route(session: ts.Session, faults: pd.Faults) -> None:
    put_route(session, "10.0.0.0/8", 17)
    put_route(session, "10.0.0.0/8", 18)
    hit = session.tables.ipv4ShortMaskLpm.lookup(vrfId=0, dip="10.1.2.3")
    assert hit and hit.action == setNextHop(nextHop=18)
    faults.fail_call("pipe_mgr_mat_ent_add", pd.errors.TableFull)
    with pytest.raises(pd.errors.TableFull):
        put_route(session, "11.0.0.0/8", 17)
    assert len(session.tables.ipv4ShortMaskLpm) == 1


@pytest.fixture(scope="session")
def program() -> object:
    return ts

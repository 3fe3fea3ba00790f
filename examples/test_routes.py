"""A control-plane function and its test on the soft SDK: `pytest test_routes.py`"""
import tessel_switch as ts
from tessel_switch.actions import setNextHop


def put_route(session: ts.Session, prefix: str, next_hop: int) -> None:
    session.tables.ipv4ShortMaskLpm.replace(setNextHop(nextHop=next_hop), vrfId=0, dip=prefix)


def test_put_route(session: ts.Session) -> None:
    put_route(session, "10.0.0.0/8", 17)
    put_route(session, "10.0.0.0/8", 18)
    hit = session.tables.ipv4ShortMaskLpm.lookup(vrfId=0, dip="10.1.2.3")
    assert hit and hit.action == setNextHop(nextHop=18)

"""Calls for many entries."""
import array
import ipaddress

import numpy
import pytest

import pd
from tessel_switch.actions import setNextHop


def test_bulk_adds_all_or_nothing(session, routes):
    rows = [("10.0.0.0/8", 1), ("11.0.0.0/8", 2), ("12.0.0.0/8", 3)]
    handles = routes.add_rows(setNextHop, rows, vrfId=1)
    assert [routes.get(one).action.nextHop for one in handles] == [1, 2, 3]
    assert numpy.asarray(handles).dtype == numpy.uint32
    bad = rows + [("12.0.0.0/33", 3)]
    with pytest.raises(ValueError, match="dip") as caught:
        routes.add_rows(setNextHop, bad, vrfId=2)
    assert caught.value.row == 3 and list(caught.value.handles) == [] and len(routes) == 3
    with pytest.raises(pd.errors.AlreadyExists, match="row 600") as caught:
        routes.add_rows(setNextHop, (((n % 600) << 16 | 1, 7) for n in range(700)),
                        columns=("dip", "nextHop"), vrfId=2, keep=True)
    assert caught.value.row == 600 and len(caught.value.handles) == 600
    assert len(routes) == 603
    # What stays are the rows before the fault, wherever it is.
    for rows in (((n << 16, 1 // (300 - n)) for n in range(400)),
                 [(n << 16, 1) for n in range(300)] + [("x", 1)]):
        with pytest.raises((ZeroDivisionError, ValueError)) as caught:
            routes.add_rows(setNextHop, rows, vrfId=3, keep=True)
        assert caught.value.row == len(caught.value.handles) == 300 == len(routes) - 603
        assert routes.delete_rows([(n << 16,) for n in range(300)], vrfId=3) == 300
    for wrong in ([1], [(1, 2, 3)], [{"dip": 1}], [{"dip": 1, "nextHop": 1}, {"dip": 2}], 7):
        with pytest.raises((TypeError, ValueError)):
            routes.add_rows(setNextHop, wrong, vrfId=3)
    with pytest.raises(TypeError, match="given twice"):
        routes.add_rows(setNextHop, rows, columns=("dip", "vrfId", "nextHop"), vrfId=3)
    assert len(routes) == 603
    assert routes.replace_rows(setNextHop, [("10.0.0.0/8", 4), ("13.0.0.0/8", 5)], vrfId=1) == 2
    with pytest.raises(pd.errors.ObjectNotFound) as caught:
        routes.modify_rows(setNextHop, [("13.0.0.0/8", 6), ("14.0.0.0/8", 6)], vrfId=1)
    assert caught.value.row == 1
    assert [one.action.nextHop for one in list(routes)[-1:]] == [6] and routes.clear() == 604


def test_columns_of_any_kind(session, routes):
    dips = numpy.arange(0, 5 << 8, 1 << 8, dtype=numpy.uint32)
    hops = array.array("H", range(5))
    handles = routes.add_columns(setNextHop, vrfId=1, dip=(dips, [24] * 5), nextHop=hops)
    assert routes.get(handles[4]).key.dip == "0.0.4.0/24"
    assert routes.get(handles[4]).action.nextHop == 4
    routes.add_columns(setNextHop(nextHop=3), vrfId=2, dip=[f"10.{n}.0.0/16" for n in range(5)])
    # Every second one, as a strided array.
    routes.add_columns(setNextHop(nextHop=3), vrfId=3, dip=(dips[::2], 32))
    assert routes.find(vrfId=3, dip=(0x400, 32))
    addresses = dips.astype(">u4").view(numpy.uint8).reshape(5, 4)
    assert routes.modify_columns(setNextHop, vrfId=1, dip=(addresses, 24), nextHop=hops) == 5
    reversed_ = dips.view(numpy.uint8).reshape(5, 4)[:, ::-1]
    assert routes.modify_columns(setNextHop, vrfId=1, dip=(reversed_, 24), nextHop=hops) == 5
    six = numpy.zeros((3, 16), dtype=numpy.uint8)
    six[:, 15] = range(3)
    table = session.tables.ipv6ShortMaskLpm
    table.add_columns(setNextHop(nextHop=1), vrfId=1, dip=(six, [128] * 3))
    assert table.find(vrfId=1, dip="::2/128")
    for wrong, message in ((addresses[:, 1:], "3 bytes; dip has 4"), (six, "16 bytes; dip has 4"),
                           (addresses.astype(bool), "one dimension, or rows"),
                           (numpy.zeros((5, 17), numpy.uint8), "rows of 1 to 16 bytes")):
        for column in (wrong, (wrong, 32)):
            with pytest.raises((TypeError, ValueError), match=message):
                routes.add_columns(setNextHop, vrfId=9, dip=column, nextHop=1)
    for wrong in (dict(dip=dips, nextHop=[1]), dict(dip=dips.astype("f8"), nextHop=1),
                  dict(dip=numpy.array([-1]), nextHop=1), dict(dip=dips),
                  dict(dip=dips, nextHop=numpy.array([1 << 14] * 5)), dict(dip=1, nextHop=1)):
        with pytest.raises((TypeError, ValueError)):
            routes.add_columns(setNextHop, vrfId=9, **wrong)
    assert len(routes) == 13
    assert session.add_routes([("192.0.2.0/24", 1), (ipaddress.ip_network("2001:db8::/32"), 2)],
                              vrfId=7) == 2
    with pytest.raises(ValueError) as caught:
        session.add_routes([("192.0.2.0/24", 1), ("2001:db8::/32", 1 << 14)], vrfId=8)
    assert caught.value.row == 1 and len(routes) == 14 and len(table) == 4
    assert session.add_routes(((addresses, 24), hops), vrfId=6) == 5
    assert session.add_routes(((six, [128] * 3), [1] * 3), vrfId=6) == 3 and len(table) == 7
    with pytest.raises(pd.errors.AlreadyExists, match="row 2") as caught:
        session.add_routes([("1.0.0.0/8", 1), ("1::/16", 1), ("1.0.0.0/8", 1), ("2::/16", 2)],
                           vrfId=8, keep=True)
    assert caught.value.row == 2 and len(caught.value.handles) == 2

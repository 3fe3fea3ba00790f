"""What type checkers let pass: all that a control plane does."""
import array
import ipaddress

import pd
import tessel_switch as ts
from tessel_switch.actions import setEcmpNextHop, setNextHop, setNextHop2


def put_route(session: ts.Session, prefix: str | ipaddress.IPv4Network, hop: int) -> int:
    routes = session.tables.ipv4ShortMaskLpm
    try:
        return routes.add(setNextHop(nextHop=hop), vrfId=0, dip=prefix)
    except pd.errors.AlreadyExists as error:
        print(error.name, error.text)
        routes.modify(setNextHop(nextHop=hop), vrfId=0, dip=prefix)
    return routes.find(vrfId=0, dip=prefix)


def use(device: ts.Device) -> list[str]:
    with device.session() as session:
        routes = session.tables.ipv4ShortMaskLpm
        entry = routes.get(put_route(session, "10.0.0.0/8", 3))
        prefix: str = entry.key.dip
        vrf: int = entry.key.vrfId
        if isinstance(entry.action, setNextHop2):
            vrf += entry.action.nextHop
        hit = routes.lookup(vrfId=vrf, dip=ipaddress.IPv4Address("10.1.1.1"))
        assert hit is not None and hit.key is not None
        members = session.profiles.ecmpMemberActionProfile
        group = members.create_group(members.add(setEcmpNextHop(nextHop=1)))
        session.tables.ecmpGroup.add(group, ecmpGroup=7)
        packets: int = session.counters.finalDropControlCount.read(entry).packets
        status: int = ts.raw.p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry_count(
            session, session, pd.Output())
        there = session.tables.ecmpGroup.get(ecmpGroup=7)
        if there.group:
            session.tables.ecmpGroup.modify(there.group, key=there.key, priority=there.priority)
        routes.add_entry(entry)
        routes.add_rows(setNextHop, [{"dip": prefix, "nextHop": 1}], vrfId=vrf)
        routes.modify_columns(setNextHop, vrfId=vrf, dip=([1], 32), nextHop=[1])
        session.add_routes(((array.array("I"), 24), [1]), vrfId=vrf)
        with session.snapshot("egress") as snapshot:
            snapshot.trigger()
            vrf += len(snapshot.capture())
        routes.delete(entry)
        return [one.key.dip for one in routes] + [prefix, str(packets), str(status), hit.key.dip]

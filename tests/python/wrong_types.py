"""What type checkers refuse, and what their messages name."""
import tessel_switch as ts
from tessel_switch.actions import setEcmpNextHop, setNextHop


def use(session: ts.Session) -> None:
    routes = session.tables.ipv4ShortMaskLpm
    routes.add(setNextHop(nextHop=1), vrfId=0)  # says: Missing named argument "dip"
    routes.add(setNextHop(nextHop=1), vrfid=0, dip=1)  # says: "vrfid".*did you mean "vrfId"
    routes.add(setNextHop(nexthop=1), vrfId=0, dip=1)  # says: "nexthop".*did you mean "nextHop"
    routes.add(setNextHop(nextHop=1.5), vrfId=0, dip=1)  # says: "nextHop".*"float"
    routes.add(setEcmpNextHop(nextHop=1), vrfId=0, dip=1)  # says: "setEcmpNextHop".*"Union
    routes.add(setNextHop(nextHop=1), vrfId=0, dip=None)  # says: "dip".*"None"
    routes.add(setNextHop(nextHop=1), vrfId=0, dip=1, priority=1)  # says: argument "priority"
    session.tables.firewallPolicy.find(dstPort=443)  # says: "find"
    session.tables.ipv4ShortMaskLmp  # says: "Tables" has no attribute "ipv4ShortMaskLmp"
    session.tables.ecmpGroup.add(setNextHop(nextHop=1), ecmpGroup=7)  # says: "Union\[Member, Group\]"
    session.profiles.ecmpMemberActionProfile.add(setNextHop(nextHop=1))  # says: "setEcmpNextHop"
    setNextHop(nextHop=1).nextHop = 2  # says: final attribute "nextHop"
    length: int = routes.get(1).key.dip  # says: "str".*"int"
    ts.raw.p4_pd_tessel_switch_init(1)  # says: Too many arguments
    ts.actions.setNextHopp  # says: "setNextHopp"

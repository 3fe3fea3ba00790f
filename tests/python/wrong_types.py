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
    session.tables.ecmpGroup.add(setNextHop(nextHop=1), ecmpGroup=7)  # says: ecmpMemberActionProfile_group
    session.profiles.ecmpMemberActionProfile.add(setNextHop(nextHop=1))  # says: "setEcmpNextHop"
    setNextHop(nextHop=1).nextHop = 2  # says: final attribute "nextHop"
    length: int = routes.get(1).key.dip  # says: "str".*"int"
    ts.raw.p4_pd_tessel_switch_init(1)  # says: Too many arguments
    ts.actions.setNextHopp  # says: "setNextHopp"
    routes.add_columns(setNextHop, vrfId=[1], dpi=[2], nextHop=[3])  # says: keyword argument "dpi"
    routes.add_rows(setNextHop, [], bogus=1)  # says: "bogus"
    session.add_routes([], vrf=1)  # says: keyword argument "vrf"
    session.snapshot("sideways")  # says: "snapshot"
    with session.snapshot("egress") as snapshot:
        snapshot.trigger(bogus=1)  # says: "bogus"
        snapshot.capture()[0].bogus  # says: "bogus"
    session.digests.macLearningDigest.poll()[0].bogus  # says: "bogus"
    other = session.profiles.lagPortActionProfile
    session.tables.ecmpGroup.add(other.member(1), ecmpGroup=7)  # says: "lagPortActionProfile_member"
    session.profiles.ecmpMemberActionProfile.create_group(other.member(1))  # says: "create_group"

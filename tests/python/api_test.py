"""What users of a program's package rely on: errors, sessions, callbacks, threads."""
import copy
import gc
import importlib
import ipaddress
import os
import pathlib
import pickle
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

import numpy
import pytest

import pd
import samples
import tessel_switch as ts
from tessel_switch.actions import setEcmpNextHop, setNextHop, setNextHop2


def test_values_in_every_notation(session, routes):
    entry = routes.add(setNextHop(nextHop=17), vrfId=3, dip="10.1.0.0/16")
    for dip in ((0x0a010000, 16), ("10.1.0.0", 16), ipaddress.ip_network("10.1.0.0/16"),
                (b"\x0a\x01\0\0", numpy.uint8(16))):
        assert routes.find(vrfId=numpy.int64(3), dip=dip) == entry
    six = ipaddress.ip_network("2001:db8::/32")
    key = ts.keys.ipv6ShortMaskLpm(vrfId=3, dip=six)
    assert key.dip == str(six) and key._replace(dip=six[1]).dip == "2001:db8::1/128"
    with pytest.raises(ValueError, match="not an IPv4 address"):
        routes.find(vrfId=3, dip=six)
    key = routes.get(entry).key
    assert (key.vrfId, key.dip) == (3, "10.1.0.0/16")
    assert key._masked("dip") == (0x0a010000, 0xffff0000)
    assert repr(key) == "ipv4ShortMaskLpm(vrfId=3, dip='10.1.0.0/16')"
    assert key in {key} and key != ts.keys.ipv4ShortMaskLpm(vrfId=3, dip="10.1.0.0/17")
    match setNextHop(nextHop=5):
        case setNextHop(nextHop=hop):
            assert hop == 5
    policy = session.tables.firewallPolicy
    entry = policy.add(ts.actions.setFirewallPolicyDrop(counterIndex=1, log=0, meterDrop=0),
                       priority=10, protocol="tcp", dstPort=(0x3f0, 0xfff0))
    key = policy.get(entry).key
    assert (key.protocol, key.dstPort, key.srcPort) == (6, "0x3f0&0xfff0", "*")


@pytest.mark.parametrize("fields, error, named", [
    (dict(vrfId=256, dip="10.0.0.0/8"), ValueError, "vrfId.*at most 255"),
    (dict(vrfId=-1, dip="10.0.0.0/8"), ValueError, "vrfId.*0 or more"),
    (dict(vrfId=1 << 200, dip="10.0.0.0/8"), ValueError, "vrfId"),
    (dict(vrfId=1.5, dip="10.0.0.0/8"), TypeError, "vrfId.*not float"),
    (dict(vrfId=None, dip="10.0.0.0/8"), TypeError, "vrfId.*not NoneType"),
    (dict(vrfId=0, dip="10.0.0.1/8"), ValueError, "dip.*did you mean '10.0.0.0/8'"),
    (dict(vrfId=0, dip=(1, 33)), ValueError, "dip.*at most 32"),
    (dict(vrfId=0, dip=(1, 2, 3)), TypeError, "dip"),
    (dict(vrfId=0, dip=b"abc"), ValueError, "dip has 4"),
    (dict(vrfId=0, dip="\ud800"), ValueError, ""),
    (dict(vrfId=(1, 2), dip=0), ValueError, "vrfId.*exactly"),
    (dict(vrfId=0), TypeError, "also needs dip"),
    (dict(vrfId=0, dpi="10.0.0.0/8"), TypeError, "did you mean 'dip'"),
    (dict(vrfId=0, dip=0, priority=1), TypeError, "no priorities"),
    (dict(vrfId=0, dip=0, entry=1), TypeError, "no entry="),
    (dict(vrfId=0, dip=0, ttl=-1), ValueError, "ttl"),
    (dict(key=setNextHop(nextHop=1)), TypeError, "key"),
    (dict(key=ts.keys.ipv4ShortMaskLpm(vrfId=0, dip=0), vrfId=0), TypeError, "not both")])
def test_wrong_fields_are_named(routes, fields, error, named):
    with pytest.raises(error, match=named):
        routes.add(setNextHop(nextHop=1), **fields)
    assert len(routes) == 0


def test_wrong_objects_are_refused(session, routes):
    for wrong in (None, 1, "setNextHop", setNextHop, setEcmpNextHop(nextHop=1), object()):
        with pytest.raises(TypeError, match="takes one of its actions: setNextHop"):
            routes.add(wrong, vrfId=0, dip=0)
    with pytest.raises(TypeError, match="a member or a group"):
        session.tables.ecmpGroup.add(setNextHop(nextHop=1), ecmpGroup=7)
    with pytest.raises(TypeError, match="one of its actions"):
        session.profiles.ecmpMemberActionProfile.add(setNextHop(nextHop=1))
    with pytest.raises(AttributeError, match="did you mean ipv4ShortMaskLpm"):
        session.tables.ipv4ShortMaskLmp
    with pytest.raises(AttributeError, match="did you mean setNextHop"):
        ts.actions.setNextHopp
    with pytest.raises(AttributeError):
        setNextHop(nextHop=1).nextHop = 2
    for wrong in (object(), "x", 1.5, -1, 1 << 40):
        with pytest.raises((TypeError, ValueError)):
            routes.get(wrong)
    for wrong in ((), (1,), (1, 2, 3, 4, 5, 6)):
        with pytest.raises(TypeError):
            pd._core.TableBase(*wrong)
        with pytest.raises(TypeError):
            routes.delete(*wrong, vrfId=0, bogus=1)
    too_short = bytearray(3)
    with pytest.raises(ValueError, match="3 bytes, and the call needs 4"):
        ts.raw.p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry_count(session, session, too_short)


def test_members_and_entries_of_others_are_refused(session, routes):
    with ts.Device(1):
        own, other = (list(session.on(one).profiles)[:2] for one in (0, 1))
        members = [one.add(samples.record_of(ts.program, "actions", one.actions[0],
                                             samples.generator())) for one in (*own, *other)]
        group = own[0].create_group(members[0])
        for wrong in (*members[1:], group, "1", 1.0, None):
            with pytest.raises((TypeError, ValueError)):
                group.add(wrong)
        table = next(one for one in session.tables if one.profile == own[0].name)
        for wrong in members[1:]:
            with pytest.raises(ValueError, match="its profile on device 0"):
                table.set_default(wrong)
    entry = routes.get(routes.add(setNextHop(nextHop=1), vrfId=0, dip=0))
    six = session.tables.ipv6ShortMaskLpm
    foreign = importlib.import_module("gateway").program
    for call in (lambda: six.delete(entry), lambda: six.value(entry), lambda: routes.get(group),
                 lambda: routes.set_active(entry, "no"), lambda: own[0].member(None),
                 lambda: group.enable(members[0], "no"), lambda: routes.get(entry, from_hardware="no"),
                 lambda: routes.add(samples.record_of(foreign, "actions", foreign.records("actions")[0],
                                                      samples.generator()), vrfId=1, dip=0)):
        with pytest.raises(TypeError):
            call()
    calculate = next(iter(session.hashes)).calculate
    for call, message in (
            (lambda: calculate((5, 32), (256, 8)), "value 1 is a number of 8 bits"),
            (lambda: calculate((1, 1 << 70)), "width of value 0"), (lambda: calculate({}), "value 0 is"),
            (lambda: group.add("1"), "member is"), (lambda: own[0].member(1 << 70), "member is"),
            (lambda: group.choose(1 << 70), "hash is"), (lambda: routes.get("x"), "entry is"),
            (lambda: ts.faults.fail_call(None, 8), "function is"), (lambda: pd.load(5), "int"),
            (lambda: ts.faults.fail_call("pipe_mgr_mat_ent_ad", 8), "mean pipe_mgr_mat_ent_add"),
            (lambda: ts.faults.fail_any_call("BF_TABLE_FULL"), "status is"),
            (lambda: session.tables.finalDropControl.enable_ageing(), "does not age its entries"),
            (lambda: session.snapshot("ingress", 5, 2), "^tessel_switch.snapshot_create")):
        with pytest.raises((TypeError, ValueError, AttributeError, pd.StatusError), match=message):
            call()
    for one in (session.snapshot(), ts.clock, ts.faults, ts.journal, ts.program):
        assert " object at" not in repr(one)


def test_what_is_read_can_be_copied_and_printed(session, routes, journal):
    entry = routes.get(routes.add(setNextHop(nextHop=1), vrfId=0, dip=0))
    digest = next(iter(session.digests))
    with digest.listen():
        digest.inject()
        learnt, = digest.poll()
    names = {**vars(pd), **vars(ts), "ipv4ShortMaskLpm": type(entry.key), "setNextHop": setNextHop,
             type(learnt.record).__name__: type(learnt.record), "DigestEntry": pd.DigestEntry}
    for one in (entry, entry.key, entry.action, learnt, routes.traffic(vrfId=0, dip=0),
                pd.MeterSpec(1, 2, 3, peak_burst=4), journal.calls()[0]):
        assert pickle.loads(pickle.dumps(one)) == copy.copy(one) == copy.deepcopy(one) == one
        assert eval(repr(one), names) == one
    assert pd.MeterSpec(1, 2, 3, 4)._replace(peak_rate=5) == (1, 2, 5, 4, 1)
    with pytest.raises(pd.errors.AlreadyExists) as caught:
        routes.add_rows(setNextHop, [(0, 1)], vrfId=0)
    again = pickle.loads(pickle.dumps(caught.value))
    assert (type(again), again.row, str(again)) == (type(caught.value), 0, str(caught.value))
    assert copy.copy(session.tables).ipv4ShortMaskLpm is routes
    with pytest.raises(TypeError):
        copy.copy(session)


def test_statuses_are_exceptions(session, routes):
    with pytest.raises(pd.errors.ObjectNotFound) as caught:
        routes.find(vrfId=0, dip=0)
    assert (caught.value.status, caught.value.name) == (7, "BF_OBJECT_NOT_FOUND")
    assert caught.value.text in str(caught.value)
    assert isinstance(caught.value, pd.StatusError)
    ts.faults.fail_call("pipe_mgr_mat_ent_add", 4711)
    with pytest.raises(pd.StatusError) as caught:
        routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
    assert caught.value.status == 4711
    numbers = [one.status for one in vars(pd.errors).values() if hasattr(one, "status")]
    assert sorted(numbers) == [*range(1, 20), *range(0x1001, 0x1007), 0xffffffff]


def test_closed_sessions_and_devices(device, routes):
    with device.session() as session:
        view = session.on(pipe=1)
        table = view.tables.ipv4ShortMaskLpm
    assert session.closed and view.closed
    for call in (lambda: table.find(vrfId=0, dip=0), lambda: session.handle, lambda: len(table),
                 lambda: session.snapshot(), lambda: session.on(pipe=1)):
        with pytest.raises(ValueError, match="closed"):
            call()
    session.close()
    device.remove()
    device.remove()
    with pytest.raises(pd.errors.InvalidDevice):
        routes.find(vrfId=0, dip=0)
    with pytest.raises(pd.errors.InvalidDevice):
        device.now()


def test_sessions_are_of_one_program(session, routes):
    routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
    # By its file, as a program without a package.
    other = pd.load(str(pathlib.Path(pd.__file__).parents[3] / "tesselctl/gateway.so"))
    with ts.Device(1) as second:
        for call in (lambda: other.Session(0), lambda: pd.Session(0), lambda: pd.Device()):
            with pytest.raises((ValueError, TypeError), match="runs tessel_switch|no program"):
                call()
        elsewhere = other.Session(2)
        with pytest.raises(ValueError, match="device 1 runs tessel_switch.*of gateway"):
            elsewhere.on(second)
    # A device may come after the session.
    with ts.Device(2), pytest.raises(ValueError, match="device 2 runs tessel_switch"):
        next(iter(elsewhere.tables)).clear()
    assert len(routes) == 1

    class Named(ts.Session):
        def __init__(self, name, device):
            super().__init__(device)
            self.label = name
    with Named("north", 0) as named:
        assert named.on(pipe=1).label == "north" and named.on(pipe=1).pipe == 1
        assert len(named.on(pipe=1).tables.ipv4ShortMaskLpm) == 1


def test_numbers_have_the_names_of_the_sdk():
    header = pathlib.Path(os.environ["ROOT"], "sdk/include/pipe_mgr_types.h").read_text()
    for numbers, prefix in ((pd.Update, "UPDATE"), (pd.TableProperty, "TABLE"), (pd.IdleMode, "IDLE")):
        there = re.findall(rf"PIPE_{prefix}_(\w+) = (\d+)", header)
        assert {name: int(number) for name, number in there} == numbers.__members__


def test_namespaces_are_mappings_that_stay(session):
    tables = session.tables
    assert dict(tables)["ecmpGroup"] is tables.ecmpGroup and list(tables.keys())[0] in tables
    assert repr(tables) == f"<{len(tables)} tables of tessel_switch>"
    with pytest.raises(AttributeError, match="those of the program"):
        tables.ecmpGroup = 5
    with pytest.raises(AttributeError, match="did you mean tables"):
        session.tabels


def test_groups_are_whole(session, faults):
    members = session.profiles.ecmpMemberActionProfile
    one, two = (members.add(setEcmpNextHop(nextHop=n)) for n in (1, 2))
    faults.fail_call("pipe_mgr_sel_grp_mbr_add", pd.errors.TableFull, n=2)
    with pytest.raises(pd.errors.TableFull):
        members.create_group(one, two)
    assert members.group_count() == 0


def test_packets_have_one_value(session, routes):
    for wrong in ("10.0.0.0/8", "*", (1, 32), ipaddress.ip_network("10.0.0.0/8")):
        with pytest.raises((TypeError, ValueError), match="dip"):
            routes.lookup(vrfId=0, dip=wrong)
    assert routes.lookup(vrfId=0, dip=ipaddress.ip_address("10.0.0.1")).key is None
    # Nothing is hit, and there is no default entry.
    assert session.tables.ecmpGroup.lookup(ecmpGroup=1) is None
    assert session.tables.ecmpGroup.traffic(ecmpGroup=1) is None


def test_callbacks_and_time(device, session, routes):
    expired = []
    routes.on_expiry(expired.append)
    routes.enable_ageing(sweep_interval=500, default_ttl=2000)
    entry = routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
    device.advance(1500)
    routes.traffic(vrfId=0, dip=0)
    assert routes.is_active(entry)
    device.advance(1500)
    assert expired == []
    ts.clock.advance(1000)
    assert expired == [entry]
    # An exception of a callback is reported, and the call goes on.
    reported = []
    routes.on_update(lambda update, entry: 1 // 0)
    before, sys.unraisablehook = sys.unraisablehook, lambda raised: reported.append(raised)
    try:
        routes.delete(entry)
    finally:
        sys.unraisablehook = before
    assert reported[0].exc_type is ZeroDivisionError and len(routes) == 0
    # A callback may call the library.
    seen = []
    routes.on_update(lambda update, entry: seen.append((update, len(routes))))
    routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
    assert seen == [(0, 1)]


def test_every_session_has_its_callbacks(device, session, routes):
    """One does not replace that of another, and they end with the session."""
    digest, first, second = session.digests.macLearningDigest, [], []
    fields = {label + "_": 1 for label, *_ in ts.digests.macLearningDigest._describe()}
    with device.session() as other:
        for one, seen in ((other, first), (session, second)):
            one.tables.ipv4ShortMaskLpm.on_update(lambda *update, seen=seen: seen.append(update))
            one.digests.macLearningDigest.register(seen.append)
        entry = routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
        assert first == second == [(pd.Update.ADD, entry)]
        assert digest.inject(**fields) and len(first) == len(second) == 2
    routes.delete(entry)
    fields = dict.fromkeys(fields, 0)
    assert digest.inject(**fields) and len(first) == 2 and len(second) == 4
    assert digest.pending() == (0, 0)
    digest.deregister()
    with pytest.raises(TypeError, match="callable"):
        routes.on_update(5)


def test_threads_share_a_session(session, routes):
    updates = []
    routes.on_update(lambda update, entry: updates.append(entry))

    def work(vrf):
        for n in range(300):
            entry = routes.add(setNextHop(nextHop=n), vrfId=vrf, dip=(n << 8, 24))
            assert routes.get(entry).action.nextHop == n
        routes.add_rows(setNextHop, ((("1.0.0.0", 8 + n), n) for n in range(20)), vrfId=vrf)
    with ThreadPoolExecutor(8) as threads:
        list(threads.map(work, range(8)))
    assert len(routes) == 8 * 320 == len(updates)
    # What one thread deletes while another enumerates is left out, and nothing else.
    handles = list(routes.handles())
    walk = routes.handles()
    for entry in [next(walk) for _ in range(300)][200:]:
        routes.delete(entry)
    assert [*handles[:300], *walk] == handles

    def change(vrf):
        for _ in range(200):
            routes.replace(setNextHop(nextHop=1), vrfId=vrf, dip=0)
            list(routes), routes.clear()
    routes.clear()
    with ThreadPoolExecutor(4) as threads:
        list(threads.map(change, [9] * 4))


def test_journal_and_faults(session, routes, journal, faults):
    for wrong in (("pipe_mgr_mat_ent_ad", 8), ("soft_clock_now", 8), ("pipe_mgr_mat_ent_add", 0),
                  ("pipe_mgr_mat_ent_add", 8, 0)):
        with pytest.raises(ValueError):
            faults.fail_call(*wrong)
    faults.fail_call("pipe_mgr_mat_ent_add", pd.errors.TableFull, n=2)
    routes.add(setNextHop2(nextHop=5), vrfId=1, dip="10.0.0.0/8")
    with pytest.raises(pd.errors.TableFull):
        routes.add(setNextHop2(nextHop=5), vrfId=1, dip="11.0.0.0/8")
    first, second = journal.calls("pipe_mgr_mat_ent_add")
    assert first.arguments["match"]["value"] == b"\x01\x0a\0\0\0"
    assert first.arguments["action_spec"]["data"] == b"\0\5"
    assert (first.performed, second.performed) == (True, False)
    assert first.results == {"entry": 1} and second.status == 8


def test_devices(device, session, routes):
    routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
    with ts.Device(1) as second, ts.Device(2, virtual=True) as virtual:
        with pytest.raises(pd.errors.AlreadyExists):
            ts.Device(1)
        device.copy_to(second)
        assert len(session.on(1).tables.ipv4ShortMaskLpm) == 1
        member = session.on(2).profiles.ecmpMemberActionProfile.add(setEcmpNextHop(nextHop=9))
        session.on(1).restore_virtual(virtual)
        there = session.on(1).profiles.ecmpMemberActionProfile
        assert [one.action() for one in there.members()] == [setEcmpNextHop(nextHop=9)]
        assert member.action() == setEcmpNextHop(nextHop=9)


def memory():
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * 4096


def use_everything():
    with ts.Session() as one:
        table = one.tables.ipv4ShortMaskLpm
        entry = table.add(setNextHop(nextHop=1), vrfId=1, dip="10.0.0.0/8")
        table.on_update(lambda update, entry: None)
        for wrong in (lambda: table.add(setNextHop(nextHop=1), vrfId=1, dip="10.0.0.0/8"),
                      lambda: table.add(setNextHop(nextHop=1), vrfId=1, dip="x"),
                      lambda: table.add_rows(setNextHop, [("1.0.0.0/8", 1), ("x", 1)], vrfId=2),
                      lambda: setNextHop(nextHop="x"), lambda: one.tables.x):
            try:
                wrong()
                pytest.fail("it was taken")
            except (pd.StatusError, ValueError, AttributeError):
                pass
        table.get(entry), list(table), table.lookup(vrfId=1, dip=0), table.label(entry)
        table.add_columns(setNextHop, vrfId=2, dip=[1, 2], nextHop=[1, 2])
        one.profiles.ecmpMemberActionProfile.add(setEcmpNextHop(nextHop=9)).delete()
        with ts.journal:
            table.clear()
        ts.journal.calls()
    ts.journal.clear()


def test_nothing_leaks(session):
    """Calls that succeed and calls that fail give back what they took."""
    grown = []
    for _ in range(4):
        for _ in range(700):
            use_everything()
        gc.collect()
        grown.append((memory(), sys.getrefcount(setNextHop), len(gc.get_objects())))
    # The heap may grow at times; a leak grows each time.
    assert min(after[0] - before[0] for before, after in zip(grown, grown[1:])) < 1 << 14
    assert grown[-1][1:] == grown[-2][1:]


def test_fixtures_fail_tests(tmp_path):
    """What the fixtures watch over is noticed, and nothing stays for the next test."""
    (tmp_path / "test_it.py").write_text(
        "import pytest, pd, tessel_switch as ts\n"
        "def test_left(session):\n"
        "    ts.Device(1), ts.journal.start(), len(session.tables.ipv4ShortMaskLpm)\n"
        "    ts.faults.fail_call('pipe_mgr_mat_ent_add', 5)\n"
        "def test_fresh(device):\n"
        "    assert ts.Device(1) and ts.journal.calls() == [] and ts.faults.pending() == 0\n"
        "def test_faults(faults): faults.fail_any_call(5)\n"
        "def test_calls(session, good_calls):\n"
        "    with pytest.raises(pd.StatusError): session.tables.ipv4ShortMaskLpm.get(77)\n"
        "    ts.faults.fail_call('pipe_mgr_get_first_entry_handle', 5)\n"
        "    with pytest.raises(pd.StatusError): list(session.tables.ipv4ShortMaskLpm)\n"
        "def test_good(session, good_calls):\n"
        "    table = session.tables.ipv4ShortMaskLpm\n"
        "    assert 5 not in table and ts.keys.ipv4ShortMaskLpm(vrfId=0, dip=0) not in table\n"
        "    entry = table.replace(ts.actions.setNextHop(nextHop=1), vrfId=0, dip=0)\n"
        "    assert table.replace(ts.actions.setNextHop(nextHop=2), vrfId=0, dip=0) == entry\n"
        "    assert entry in table and 5 not in table and table.default_entry() not in table\n")
    done = subprocess.run(
        [sys.executable, "-m", "pytest", "-p", "pd.pytest_plugin", "-p", "no:cacheprovider", tmp_path],
        text=True, stdout=subprocess.PIPE)
    assert "5 passed, 2 errors" in done.stdout, done.stdout
    assert "1 of the faults that were planned have not struck; planned: call 1" in done.stdout
    assert "pipe_mgr_get_entry returned 7" in done.stdout
    assert "pipe_mgr_get_first_entry_handle returned 5" in done.stdout


def test_library_starts_again(device, routes):
    assert ts.raw.p4_pd_tessel_switch_cleanup() == 0
    assert ts.raw.p4_pd_tessel_switch_init() == 0
    assert len(routes) == 0

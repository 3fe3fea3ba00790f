"""Every function and every object of any program, called once with values of its description."""
import inspect
import pydoc
import sys

import pytest

import pd
from pd._device import Namespace
from samples import argument_of, fields_of, generator, outcomes, record_of, with_meter

KNOWN = {cls.status for cls in vars(pd.errors).values() if hasattr(cls, "status")} | {0}


@pytest.fixture(scope="module", autouse=True)
def called():
    """What the tests of this file call: the code of Python's functions, methods of the extension."""
    seen = set()

    def note(frame, event, argument):
        if event == "call":
            seen.add(frame.f_code)
        elif event == "c_call":
            seen.add(getattr(type(argument.__self__), argument.__name__, None))
    sys.setprofile(note)
    yield seen
    sys.setprofile(None)


def test_every_function(package, session):
    """Functions return what C does, and outputs of those that succeed are read."""
    rng, program = generator(), package.program
    succeeded = 0
    for name in program.functions():
        if name.endswith(("_cleanup", "_init")):
            continue
        function = getattr(package.raw, name)
        arguments = [argument_of(parameter, session, program, rng)
                     for parameter in function.parameters]
        # Lines for people go nowhere.
        arguments = [9999 if row[1] == "descriptor" else one
                     for row, one in zip(function.parameters, arguments)]
        result = function(*arguments)
        if function.result == "p4_pd_status_t":
            assert result in KNOWN, name
            succeeded += result == 0
            if result == 0:
                assert all(one.value is not None for row, one in
                           zip(function.parameters, arguments)
                           if isinstance(one, pd.Output) and "action_spec" not in row[0]), name
    assert succeeded > len(program.functions()) / 4
    # Neither too few arguments nor null pointers do harm.
    for name in program.functions():
        function = getattr(package.raw, name)
        with pytest.raises(TypeError):
            function(*[None] * (len(function.parameters) + 1))
        if any("const" in row[0] and "_match_spec_t" in row[0] for row in function.parameters):
            nulls = [None if row[0].endswith("*") else
                     argument_of(row, session, program, rng) for row in function.parameters]
            assert function(*nulls) in (pd.errors.NullArgument.status, -1, 0), name


def test_every_keyed_table(package, session):
    rng, hits = generator(2), 0
    for table in session.tables:
        key = package.program.record("keys", table.name)
        if not key._describe():
            continue
        rest = {"priority": 7} if table.is_ternary else {}
        last = None
        for outcome in outcomes(session, table, rng):
            fields = fields_of(key, rng)
            try:
                entry = with_meter(table.add, outcome, **fields, **rest)
            except TypeError as error:  # of default entries alone
                assert "cannot have the action" in str(error)
                continue
            last = outcome
            read = table.get(entry)
            assert read.key == key(**fields) and read.handle == entry, table.name
            assert read.priority == (7 if table.is_ternary else None)
            assert (read.action or read.member or read.group) == outcome, table.name
            assert entry in table and read in table and (read.key, read.priority) in table
            assert table.get(key=read.key, priority=read.priority) == read, table.name
            # What is read is taken again.
            table.modify(read.action or read.member or read.group, key=read.key,
                         priority=read.priority)
            assert table.get(entry) == read, table.name
            assert key(**{name + "_": value for name, value in read.key._asdict().items()}) \
                == read.key, table.name
            assert table.find(key=read.key, **rest) == entry == table.find(**fields, **rest)
            assert [one.handle for one in table] == [entry] and len(table) == 1
            table.modify(outcome, entry=entry)
            assert with_meter(table.replace, outcome, **fields, **rest) == entry
            table.modify(outcome, key=read.key, **rest)
            packet = {name: value[0] if isinstance(value, tuple) else value
                      for name, value in fields.items()}
            hit = table.lookup(**packet)
            assert table.traffic(**packet).entry == hit.handle
            hits += hit.handle == entry
            assert table.value(entry).startswith("(((") and table.schema().startswith("(")
            assert table.has_placement(table.placement(entry), entry)
            assert isinstance(table.label(entry), str)
            table.delete(entry)
            assert table.get(with_meter(table.add_entry, read)).action == read.action
            table.delete(key=read.key, priority=read.priority)
            assert entry not in table and read not in table
            assert (read.key, read.priority) not in table
            with pytest.raises(pd.errors.ObjectNotFound):
                table.find(**fields, **rest)
        rows = [dict(fields_of(key, rng), **rest)]
        handles = with_meter(table.add_rows, last, rows)
        assert table.get(handles[0]).key == key(**{name: value for name, value in rows[0].items()
                                                   if name.endswith("_")}), table.name
        for many in (table.replace_rows, table.modify_rows):
            assert with_meter(many, last, rows) == 1
        assert table.delete_rows(rows) == 1
        columns = {name: ([value[0]], [value[1]]) if isinstance(value, tuple) else [value]
                   for name, value in fields_of(key, rng).items()}
        assert len(with_meter(table.add_columns, last, **columns, **rest)) == 1
        for many in (table.replace_columns, table.modify_columns):
            assert with_meter(many, last, **columns, **rest) == 1
        assert table.delete_columns(**columns, **rest) == 1 and not list(table)
        entry, = with_meter(table.add_columns, last, **columns, **rest)
        if table.ages_entries:
            table.enable_ageing(sweep_interval=500, default_ttl=2000)
            table.set_ttl(entry, 4000), table.set_active(entry)
            assert table.ttl(entry) == 4000 and table.is_active(entry)
        assert table.clear() == 1 and not list(table)
    assert hits > len(session.tables) / 4


def test_every_table_as_a_whole(package, session):
    rng = generator(3)
    for table in session.tables:
        updates = []
        table.on_update(lambda update, entry: updates.append((update, entry)))
        before = table.default_entry()
        for outcome in outcomes(session, table, rng):
            try:
                entry = table.set_default(outcome)
            except TypeError as error:
                assert "cannot have the action" in str(error)
                continue
            read = table.default_entry()
            assert read.handle == entry and read.key is None and updates[-1] == (3, entry)
            assert (read.action or read.member or read.group) == outcome, table.name
        table.reset_default()
        after = table.default_entry()
        assert (before is None) == (after is None)
        table.on_update(None)
        table.set_capacity(3)
        assert table.capacity() == 3 and table.memory() >= 0
        assert repr(table) == f"<Table {table.name} of {package.program.name}>"
        if table.ages_entries:
            table.enable_ageing(sweep_interval=500, default_ttl=2000)
            table.on_expiry(lambda entry: None)
            assert table.ageing().default_ttl_ms == 2000
            table.disable_ageing()


def test_every_profile(package, session):
    rng = generator(4)
    for profile in session.profiles:
        for name in profile.actions:
            action = record_of(package.program, "actions", name, rng)
            member = profile.add(action)
            assert member.action() == action
            member.modify(record_of(package.program, "actions", name, rng))
            assert isinstance(member.placement(), pd.Opaque)
            updates = []
            profile.on_group_update(lambda *update: updates.append(update))
            profile.on_member_update(lambda *update: updates.append(update))
            group = profile.create_group(member, max_size=4)
            assert list(group) == [member] and len(group) == 1 and group.max_size() == 4
            assert group.choose(1) == member and group.is_enabled(member)
            group.enable(member, False)
            profile.set_fallback(member)
            assert not group.is_enabled(member) and profile.fallback() == member
            profile.reset_fallback()
            assert profile.fallback() is None
            assert profile.active_members() == []
            group.remove(member)
            assert list(profile.groups()) == [group] and list(profile) == [member]
            assert (len(profile), profile.group_count()) == (1, 1)
            assert profile.clear() == 2
            assert {len(update) for update in updates} == {2, 3}
            profile.set_capacity(7)
            assert profile.capacity() == 7


def test_every_cell(session):
    for counter in session.counters:
        if counter.table is None:
            counter.count(5, packets=2, bytes=100, pipe=0)
            assert counter.read(5) == (2, 100) and list(counter.used()) == [5]
            counter.write(5, 7, 8)
            assert counter.read(5) == (7, 8) and counter.read_all() == {5: (7, 8)}
        done = []
        counter.synchronise(lambda: done.append(1))
        assert done == [1]
    for meter in session.meters:
        if meter.table is None:
            meter.set(3, committed_rate=1, committed_burst=1, peak_rate=2, peak_burst=2)
            assert meter.read(3)[:4] == (1, 1, 2, 2) and list(meter.used()) == [3]
            assert meter.mark(3, packets=1000) == "red"
        meter.set_adjustment(4)
        assert meter.adjustment() == 4
    for register in session.registers:
        most = (1 << register.width) - 1
        register.write(2, most)
        assert set(register.read(2)) == {most}
        assert [set(values) for values in register.read_range(1, 3)] == [{0}, {most}, {0}]
        register.packet_write(3, 1)
        assert set(register.read(3)) == {1}
        register.reset(2)
        assert set(register.read(2)) == {0}
        register.write_all(1)
        register.reset()
        register.synchronise()
        with pytest.raises(ValueError, match=register.name):
            register.write(0, most + 1)


def test_everything_of_a_device(package, session, device, journal, faults):
    for plan in (faults.fail_any_call,
                 lambda status: faults.fail_call("pipe_mgr_get_entry_count", status)):
        plan(pd.errors.NotReady)
        with pytest.raises(pd.errors.NotReady):
            len(next(iter(session.tables)))
    assert [one.status for one in journal.calls()] == [pd.errors.NotReady.status] * 2
    faults.fail_allocation(1 << 40)
    assert faults.pending() == 1
    faults.clear(), journal.stop(), journal.clear(), journal.start()
    before = pd.clock.now(), device.now()
    pd.clock.advance(5), device.advance(7)
    assert (pd.clock.now(), device.now()) == (before[0] + 5, before[1] + 12)
    assert list(session.tables.keys()) == [name for name, _ in session.tables.items()]
    with package.Device(1) as second, package.Device(2, virtual=True) as virtual:
        device.copy_to(second), session.on(second).restore_virtual(virtual)
        second.restore(device.log())
        assert second.memory() > 0
    session.set_learning_timeout(1000), session.set_wred(0x07000001, 3, (1.5, 10, 20, 0.25))
    assert session.wred(0x07000001, 3) == (1.5, 10, 20, 0.25)
    tables, action = package.program.routes
    four, six = ({label: 7 for label, _, _, match, _ in
                  package.program.record("keys", name)._describe() if match != "lpm"} for name in tables)
    if action and four == six:
        assert session.add_routes([("192.0.2.0/24", 1), ("2001:db8::/32", 2)], **four) == 2


def test_every_service(package, session):
    rng = generator(5)
    for calculation in session.hashes:
        calculation.set_seed(9)
        assert calculation.seed() == 9
        calculation.set_input(), calculation.set_algorithm()
        assert (calculation.input(), calculation.algorithm()) == (0, 0)
        calculation.set_attributes([(0, 1, 2)])
        assert calculation.attributes() == [(0, 1, 2)]
        assert calculation.calculate((5, 32), (6, 128)) == calculation.calculate((5, 32), (6, 128))
        assert calculation.calculate((5, 32)) != calculation.calculate((6, 32))
        for own in range(64):
            common = calculation.common_field(own)
            assert common is None or calculation.own_field(common) == own
    for digest in session.digests:
        kind = package.program.record("digests", digest.name)
        fields = fields_of(kind, rng)
        with digest.listen():
            assert digest.inject(**fields)
            (entry,) = digest.poll()
            assert entry.record == kind(**fields) and entry.pipe == 0
            assert digest.poll() == [] and digest.pending() == (0, 0)
    for values in session.value_sets:
        entry = values.add(5)
        assert values.get(entry) == (5, 0xffffffff) and values.find(5) == entry
        assert values.match(5) == entry and values.match(6) is None
        values.modify(entry, 6)
        assert list(values) == [entry] and len(values) == 1
        assert values.parsers(entry) == (pd.Direction.INGRESS, session.pipe, 255)
        assert values.count(direction=pd.Direction.EGRESS) == 0
        values.set_capacity(1)
        assert values.capacity() == 1
        values.delete(entry)
    if package.program.records("triggers"):
        for direction in package.program.records("triggers"):
            kind = package.program.record("packets", direction)
            label, _, _, _, width = kind._describe()[0]
            with session.snapshot(direction, 1, 2) as snapshot:
                assert snapshot.capture() == []
                snapshot.trigger(**{label + "_": 1})
                assert snapshot.inject(first_stage=1, stages=2) == 0
                assert snapshot.inject(first_stage=1, stages=2, **{label + "_": 1}) == 1
                stages = snapshot.capture(pipe=0)
                assert [(one.stage, one.triggered) for one in stages] == [(1, True), (2, True)]


def public_classes():
    classes = (*vars(pd).values(), Namespace)
    return {one for one in classes if inspect.isclass(one) and one.__module__.split(".")[0] == "pd"}


def methods_of(cls):
    """The public methods that are its own, with their code in Python or the method of the extension."""
    for name, one in inspect.getmembers(cls, inspect.isroutine):
        code = getattr(one, "__code__", None)
        is_own = code or getattr(getattr(one, "__objclass__", None), "__module__", "") == "pd"
        if is_own and not name.startswith("_"):
            yield f"{cls.__name__}.{name}", one, code or one


def test_no_method_is_left_out(called):
    """The tests before this one have called each public method of each class."""
    left = [name for cls in public_classes() for name, _, code in methods_of(cls) if code not in called]
    assert not left, " ".join(sorted(left))


def test_everything_is_explained(package):
    """What is public has a text and a signature, which names the fields or parameters that it takes."""
    silent = []
    for cls in public_classes():
        explained = [(cls.__name__, cls)] if cls is not pd.Function else []
        for name, one, *_ in (*explained, *methods_of(cls)):
            try:
                said = one.__doc__ and (name == "StatusError" or inspect.signature(one))
            except ValueError:
                said = None
            if not said:
                silent.append(name)
    assert not silent, " ".join(sorted(silent))
    for kind in (package.actions, package.keys, package.digests):
        for record in (getattr(kind, name) for name in kind.__all__):
            taken = [name.rstrip("_") for name in inspect.signature(record).parameters]
            assert taken == [label for label, *_ in record._describe()]
            assert record.__doc__.count(" bit") == len(taken) and record.__name__ in record.__doc__
    for name in package.program.functions():
        function = getattr(package.raw, name)
        prototype, note = function.__doc__.split(";\n", 1)
        assert name in prototype and len(note) > 20 and name in pydoc.render_doc(function)
        assert [one.rstrip("_") for one in inspect.signature(function).parameters] \
            == [label for _, label in function.parameters]

"""Action profiles, their members and groups."""
from __future__ import annotations

from pd import _core
from pd._call import Name, bytes_of_hash, call, control, delete_all, get, read_control, walk
from pd._core import Opaque, Record, unsigned
from pd._listeners import listen
from pd._numbers import Update

TYPE_CHECKING = False
if TYPE_CHECKING:
    from typing import Any, Callable, Iterator


class _Held:
    """A member or a group of a profile, by its handle."""

    _outcome = ""

    def __init__(self, profile: Profile, handle: int):
        self.profile, self.handle = profile, unsigned(handle, self._outcome)

    def __eq__(self, other: object) -> bool:
        return (type(other) is type(self) and isinstance(other, _Held)
                and other.handle == self.handle and other.profile.name == self.profile.name
                and other.profile.session.device_id == self.profile.session.device_id)

    def __hash__(self) -> int:
        return hash((self._outcome, self.handle))

    def __int__(self) -> int:
        return self.handle

    def __repr__(self) -> str:
        return f"{type(self).__name__}({self.profile.name}, {self.handle})"


class Member(_Held):
    """A member of a profile: an action with its parameters."""

    _outcome = "member"

    def action(self, from_hardware: bool = False) -> Record:
        """The action with its parameters."""
        return self.profile.action(self, from_hardware)

    def modify(self, action: Record) -> None:
        """Gives the action other parameters; a member keeps its action for life."""
        self.profile.modify(self, action)

    def delete(self) -> None:
        """Deletes the member."""
        self.profile._call("del_member", self.profile.session, self.profile.session, self.handle)

    def placement(self) -> Opaque:
        """What the device holds of the member, without the device."""
        return _core.placement_of(self.profile.session.device_id, self.profile.handle, self.handle,
                                  True)


class Group(_Held):
    """A group of members, of which a hash chooses one."""

    _outcome = "group"

    def _group(self, family: str, *arguments: Any) -> Any:
        session = self.profile.session
        return self.profile._get(family, session, session, self.handle, *arguments)

    def _set(self, family: str, *arguments: Any) -> None:
        session = self.profile.session
        self.profile._call(family, session, session, self.handle, *arguments)

    def _member(self, member: Member | int) -> int:
        return self.profile._handle(member, Member)

    def add(self, member: Member) -> None:
        """Puts a member into the group."""
        self._set("add_member_to_group", self._member(member))

    def remove(self, member: Member) -> None:
        """Takes a member out of the group."""
        self._set("del_member_from_group", self._member(member))

    def enable(self, member: Member, active: bool = True) -> None:
        """Whether the hash may choose the member."""
        self._set("group_member_state_set", self._member(member), 0 if unsigned(active, "active") else 1)

    def is_enabled(self, member: Member) -> bool:
        """Whether the hash may choose the member."""
        return bool(self._group("group_member_state_get", self._member(member)) == 0)

    def members(self) -> Iterator[Member]:
        """The members of the group."""
        handles = walk(lambda: self._group("get_first_group_member"),
                       lambda member, count: self._group("get_next_group_members", member, count),
                       _core.ObjectNotFound)
        return (Member(self.profile, handle) for handle in handles)

    def __iter__(self) -> Iterator[Member]:
        return self.members()

    def __len__(self) -> int:
        return int(self._group("get_selector_group_member_count"))

    def __bool__(self) -> bool:
        return True

    def choose(self, hash: bytes | int) -> Member:
        """The member that packets of the hash get."""
        bits = bytes_of_hash(hash)
        return Member(self.profile, self._group("group_member_get_from_hash", bits, len(bits)))

    def max_size(self) -> int:
        """The greatest number of members as it was created; 0: any number."""
        profile = self.profile
        return int(read_control("soft_group_max_size", profile.session.device_id, profile.selector,
                                self.handle))

    def delete(self) -> None:
        """Deletes the group, not its members."""
        self._set("del_group")


class Profile(Name):
    """An action profile of a session."""

    def __init__(self, program: Any, name: str, session: Any, facts: dict[str, Any]):
        super().__init__(program, name, session, facts)
        self.selector: int = facts["selector"]
        self.actions: tuple[str, ...] = tuple(facts["actions"])

    def _record(self, action: Record) -> tuple[str, list[Record]]:
        """The name of an action, and the argument that it is; none without parameters."""
        name = type(action).__name__
        if not isinstance(action, Record) or name not in self.actions:
            raise TypeError(f"{self.name} takes one of its actions: {', '.join(self.actions)}; "
                            f"not {name}")
        return name, [action] if type(action)._describe() else []

    def _handle(self, held: Any, kind: type[_Held]) -> int:
        """The handle of one of its members or groups, or the number that it is."""
        if not isinstance(held, _Held):
            return unsigned(held, kind._outcome)
        of = held.profile
        if not isinstance(held, kind):
            raise TypeError(f"{self.name} takes a {kind.__name__.lower()}, not {held!r}")
        if (of.handle, of.session.device_id) != (self.handle, self.session.device_id):
            raise ValueError(f"{held!r} of device {of.session.device_id} is none of {self.name} of "
                             f"device {self.session.device_id}")
        return held.handle

    def add(self, action: Record) -> Member:
        """Adds a member with this action."""
        name, record = self._record(action)
        return Member(self, get(self._program, "add_member", self.name, self.session,
                                self.session, *record, action=name))

    def modify(self, member: Member, action: Record) -> None:
        """Gives the action other parameters; a member keeps its action for life."""
        name, record = self._record(action)
        call(self._program, "modify_member", self.name, self.session, self.session,
             self._handle(member, Member), *record, action=name)

    def create_group(self, *members: Member, max_size: int = 0) -> Group:
        """A group of at most so many members, 0 of any number, with these in it."""
        group = Group(self, self._get("create_group", self.session, self.session, max_size))
        try:
            for member in members:
                group.add(member)
        except BaseException:
            group.delete()
            raise
        return group

    def member(self, handle: int) -> Member:
        """The member of a handle."""
        return Member(self, handle)

    def group(self, handle: int) -> Group:
        """The group of a handle."""
        return Group(self, handle)

    def action(self, member: Member, from_hardware: bool = False) -> Record:
        """The action of a member with its parameters."""
        record: Record = self._get("get_member", self.session, self.session,
                                   self._handle(member, Member), from_hardware)
        return record

    def _walk(self, first: str, following: str) -> Iterator[int]:
        found: Iterator[int] = walk(
            lambda: self._get(first, self.session, self.session),
            lambda handle, count: self._get(following, self.session, self.session, handle, count),
            _core.ObjectNotFound)
        return found

    def members(self) -> Iterator[Member]:
        """All members."""
        return (Member(self, one) for one in self._walk("get_first_member", "get_next_members"))

    def groups(self) -> Iterator[Group]:
        """All groups."""
        return (Group(self, one) for one in self._walk("get_first_group", "get_next_groups"))

    def __iter__(self) -> Iterator[Member]:
        return self.members()

    def __len__(self) -> int:
        """How many members there are."""
        return self.member_count()

    def __bool__(self) -> bool:
        return True

    def member_count(self) -> int:
        """How many members there are."""
        return int(self._get("get_act_prof_entry_count", self.session, self.session))

    def group_count(self) -> int:
        """How many groups there are."""
        return int(self._get("get_selector_group_count", self.session, self.session))

    def set_fallback(self, member: Member) -> None:
        """The member that stands in for groups that have nothing to choose."""
        self._call("set_dynamic_action_selection_fallback_member", self.session, self.session,
                   self._handle(member, Member))

    def reset_fallback(self) -> None:
        """No member stands in any more."""
        self._call("reset_dynamic_action_selection_fallback_member", self.session, self.session)

    def fallback(self) -> Member | None:
        """The member that set_fallback has set; None without one."""
        try:
            return Member(self, read_control("soft_fallback_member", self.session.device_id,
                                             self.selector))
        except _core.ObjectNotFound:
            return None

    def active_members(self, word: int = 0) -> list[Member]:
        """The active members in a word of 32 slots of the selector."""
        count = self._get("get_word_llp_active_member_count", self.session, self.session, word)
        if not count:
            return []
        members = self._get("get_word_llp_active_members", self.session, self.session, word, count)
        return [Member(self, handle) for handle in members]

    def on_member_update(self, callback: Callable[[Update, int], object] | None) -> None:
        """Has the callback called with what was done and the member after each change."""
        listen(self._program, self.name, self.session, "register_adt_update_cb", callback,
               lambda each, _session, _device, _table, update, member: each(Update(update), member))

    def on_group_update(self, callback: Callable[[Update, int, int], object] | None) -> None:
        """The same with what was done, group and member (0: the group alone)."""
        listen(self._program, self.name, self.session, "register_sel_update_cb", callback,
               lambda each, _session, _device, _selector, update, group, member:
               each(Update(update), group, member))

    def capacity(self, of_groups: bool = False) -> int:
        """How many members or groups the soft device takes; 0: any number."""
        return int(read_control("soft_profile_capacity_get", self.session.device_id,
                                self.selector if of_groups else self.handle))

    def set_capacity(self, capacity: int, of_groups: bool = False) -> None:
        """Limits how many members or groups the soft device takes; 0: any number."""
        control("soft_profile_capacity_set", self.session.device_id,
                self.selector if of_groups else self.handle, capacity)

    def clear(self) -> int:
        """Deletes all groups and then all members, and returns how many these were.

        Entries must not point at them.
        """
        return (delete_all(list(self.groups()), Group.delete)
                + delete_all(list(self.members()), Member.delete))

"""Numbers that the SDK gives names to."""
from enum import IntEnum


class Update(IntEnum):
    """What callbacks of updates are called about: PIPE_UPDATE_*."""
    ADD = 0
    MODIFY = 1
    DELETE = 2
    SET_DEFAULT = 3
    RESET_DEFAULT = 4
    GROUP_CREATE = 5
    GROUP_DELETE = 6
    MEMBER_JOIN = 7
    MEMBER_LEAVE = 8
    MEMBER_ENABLE = 9
    MEMBER_DISABLE = 10


class TableProperty(IntEnum):
    """Properties of tables: PIPE_TABLE_*."""
    ENTRY_SCOPE = 1
    DUPLICATE_CHECK = 2
    CAPACITY = 3


class IdleMode(IntEnum):
    """How a table ages its entries: PIPE_IDLE_*."""
    POLL = 0
    NOTIFY = 1


class Direction(IntEnum):
    """Which way packets go through the parsers of a device."""
    INGRESS = 0
    EGRESS = 1

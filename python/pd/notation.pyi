"""Types of arguments, for type checkers alone.

NOTATION_MATCH is what a field takes, and NOTATION_MATCH_value what it is when it is read.
"""
from ipaddress import (
    IPv4Address, IPv4Interface, IPv4Network, IPv6Address, IPv6Interface, IPv6Network)
from typing import Any, Callable, Mapping, Sequence, SupportsIndex, Union

from pd._core import Entry, MeterSpec, Output, SessionBase

_Plain = Union[SupportsIndex, str, bytes]
# A value and its mask, or its prefix length.
_Pair = tuple[Union[SupportsIndex, str, bytes], SupportsIndex]
_Ipv4Pair = tuple[Union[SupportsIndex, str, bytes, IPv4Address],
                  Union[SupportsIndex, str, IPv4Address]]
_Ipv6Pair = tuple[Union[SupportsIndex, str, bytes, IPv6Address],
                  Union[SupportsIndex, str, IPv6Address]]
_Ipv4Prefix = Union[_Plain, IPv4Address, IPv4Network, IPv4Interface, _Ipv4Pair]
_Ipv6Prefix = Union[_Plain, IPv6Address, IPv6Network, IPv6Interface, _Ipv6Pair]
_Masked = Union[_Plain, _Pair, tuple[str, str]]

number_exact = _Plain
number_exact_value = int
number_ternary = _Masked
number_ternary_value = Union[int, str]
number_lpm = _Masked
number_lpm_value = str
port_exact = _Plain
port_exact_value = int
port_ternary = _Masked
port_ternary_value = Union[int, str]
port_lpm = _Masked
port_lpm_value = str
vport_exact = _Plain
vport_exact_value = int
vport_ternary = _Masked
vport_ternary_value = Union[int, str]
vport_lpm = _Masked
vport_lpm_value = str
mac_exact = _Plain
mac_exact_value = str
mac_ternary = _Masked
mac_ternary_value = str
mac_lpm = _Masked
mac_lpm_value = str
protocol_exact = _Plain
protocol_exact_value = int
protocol_ternary = _Masked
protocol_ternary_value = Union[int, str]
protocol_lpm = _Masked
protocol_lpm_value = str
service_exact = _Plain
service_exact_value = int
service_ternary = _Masked
service_ternary_value = Union[int, str]
service_lpm = _Masked
service_lpm_value = str
ipv4_exact = Union[_Plain, IPv4Address]
ipv4_exact_value = str
ipv4_ternary = _Ipv4Prefix
ipv4_ternary_value = str
ipv4_lpm = _Ipv4Prefix
ipv4_lpm_value = str
ipv6_exact = Union[_Plain, IPv6Address]
ipv6_exact_value = str
ipv6_ternary = _Ipv6Prefix
ipv6_ternary_value = str
ipv6_lpm = _Ipv6Prefix
ipv6_lpm_value = str

# A row of a call for many entries.
row = Union[Sequence[Any], Mapping[str, Any]]
entry = Union[int, Entry[Any, Any]]
meter = Union[MeterSpec, Sequence[int]]
hash_bits = Union[bytes, int]

# Arguments of the functions of C: buffers are not looked into by type checkers.
Input = Any
Writable = Union[Output, Any, None]
Callback = Union[Callable[..., object], None]
TargetLike = Union[SessionBase, Sequence[int]]
SessionLike = Union[SessionBase, SupportsIndex]

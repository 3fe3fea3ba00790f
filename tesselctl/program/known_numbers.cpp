#include "tesselctl/program/known_numbers.hpp"

#include "common/nearest.hpp"

namespace tesselctl {

namespace {

constexpr KnownNumber kProtocols[] = {
    {"icmp", 1},    {"igmp", 2},      {"ipip", 4},   {"tcp", 6},   {"egp", 8},    {"udp", 17},
    {"dccp", 33},   {"ipv6", 41},     {"rsvp", 46},  {"gre", 47},  {"esp", 50},   {"ah", 51},
    {"icmpv6", 58}, {"eigrp", 88},    {"ospf", 89},  {"pim", 103}, {"vrrp", 112}, {"l2tp", 115},
    {"sctp", 132},  {"udplite", 136}, {"mpls", 137},
};

constexpr KnownNumber kServices[] = {
    {"ftp-data", 20},
    {"ftp", 21},
    {"ssh", 22},
    {"telnet", 23},
    {"smtp", 25},
    {"tacacs", 49},
    {"dns", 53},
    {"dhcp", 67},
    {"dhcp-client", 68},
    {"tftp", 69},
    {"http", 80},
    {"kerberos", 88},
    {"pop3", 110},
    {"sunrpc", 111},
    {"ntp", 123},
    {"netbios-ns", 137},
    {"netbios-dgm", 138},
    {"netbios-ssn", 139},
    {"imap", 143},
    {"snmp", 161},
    {"snmp-trap", 162},
    {"bgp", 179},
    {"ptp-event", 319},
    {"ptp-general", 320},
    {"ldap", 389},
    {"https", 443},
    {"smb", 445},
    {"isakmp", 500},
    {"syslog", 514},
    {"rip", 520},
    {"dhcpv6-client", 546},
    {"dhcpv6", 547},
    {"submission", 587},
    {"ldaps", 636},
    {"ldp", 646},
    {"netconf", 830},
    {"dns-tls", 853},
    {"twamp", 862},
    {"rsync", 873},
    {"imaps", 993},
    {"pop3s", 995},
    {"openvpn", 1194},
    {"ms-sql", 1433},
    {"l2tp", 1701},
    {"pptp", 1723},
    {"radius", 1812},
    {"radius-acct", 1813},
    {"nfs", 2049},
    {"gtp-c", 2123},
    {"gtp-u", 2152},
    {"iscsi", 3260},
    {"mysql", 3306},
    {"rdp", 3389},
    {"stun", 3478},
    {"bfd", 3784},
    {"bfd-echo", 3785},
    {"ipsec-nat-t", 4500},
    {"ipfix", 4739},
    {"bfd-multihop", 4784},
    {"vxlan", 4789},
    {"roce", 4791},
    {"sip", 5060},
    {"sips", 5061},
    {"postgresql", 5432},
    {"vnc", 5900},
    {"geneve", 6081},
    {"sflow", 6343},
    {"mpls-udp", 6635},
    {"openflow", 6653},
};

}  // namespace

std::span<const KnownNumber> known_numbers(Notation notation) {
  if (notation == Notation::protocol) return kProtocols;
  if (notation == Notation::service) return kServices;
  return {};
}

const KnownNumber *find_known_number(Notation notation, std::string_view name) {
  const auto known = known_numbers(notation);
  const std::string lower = known.empty() ? "" : common::lower_case(name);
  const auto found = std::ranges::find(known, lower, &KnownNumber::name);
  return found == known.end() ? nullptr : &*found;
}

}  // namespace tesselctl

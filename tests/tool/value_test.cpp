// Native notation: the literal bits behind each text, and back.
#include <gtest/gtest.h>

#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/suggest.hpp"

namespace tesselctl {
namespace {

const Field &field_of(const char *table, const char *field) {
  return find_field(resolve({table, 0}, tables(), "table"), {field, 0}, table);
}

struct Case {
  const char *table;
  const char *field;
  const char *text;
  Number value;
  Number mask;
  const char *shown;  // null: as written
};

class ValueTest : public ::testing::TestWithParam<Case> {};

TEST_P(ValueTest, IsReadStoredAndShown) {
  const Case &given = GetParam();
  const Field &field = field_of(given.table, given.field);
  const FieldValue value = parse_value(field, {given.text, 1});
  EXPECT_EQ(hexadecimal(value.value), hexadecimal(given.value));
  EXPECT_EQ(hexadecimal(value.mask), hexadecimal(given.mask));
  EXPECT_EQ(format_value(field, value), given.shown != nullptr ? given.shown : given.text);
  alignas(16) uint8_t record[512] = {};
  store_value(field, value, record);
  EXPECT_EQ(load_value(field, record), value);
}

constexpr Number kIpv6 = {0x20010db800000000u, 0x0000000000000001u};

INSTANTIATE_TEST_SUITE_P(
    Texts, ValueTest,
    ::testing::Values(
        Case{"ipv4ShortMaskLpm", "dip", "10.1.2.0/24", 0x0a010200, 0xffffff00, nullptr},
        Case{"ipv4ShortMaskLpm", "dip", "0.0.0.0/0", 0, 0, nullptr},
        Case{"ipv4ShortMaskLpm", "dip", "*", 0, 0, "0.0.0.0/0"},
        Case{"ipv4ShortMaskLpm", "dip", "255.255.255.255", 0xffffffff, 0xffffffff,
             "255.255.255.255/32"},
        Case{"ipv4ShortMaskLpm", "ingIpv4_dip", "0x0a000000/8", 0x0a000000, 0xff000000,
             "10.0.0.0/8"},
        Case{"ipv4ShortMaskLpm", "vrf_id", "0xff", 255, 255, "255"},
        Case{"ipv6ShortMaskLpm", "dip", "2001:db8::1/128", kIpv6, {~0ull, ~0ull}, nullptr},
        Case{"ipv6ShortMaskLpm",
             "dip",
             "2001:db8::/32",
             {0x20010db800000000u, 0},
             {0xffffffff00000000u, 0},
             nullptr},
        Case{"ipv6ShortMaskLpm",
             "dip",
             "fe80::/65",
             {0xfe80000000000000u, 0},
             {~0ull, 0x8000000000000000u},
             nullptr},
        Case{"ipv6ShortMaskLpm",
             "dip",
             "0x20010db8000000000000000000000001",
             kIpv6,
             {~0ull, ~0ull},
             "2001:db8::1/128"},
        Case{"firewallPolicy", "sip", "10.0.0.0/8", 0x0a000000, 0xff000000, nullptr},
        Case{"firewallPolicy", "sip", "10.0.0.1&255.0.0.255", 0x0a000001, 0xff0000ff, nullptr},
        Case{"firewallPolicy", "dstPort", "443", 443, 0xffff, nullptr},
        Case{"firewallPolicy", "dstPort", "0x1f90&0xfff0", 0x1f90, 0xfff0, nullptr},
        Case{"firewallPolicy", "dstPort", "8080/12", 8080, 0xfff0, "0x1f90&0xfff0"},
        Case{"firewallPolicy", "dstPort", "*", 0, 0, nullptr},
        Case{"l2Lookup", "dmac", "00:11:22:aa:bb:cc", 0x001122aabbcc, 0xffffffffffff, nullptr},
        Case{"l2Lookup", "dmac", "00-11-22-AA-BB-CC", 0x001122aabbcc, 0xffffffffffff,
             "00:11:22:aa:bb:cc"},
        Case{"l2Lookup", "dmac", "0011.22aa.bbcc", 0x001122aabbcc, 0xffffffffffff,
             "00:11:22:aa:bb:cc"},
        Case{"l2Lookup", "dmacStation", "0xaabbcc", 0xaabbcc, 0xffffff, "11189196"},
        Case{"l2SmacCheck", "smac", "01:00:5e:00:00:00&ff:ff:ff:80:00:00", 0x01005e000000,
             0xffffff800000, nullptr},
        // The key takes 7 bits of 9, 2 bytes of 16.
        Case{"finalDropControl", "ingressPort", "5", 5, 0x7f, nullptr},
        Case{"finalDropControl", "ingressPort", "0x5&0x7f", 5, 0x7f, "5"},
        Case{"finalDropControl", "ingressPort", "0x5&0x1ff", 5, 0x1ff, nullptr},
        Case{"trapToCpu",
             "ingIpv6Dip",
             "2001::",
             {0x2001000000000000u, 0},
             {0xffff000000000000u, 0},
             nullptr}));

TEST(FieldTest, HalvesOfAMacAddressStandInTheirMembers) {
  const Field &pair = field_of("l2Lookup", "dmac");
  uint8_t record[64] = {};
  store_value(pair, parse_value(pair, {"00:11:22:aa:bb:cc", 1}), record);
  EXPECT_EQ(load_value(field_of("l2Lookup", "egrMd_dmacOui"), record).value, Number(0x001122));
  EXPECT_EQ(load_value(field_of("l2Lookup", "egrMd_dmacStation"), record).value, Number(0xaabbcc));
}

TEST(SuggestTest, TakesTheNearestNameAndNoneThatIsFar) {
  const std::vector<std::string> names = {"setNextHop", "setNextHop2", "setEcmp", "onMiss"};
  EXPECT_EQ(nearest("setNexthop", names), "setNextHop");
  EXPECT_EQ(nearest("setEmcp", names), "setEcmp");
  EXPECT_EQ(nearest("onM", names), "onMiss");
  EXPECT_EQ(nearest("completely", names), "");
  EXPECT_EQ(nearest(std::string(100000, 'x'), names), "");
}

}  // namespace
}  // namespace tesselctl

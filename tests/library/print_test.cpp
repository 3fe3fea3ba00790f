// How lines go to a descriptor, and the address helpers.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <climits>
#include <csignal>

#include "texts.hpp"

namespace pd_test {
namespace {

constexpr auto kPrint = p4_pd_tessel_switch_ecmpGroup_match_spec_print;

// Through a pair of sockets that keep messages apart: a line is one write.
std::vector<std::string> messages(int indent) {
  int ends[2];
  EXPECT_EQ(socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0, ends), 0);
  const p4_pd_tessel_switch_ecmpGroup_match_spec_t group = {0x1234};
  EXPECT_EQ(kPrint(ends[1], indent, &group), indent == 2 || indent == -2 ? 34 : 33);
  std::vector<std::string> lines;
  char line[1024];
  for (ssize_t size; (size = recv(ends[0], line, sizeof line, 0)) > 0;) {
    lines.emplace_back(line, static_cast<size_t>(size));
  }
  close(ends[0]);
  close(ends[1]);
  return lines;
}

TEST(Print, ALineIsAWrite) {
  using Lines = std::vector<std::string>;
  const std::string header = "p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n";
  const std::string field = "  l3_ecmpGroup mask 0xff: 0x0034\n";
  EXPECT_EQ(messages(2), (Lines{"  " + header, " " + field}));
  EXPECT_EQ(messages(-2), (Lines{"  " + header, " " + field}));
  // Fields stand behind two blanks at least.
  EXPECT_EQ(messages(1), (Lines{" " + header, field}));
  EXPECT_EQ(messages(0), (Lines{header, field}));
}

TEST(Print, LongIndentsAndFailures) {
  const int file = memfd_create("lines", 0);
  const p4_pd_tessel_switch_ecmpGroup_match_spec_t group = {};
  EXPECT_EQ(kPrint(file, 5000, &group), 5001 + 31);
  std::string written(5000 + 44, '\0');
  ASSERT_EQ(pread(file, written.data(), written.size(), 0), static_cast<ssize_t>(written.size()));
  EXPECT_EQ(written, std::string(5000, ' ') + "p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n");
  // A line longer than an int can say is not begun.
  for (const int indent : {INT_MAX, INT_MIN}) EXPECT_EQ(kPrint(file, indent, &group), -1);
  const off_t end = lseek(file, 0, SEEK_END);
  EXPECT_EQ(end, 5000 + 44 + 5001 + 31);
  // Of the last line a part can be written.
  rlimit unlimited;
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
  const rlimit short_by_one = {static_cast<rlim_t>(end) + 44 + 32, unlimited.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &short_by_one);
  const int result = kPrint(file, 0, &group);
  setrlimit(RLIMIT_FSIZE, &unlimited);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(result, -1);
  close(file);
  EXPECT_EQ(kPrint(file, 0, &group), -1);
}

// ---- Address helpers ----

template <class Helper, class... Argument>
std::string helped(Helper helper, const char *label, Argument... arguments) {
  TextBuffer buffer(160);
  const int length = helper(buffer.data(), label, arguments...);
  if (length != 0) return buffer.text(length);
  EXPECT_TRUE(buffer.is_untouched());
  return "(nothing)";
}

TEST(Address, V4) {
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v4addr_exact, "sip", 0xc0a8010au),
            "sip 192.168.1.10 ");
  const auto lpm = p4_pd_tessel_switch__print_v4addr_lpm;
  EXPECT_EQ(helped(lpm, "dip", 0xffffffffu, uint16_t{0}), "dip 255.255.255.255/0 ");
  EXPECT_EQ(helped(lpm, "", 1u, uint16_t{65535}), " 0.0.0.1/65535 ");
  const auto ternary = p4_pd_tessel_switch__print_v4addr_ternary;
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0xff00ff00u), "dip 10.0.0.1/8 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0xffffffffu), "dip 10.0.0.1/32 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 1u), "dip 10.0.0.1/0 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0u), "(nothing)");
}

TEST(Address, V6) {
  const uint8_t address[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t low[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t none[16] = {};
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v6addr_exact, "dip", address), "dip 2001:db8::1");
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v6addr_lpm, "dip", address, uint16_t{64}),
            "dip 2001:db8::1/64 ");
  const auto ternary = p4_pd_tessel_switch__print_v6addr_ternary;
  EXPECT_EQ(helped(ternary, "dip", address, low), "dip 2001:db8::1/::1 ");
  EXPECT_EQ(helped(ternary, "dip", address, none), "(nothing)");
}

TEST(Address, Mac) {
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_mac_exact, "dmac", 0xff001122u, 0xff334455u),
            "dmac 0011.2233.4455 ");
  const auto ternary = [](uint32_t oui_mask, uint32_t station_mask) {
    return helped(p4_pd_tessel_switch__print_mac_ternary, "dmac", 0x001122u, oui_mask, 0x334455u,
                  station_mask);
  };
  EXPECT_EQ(ternary(0xffffffff, 0x00ffffff), "dmac 0011.2233.4455 ");
  EXPECT_EQ(ternary(0xffffff, 0), "dmac 0011.2233.4455/ffff.ff00.0000 ");
  EXPECT_EQ(ternary(0, 1), "dmac 0011.2233.4455/0000.0000.0001 ");
  EXPECT_EQ(ternary(0xff000000, 0xff000000), "(nothing)");
}

}  // namespace
}  // namespace pd_test

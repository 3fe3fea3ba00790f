// Records printed to a descriptor, and the address helpers.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <csignal>
#include <cstdio>
#include <thread>

#include "text_fixture.hpp"

namespace pd_test {
namespace {

// A pair of datagram sockets: what one write sends arrives as one piece.
class LineSink {
 public:
  LineSink() {
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK, 0, ends_) != 0) ends_[0] = -1;
    EXPECT_GE(ends_[0], 0);
  }
  ~LineSink() {
    close(ends_[0]);
    close(ends_[1]);
  }
  int descriptor() const { return ends_[1]; }
  std::vector<std::string> lines() const {
    std::vector<std::string> all;
    char line[1024];
    for (ssize_t size; (size = recv(ends_[0], line, sizeof line, 0)) > 0;) {
      all.emplace_back(line, static_cast<size_t>(size));
    }
    return all;
  }

 private:
  int ends_[2] = {-1, -1};
};

TEST(Print, RowsOfRecords) {
  LineSink sink;
  p4_pd_tessel_switch_ecmpGroup_match_spec_t group = {};
  group.l3_ecmpGroup = 0x1234;
  const std::vector<std::string> two = {"  p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n",
                                        "   l3_ecmpGroup mask 0xff: 0x0034\n"};
  EXPECT_EQ(p4_pd_tessel_switch_ecmpGroup_match_spec_print(sink.descriptor(), 2, &group), 34);
  EXPECT_EQ(sink.lines(), two);
  EXPECT_EQ(p4_pd_tessel_switch_ecmpGroup_match_spec_print(sink.descriptor(), -2, &group), 34);
  EXPECT_EQ(sink.lines(), two);

  // At indent 0 the header stands at the margin, fields behind two blanks, as at indent 1.
  p4_pd_tessel_switch_ecmpGroup_match_spec_print(sink.descriptor(), 0, &group);
  EXPECT_EQ(sink.lines(), (std::vector<std::string>{"p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n",
                                                    "  l3_ecmpGroup mask 0xff: 0x0034\n"}));
  p4_pd_tessel_switch_ecmpGroup_match_spec_print(sink.descriptor(), 1, &group);
  EXPECT_EQ(sink.lines(),
            (std::vector<std::string>{" p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n",
                                      "  l3_ecmpGroup mask 0xff: 0x0034\n"}));
}

TEST(Print, LongIndentsAndFailures) {
  char path[] = "/tmp/print_test_XXXXXX";
  const int file = mkstemp(path);
  unlink(path);
  const p4_pd_tessel_switch_ecmpGroup_match_spec_t group = {};
  const auto print = p4_pd_tessel_switch_ecmpGroup_match_spec_print;
  EXPECT_EQ(print(file, 5000, &group), 5001 + 31);
  EXPECT_EQ(lseek(file, 0, SEEK_END), 5000 + 44 + 5001 + 31);
  std::vector<char> written(5000 + 44);
  ASSERT_EQ(pread(file, written.data(), written.size(), 0), static_cast<ssize_t>(written.size()));
  EXPECT_EQ(std::string(written.data(), written.size()),
            std::string(5000, ' ') + "p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n");
  // A line longer than an int can tell is not begun.
  for (const int indent : {INT_MAX, INT_MIN}) EXPECT_EQ(print(file, indent, &group), -1);
  EXPECT_EQ(lseek(file, 0, SEEK_END), 5000 + 44 + 5001 + 31);
  // Of the last line a part can be written.
  rlimit unlimited;
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &unlimited), 0);
  const rlimit short_by_one = {5000 + 44 + 5001 + 31 + 44 + 32, unlimited.rlim_max};
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &short_by_one);
  const int result = print(file, 0, &group);
  setrlimit(RLIMIT_FSIZE, &unlimited);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(result, -1);
  const int closed = dup(file);
  close(closed);
  EXPECT_EQ(print(closed, 0, &group), -1);
  close(file);
}

TEST(Print, ThreadsPrintWideFieldsAtTheSameTime) {
  std::vector<std::thread> threads;
  for (uint8_t seed = 0; seed < 4; ++seed) {
    threads.emplace_back([seed] {
      LineSink sink;
      p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t route = {};
      std::memset(route.ingIpv6_dip, 0x11 * (seed + 1), 16);
      const std::string line =
          "  ingIpv6_dip: 0x" + std::string(32, static_cast<char>('1' + seed)) + "\n";
      for (int round = 0; round < 500; ++round) {
        p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_print(sink.descriptor(), 0, &route);
        const std::vector<std::string> lines = sink.lines();
        ASSERT_EQ(lines.size(), 4u);
        ASSERT_EQ(lines[2], line);
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
}

// ---- Address helpers ----

template <class Helper, class... Argument>
std::string helped(Helper helper, const char *label, Argument... arguments) {
  TextBuffer buffer(160);
  const int length = helper(buffer.data(), label, arguments...);
  if (length == 0) {
    EXPECT_TRUE(buffer.is_untouched());
    return "(nothing)";
  }
  return buffer.text(static_cast<uint64_t>(length));
}

TEST(Address, V4) {
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v4addr_exact, "sip", 0xc0a8010au),
            "sip 192.168.1.10 ");
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v4addr_exact, "", 0u), " 0.0.0.0 ");
  const auto lpm = p4_pd_tessel_switch__print_v4addr_lpm;
  EXPECT_EQ(helped(lpm, "dip", 0xffffffffu, uint16_t{0}), "dip 255.255.255.255/0 ");
  EXPECT_EQ(helped(lpm, "dip", 1u, uint16_t{65535}), "dip 0.0.0.1/65535 ");
  const auto ternary = p4_pd_tessel_switch__print_v4addr_ternary;
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0xffffff00u), "dip 10.0.0.1/24 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0xff00ff00u), "dip 10.0.0.1/8 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0xffffffffu), "dip 10.0.0.1/32 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 1u), "dip 10.0.0.1/0 ");
  EXPECT_EQ(helped(ternary, "dip", 0x0a000001u, 0u), "(nothing)");
}

TEST(Address, V6) {
  const uint8_t address[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t mask[16] = {0xff, 0xff};
  const uint8_t low[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t none[16] = {};
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v6addr_exact, "dip", address), "dip 2001:db8::1");
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_v6addr_lpm, "dip", address, uint16_t{64}),
            "dip 2001:db8::1/64 ");
  const auto ternary = p4_pd_tessel_switch__print_v6addr_ternary;
  EXPECT_EQ(helped(ternary, "dip", address, mask), "dip 2001:db8::1/ffff:: ");
  EXPECT_EQ(helped(ternary, "dip", none, low), "dip ::/::1 ");
  EXPECT_EQ(helped(ternary, "dip", address, none), "(nothing)");
}

TEST(Address, Mac) {
  EXPECT_EQ(helped(p4_pd_tessel_switch__print_mac_exact, "dmac", 0xff001122u, 0xff334455u),
            "dmac 0011.2233.4455 ");
  const auto ternary = [](uint32_t oui_mask, uint32_t station_mask) {
    return helped(p4_pd_tessel_switch__print_mac_ternary, "dmac", 0x001122u, oui_mask, 0x334455u,
                  station_mask);
  };
  EXPECT_EQ(ternary(0xffffff, 0xffffff), "dmac 0011.2233.4455 ");
  EXPECT_EQ(ternary(0xffffffff, 0x00ffffff), "dmac 0011.2233.4455 ");
  EXPECT_EQ(ternary(0xffffff, 0), "dmac 0011.2233.4455/ffff.ff00.0000 ");
  EXPECT_EQ(ternary(0, 1), "dmac 0011.2233.4455/0000.0000.0001 ");
  EXPECT_EQ(ternary(0, 0), "(nothing)");
  EXPECT_EQ(ternary(0xff000000, 0xff000000), "(nothing)");
}

}  // namespace
}  // namespace pd_test

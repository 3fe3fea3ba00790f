// How lines go to a descriptor, and the address helpers.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <climits>
#include <csignal>

#include "texts.hpp"
#include "typed.hpp"

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

TEST(Address, OfEveryKind) {
  const uint8_t address[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t low[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  const uint8_t none[16] = {};
  const struct {
    const char *helper;
    const char *label;
    std::vector<uint64_t> values;
    const char *text;  // empty: nothing is written
  } rows[] = {
      {"v4addr_exact", "sip", {0xc0a8010a}, "sip 192.168.1.10 "},
      {"v4addr_lpm", "dip", {0xffffffff, 0}, "dip 255.255.255.255/0 "},
      {"v4addr_lpm", "", {1, 65535}, " 0.0.0.1/65535 "},
      {"v4addr_ternary", "dip", {0x0a000001, 0xff00ff00}, "dip 10.0.0.1/8 "},
      {"v4addr_ternary", "dip", {0x0a000001, 0xffffffff}, "dip 10.0.0.1/32 "},
      {"v4addr_ternary", "dip", {0x0a000001, 1}, "dip 10.0.0.1/0 "},
      {"v4addr_ternary", "dip", {0x0a000001, 0}, ""},
      {"v6addr_exact", "dip", {word(address)}, "dip 2001:db8::1"},
      {"v6addr_lpm", "dip", {word(address), 64}, "dip 2001:db8::1/64 "},
      {"v6addr_ternary", "dip", {word(address), word(low)}, "dip 2001:db8::1/::1 "},
      {"v6addr_ternary", "dip", {word(address), word(none)}, ""},
      {"mac_exact", "dmac", {0xff001122, 0xff334455}, "dmac 0011.2233.4455 "},
      {"mac_ternary", "dmac", {0x1122, 0xffffffff, 0x334455, 0xffffff}, "dmac 0011.2233.4455 "},
      {"mac_ternary",
       "dmac",
       {0x1122, 0xffffff, 0x334455, 0},
       "dmac 0011.2233.4455/ffff.ff00.0000 "},
      {"mac_ternary", "dmac", {0x1122, 0, 0x334455, 1}, "dmac 0011.2233.4455/0000.0000.0001 "},
      {"mac_ternary", "dmac", {0x1122, 0xff000000, 0x334455, 0xff000000}, ""},
  };
  for (const auto &row : rows) {
    TextBuffer buffer;
    std::vector<uint64_t> words = {word(buffer.data()), word(row.label)};
    words.insert(words.end(), row.values.begin(), row.values.end());
    const uint64_t length = find_export("print_" + std::string(row.helper))->call(words.data());
    EXPECT_EQ(length, std::strlen(row.text)) << row.text;
    EXPECT_EQ(length == 0 && buffer.is_untouched() ? "" : buffer.text(length), row.text);
  }
}

}  // namespace
}  // namespace pd_test

// Texts of the library, against the usual ways to print numbers: snprintf, compiled {fmt}, and
// hexadecimal digits put down by hand.
#include <fmt/compile.h>

#include <cstdio>
#include <cstring>

#include "call_rows.hpp"
#include "p4_pd_tessel_switch.h"

namespace bench {

namespace {

// Fields in the order of their text: digits, name, bits.
// clang-format off
#define cpuEncap_TEXT(EXACT, TERNARY, WIDE) \
  EXACT(1, egrMd_trapToCpu, 0x1u) \
  EXACT(1, ingMd_vlanHdrValid, 0x1u) \
  TERNARY(1, phase0_switchPort, 0x1u) \
  TERNARY(2, egrMd_cpuReasonCode, 0xffu) \
  TERNARY(1, vlanHdr_0__valid, 0x1u)

#define trapToCpu_TEXT(EXACT, TERNARY, WIDE) \
  TERNARY(1, arpHdr_valid, 0x1u) \
  TERNARY(4, arpHdr_opcode, 0xffffu) \
  TERNARY(2, egrMd_cpuReasonCode, 0xffu) \
  TERNARY(1, egrMd_decapType, 0x7u) \
  TERNARY(1, egrMd_vxlanFlood, 0x1u) \
  TERNARY(8, ingIpv4_dip, 0xffffffffu) \
  WIDE(ingIpv6_dip) \
  TERNARY(1, ingMd_bcast, 0x1u) \
  TERNARY(1, ingMd_cpuMemberOfIngressVlan, 0x1u) \
  TERNARY(4, ingMd_dstPort, 0xffffu) \
  TERNARY(4, ingMd_etherType, 0xffffu) \
  TERNARY(1, ingMd_igmpSnoopingEnabled, 0x1u) \
  TERNARY(3, ingMd_ingL3Aintf, 0xfffu) \
  TERNARY(1, ingMd_l4Attr, 0x7u) \
  TERNARY(1, ingMd_mcast, 0x1u) \
  TERNARY(2, ingMd_protocol, 0xffu) \
  TERNARY(4, ingMd_srcPort, 0xffffu) \
  TERNARY(2, ingMd_ttl, 0xffu) \
  TERNARY(1, l3Info_ingL3DmacValid, 0x1u) \
  TERNARY(4, phase0_ingVPort, 0x3fffu)
// clang-format on

using CpuEncap = p4_pd_tessel_switch_cpuEncap_match_spec_t;
using TrapToCpu = p4_pd_tessel_switch_trapToCpu_match_spec_t;

// ---- With formats ----

// The half of an address from a byte on.
inline unsigned long long half(const uint8_t *bytes) {
  uint64_t value;
  std::memcpy(&value, bytes, sizeof value);
  return __builtin_bswap64(value);
}

#define EXACT_PRINTF(digits, field, bits) "0x%0" #digits "x,"
#define TERNARY_PRINTF(digits, field, bits) EXACT_PRINTF(digits, , ) EXACT_PRINTF(digits, , )
#define WIDE_PRINTF(field) "0x%016llX%016llX,0x%016llX%016llX,"

#define EXACT_VALUES(digits, field, bits) , m.field &bits
#define TERNARY_VALUES(digits, field, bits) , m.field &bits, m.field##_mask &bits
#define WIDE_VALUES(field) \
  , half(m.field), half(m.field + 8), half(m.field##_mask), half(m.field##_mask + 8)

// A call for each number: with all in one the arguments of those to come are passed on and on.
#define EXACT_FMT(digits, field, bits) \
  out = fmt::format_to(out, FMT_COMPILE("0x{:0" #digits "x},"), m.field & bits);
#define TERNARY_FMT(digits, field, bits) \
  EXACT_FMT(digits, field, bits) EXACT_FMT(digits, field##_mask, bits)
#define ONE_WIDE_FMT(field) \
  out = fmt::format_to(out, FMT_COMPILE("0x{:016X}{:016X},"), half(m.field), half(m.field + 8));
#define WIDE_FMT(field) ONE_WIDE_FMT(field) ONE_WIDE_FMT(field##_mask)

// ---- By hand ----

constexpr char lower[] = "0123456789abcdef";
constexpr char upper[] = "0123456789ABCDEF";

inline char *put(char *out, uint32_t value, int digits) {
  *out++ = '0';
  *out++ = 'x';
#pragma GCC unroll 8
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) *out++ = lower[value >> shift & 15];
  *out++ = ',';
  return out;
}

inline char *put_address(char *out, const uint8_t *address) {
  *out++ = '0';
  *out++ = 'x';
#pragma GCC unroll 16
  for (int i = 0; i < 16; ++i) {
    *out++ = upper[address[i] >> 4];
    *out++ = upper[address[i] & 15];
  }
  *out++ = ',';
  return out;
}

#define EXACT_PUT(digits, field, bits) out = put(out, m.field & bits, digits);
#define TERNARY_PUT(digits, field, bits) \
  EXACT_PUT(digits, field, bits) EXACT_PUT(digits, field##_mask, bits)
#define WIDE_PUT(field)            \
  out = put_address(out, m.field); \
  out = put_address(out, m.field##_mask);

#define DEFINE_WRITER(name, Record, fields) \
  int name(const Record &m, char *buffer) { \
    char *out = buffer;                     \
    *out++ = '(';                           \
    *out++ = ' ';                           \
    fields *out++ = ')';                    \
    *out++ = ',';                           \
    *out = '\0';                            \
    return static_cast<int>(out - buffer);  \
  }

#define DEFINE_TEXTS(Record, table)                                                     \
  int by_snprintf(const Record &m, char *buffer) {                                      \
    return std::snprintf(                                                               \
        buffer, 512,                                                                    \
        "( " table##_TEXT(EXACT_PRINTF, TERNARY_PRINTF, WIDE_PRINTF) ")," table##_TEXT( \
            EXACT_VALUES, TERNARY_VALUES, WIDE_VALUES));                                \
  }                                                                                     \
  DEFINE_WRITER(by_fmt, Record, table##_TEXT(EXACT_FMT, TERNARY_FMT, WIDE_FMT))         \
  DEFINE_WRITER(by_hand, Record, table##_TEXT(EXACT_PUT, TERNARY_PUT, WIDE_PUT))        \
  int by_library(const Record &m, char *buffer) {                                       \
    return p4_pd_tessel_switch_##table##_match_spec_value(&m, buffer);                  \
  }
DEFINE_TEXTS(CpuEncap, cpuEncap)
DEFINE_TEXTS(TrapToCpu, trapToCpu)

// ---- Rows ----

char buffer[P4_PD_TESSEL_SWITCH_SCHEMA_MAX];
volatile int written;

template <class Record>
using Write = int (*)(const Record &, char *);

// Every bit set, so that no value is short.
template <class Record, Write<Record> write>
Side side(const char *name) {
  return {name, [] {
            Record record;
            std::memset(&record, 0xff, sizeof record);
            return [record](uint64_t operations) {
              for (; operations > 0; --operations) written = write(record, buffer);
            };
          }};
}

template <class Record>
std::string text_of(Write<Record> write) {
  Record record;
  std::memset(&record, 0xff, sizeof record);
  const int length = write(record, buffer);
  return std::string(buffer, static_cast<size_t>(length));
}

template <class Record>
void add_values(std::vector<Row> &rows, const char *name) {
  for (const Write<Record> write :
       {Write<Record>(by_snprintf), Write<Record>(by_fmt), Write<Record>(by_hand)}) {
    expect(text_of<Record>(write) == text_of<Record>(by_library), "texts are the same");
  }
  const Side what = side<Record, by_library>("library");
  rows.push_back({"texts", name, what, {side<Record, by_fmt>("compiled {fmt}")}, at_least(12)});
  rows.push_back({"texts", name, what, {side<Record, by_snprintf>("snprintf")}});
  rows.push_back({"texts", name, what, {side<Record, by_hand>("by hand")}});
}

void write_schema(uint64_t operations) {
  for (; operations > 0; --operations)
    written = p4_pd_tessel_switch_finalDropControl_schema(buffer);
}

void copy_schema(uint64_t operations) {
  static char copy[sizeof buffer];
  for (; operations > 0; --operations) {
    std::memcpy(copy, buffer, static_cast<size_t>(written));
    asm volatile("" : : "r"(copy) : "memory");
  }
}

}  // namespace

std::vector<Row> text_rows() {
  std::vector<Row> rows;
  add_values<CpuEncap>(rows, "value string of a cpuEncap key");
  add_values<TrapToCpu>(rows, "value string of a trapToCpu key");
  rows.push_back({"texts",
                  "schema of finalDropControl",
                  {"library", [] { return write_schema; }},
                  {{"copy of its bytes", [] {
                      write_schema(1);
                      return copy_schema;
                    }}}});
  return rows;
}

}  // namespace bench

#include "address.hpp"

#include <arpa/inet.h>
#include <string.h>

#include "text_out.hpp"

namespace pd {

namespace {

constexpr uint32_t half_ones = 0xffffff;

char *put_label(char *out, const char *label) { return put_text(put_text(out, label), " "); }

char *put_v4(char *out, uint32_t address) {
  for (unsigned shift = 24; shift > 0; shift -= 8) {
    out = put_text(put_decimal(out, address >> shift & 0xff), ".");
  }
  return put_decimal(out, address & 0xff);
}

char *put_v6(char *out, const uint8_t *address) {
  char text[INET6_ADDRSTRLEN] = "Decode error";
  inet_ntop(AF_INET6, address, text, sizeof text);
  return put_text(out, text);
}

// Three groups of four digits.
char *put_mac(char *out, uint32_t oui, uint32_t station) {
  put_digits<4>(out, oui >> 8 & 0xffff);
  out[4] = '.';
  put_digits<2>(out + 5, oui & 0xff);
  put_digits<2>(out + 7, station >> 16 & 0xff);
  out[9] = '.';
  put_digits<4>(out + 10, station & 0xffff);
  return out + 14;
}

}  // namespace

int print_v4addr_exact(char *buffer, const char *label, uint32_t address) {
  if (buffer == nullptr || label == nullptr) return 0;
  return finish_text(buffer, put_text(put_v4(put_label(buffer, label), address), " "));
}

int print_v4addr_lpm(char *buffer, const char *label, uint32_t address, uint16_t prefix_length) {
  if (buffer == nullptr || label == nullptr) return 0;
  char *out = put_text(put_v4(put_label(buffer, label), address), "/");
  return finish_text(buffer, put_text(put_decimal(out, prefix_length), " "));
}

int print_v4addr_ternary(char *buffer, const char *label, uint32_t address, uint32_t mask) {
  if (mask == 0) return 0;
  uint16_t ones = 0;
  while (ones < 32 && (mask >> (31 - ones) & 1) != 0) ++ones;
  return print_v4addr_lpm(buffer, label, address, ones);
}

int print_v6addr_exact(char *buffer, const char *label, const uint8_t *address) {
  if (buffer == nullptr || label == nullptr || address == nullptr) return 0;
  return finish_text(buffer, put_v6(put_label(buffer, label), address));
}

int print_v6addr_lpm(char *buffer, const char *label, const uint8_t *address,
                     uint16_t prefix_length) {
  if (buffer == nullptr || label == nullptr || address == nullptr) return 0;
  char *out = put_text(put_v6(put_label(buffer, label), address), "/");
  return finish_text(buffer, put_text(put_decimal(out, prefix_length), " "));
}

int print_v6addr_ternary(char *buffer, const char *label, const uint8_t *address,
                         const uint8_t *mask) {
  if (buffer == nullptr || label == nullptr || address == nullptr || mask == nullptr) return 0;
  static constexpr uint8_t none[16] = {};
  if (memcmp(mask, none, sizeof none) == 0) return 0;
  char *out = put_text(put_v6(put_label(buffer, label), address), "/");
  return finish_text(buffer, put_text(put_v6(out, mask), " "));
}

int print_mac_exact(char *buffer, const char *label, uint32_t oui, uint32_t station) {
  if (buffer == nullptr || label == nullptr) return 0;
  return finish_text(buffer, put_text(put_mac(put_label(buffer, label), oui, station), " "));
}

int print_mac_ternary(char *buffer, const char *label, uint32_t oui, uint32_t oui_mask,
                      uint32_t station, uint32_t station_mask) {
  if (buffer == nullptr || label == nullptr) return 0;
  oui_mask &= half_ones;
  station_mask &= half_ones;
  if (oui_mask == half_ones && station_mask == half_ones) {
    return print_mac_exact(buffer, label, oui, station);
  }
  if (oui_mask == 0 && station_mask == 0) return 0;
  char *out = put_text(put_mac(put_label(buffer, label), oui, station), "/");
  return finish_text(buffer, put_text(put_mac(out, oui_mask, station_mask), " "));
}

}  // namespace pd

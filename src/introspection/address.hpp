// Addresses as text into a caller's buffer: label, blank, address. Each returns the number of
// characters before the NUL; where it is 0, also for a null pointer, nothing is written at all.
// Halves of MAC addresses count with their low 24 bits.
#pragma once

#include <cstdint>

namespace pd {

int print_v4addr_exact(char *buffer, const char *label, uint32_t address);
int print_v4addr_lpm(char *buffer, const char *label, uint32_t address, uint16_t prefix_length);
// The prefix is as long as the run of ones at the top of the mask; 0 for a mask of 0.
int print_v4addr_ternary(char *buffer, const char *label, uint32_t address, uint32_t mask);

// 16 bytes each. Unlike all others, exact ends without a blank.
int print_v6addr_exact(char *buffer, const char *label, const uint8_t *address);
int print_v6addr_lpm(char *buffer, const char *label, const uint8_t *address,
                     uint16_t prefix_length);
int print_v6addr_ternary(char *buffer, const char *label, const uint8_t *address,
                         const uint8_t *mask);

int print_mac_exact(char *buffer, const char *label, uint32_t oui, uint32_t station);
// Without the mask when it is all ones; 0 when it is all zeros.
int print_mac_ternary(char *buffer, const char *label, uint32_t oui, uint32_t oui_mask,
                      uint32_t station, uint32_t station_mask);

}  // namespace pd

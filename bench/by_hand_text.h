/* Value strings of two tables in two ways: with one formatted print, and with straight-line
 * hexadecimal output as an engineer would write it without a generator. */
#ifndef BY_HAND_TEXT_H
#define BY_HAND_TEXT_H

#include "p4_pd_tessel_switch.h"

#ifdef __cplusplus
extern "C" {
#endif

int printf_cpuEncap(const p4_pd_tessel_switch_cpuEncap_match_spec_t *m, char *buffer);
int printf_trapToCpu(const p4_pd_tessel_switch_trapToCpu_match_spec_t *m, char *buffer);

int by_hand_text_cpuEncap(const p4_pd_tessel_switch_cpuEncap_match_spec_t *m, char *buffer);
int by_hand_text_trapToCpu(const p4_pd_tessel_switch_trapToCpu_match_spec_t *m, char *buffer);

#ifdef __cplusplus
}
#endif

#endif

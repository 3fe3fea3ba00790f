/* A host that starts the library and stops it again: what that costs beside a program that does
 * nothing. */
#include "p4_pd_tessel_switch.h"

int main(void) { return (int)(p4_pd_tessel_switch_init() + p4_pd_tessel_switch_cleanup()); }

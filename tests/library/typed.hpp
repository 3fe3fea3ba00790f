// For scenarios that call the library of tessel_switch as its users do: typed functions, short
// names.
#pragma once

#include <algorithm>
#include <climits>
#include <cstring>

#include "p4_pd_tessel_switch.h"
#include "pipe_mgr.h"
#include "support.hpp"

// A function or type of the program.
#define PD(name) p4_pd_tessel_switch_##name

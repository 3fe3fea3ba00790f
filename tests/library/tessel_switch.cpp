// The program that the tests of this folder are about.
#include "support.hpp"

namespace pd_test {

const bool is_chosen = (choose_program(bindings::pd_binding, PD_CATALOGUE_DIR), true);

}  // namespace pd_test

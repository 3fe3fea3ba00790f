#include "device_rows.hpp"
#include "p4_pd_tessel_switch.h"

int main(int argc, char **argv) {
  bench::expect(p4_pd_tessel_switch_init() == 0, "start the library");
  std::vector<bench::Row> rows;
  for (const auto &some : {bench::lookup_rows(), bench::entry_rows(), bench::thread_rows()}) {
    rows.insert(rows.end(), some.begin(), some.end());
  }
  return bench::run(rows, argc, argv);
}

#include "device_rows.hpp"
#include "tesselctl/device/device.hpp"
#include "tesselctl/program/library.hpp"

int main(int argc, char **argv) {
  tesselctl::use_program(bindings::pd_binding);
  const tesselctl::LibraryUse library;
  std::vector<bench::Row> rows;
  for (const auto &some :
       {bench::lookup_rows(), bench::entry_rows(), bench::thread_rows(), bench::upgrade_rows()}) {
    rows.insert(rows.end(), some.begin(), some.end());
  }
  return bench::run(rows, argc, argv);
}

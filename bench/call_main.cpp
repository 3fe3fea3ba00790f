#include "call_rows.hpp"

int main(int argc, char **argv) {
  std::vector<bench::Row> rows = bench::call_rows();
  for (bench::Row &row : bench::text_rows()) rows.push_back(std::move(row));
  return bench::run(rows, argc, argv);
}

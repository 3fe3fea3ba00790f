#include "call_rows.hpp"

int main(int argc, char **argv) { return bench::run(bench::call_rows(), argc, argv); }

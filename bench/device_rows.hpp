// The rows of the soft SDK.
#pragma once

#include "rows.hpp"

namespace bench {

std::vector<Row> entry_rows();
std::vector<Row> lookup_rows();
std::vector<Row> thread_rows();
std::vector<Row> upgrade_rows();

}  // namespace bench

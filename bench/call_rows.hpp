// The rows of the library over an SDK that does nothing.
#pragma once

#include "rows.hpp"

namespace bench {

// Calls against code written by hand, and against messages.
std::vector<Row> call_rows();
std::vector<Row> text_rows();

// Builds and serialises what a remote control-plane interface sends for a call about an entry whose
// bytes are all set; twice, with messages on the heap and in an arena. operation is that of a row.
std::vector<Side> messages(const std::string &operation, const std::string &table,
                           const std::string &action);

}  // namespace bench

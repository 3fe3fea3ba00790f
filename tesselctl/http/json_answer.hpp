// The answers of commands over HTTP.
#pragma once

#include <atomic>
#include <string_view>

#include "tesselctl/command/command.hpp"
#include "tesselctl/http/listener.hpp"

namespace tesselctl {

// The words of a request as a command line: those of the path, which '/' separates, and those of
// the query, which '&' does. Throws Fault.
std::string line_of(std::string_view path, std::string_view query);

// Runs the line where it asks the device for something and reads and writes no file, and answers
// with what it prints in JSON: also a fault, with a status of its own.
// The journal may be null.
HttpAnswer json_answer(Device &device, Journal *journal, const std::string &line);

}  // namespace tesselctl

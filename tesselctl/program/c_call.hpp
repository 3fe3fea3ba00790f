// Calls of the library's functions as C, ready to be pasted into a program that has a session, a
// device, a target and a status, and where they are needed placement data, a digest message, and
// callbacks, which are declared.
#pragma once

#include <string>

#include "bindings/export_table.hpp"

namespace tesselctl {

inline constexpr std::string_view kStatusType = "p4_pd_status_t";

// "p4_pd_status_t p4_pd_x_init(void)"
std::string prototype(const bindings::Export &target);

// The call with these words, behind the declarations of what they point at, in braces. A remark
// that is not empty stands behind it as a comment. Handles that the device chose have a variable
// where they are to be replaced.
enum class Handles { numbers, variables };
std::string c_call(const bindings::Export &target, const uint64_t *words, const std::string &remark,
                   Handles handles = Handles::numbers);

// The same with arguments that succeed on a fresh device, behind the calls that a comment names:
// addresses are those that examples are written with, and other fields 1.
std::string example_call(const bindings::Export &target);

// The match spec or action spec that a type is, or points at; null for another type.
const bindings::Record *record_of_type(std::string_view type);
// Of those that are passed by value.
bool is_record_by_value(std::string_view type);

// The code with every line of more columns broken behind commas.
std::string wrapped_code(std::string_view code, size_t width);
// The text broken between words.
std::string wrapped_text(std::string_view text, size_t width);

}  // namespace tesselctl

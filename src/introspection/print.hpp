// Records printed to a descriptor, one line a member.
#pragma once

#include "shapes.hpp"

namespace pd {

// What stands in front of the digits of each member: " name: 0x", each with a newline behind it.
// With a header the first of them is that of the header line, printed as it is behind exactly
// indent blanks; the others follow at least one blank. A negative indent counts as its amount.
struct RecordLines {
  const char *text;
  bool has_header;
};

// Makes one write a line (more for one of over 512 bytes) and returns what the last line came to:
// its length, or -1 when it could not be written or would be longer than an int can say. Keeps
// nothing, so threads may print at the same time.
int print_record(int descriptor, int indent, const RecordLines &lines, const RecordMember *members,
                 unsigned count, const void *record);

// One line of indent blanks and up to three texts; the result is as above.
int print_text_line(int descriptor, int indent, const char *first, const char *second,
                    const char *third = "");

// T is the text of a table or of an action. Null prints nothing and returns 0.
template <class T>
inline int print(int descriptor, int indent, const void *record) {
  if (record == nullptr) return 0;
  return print_record(descriptor, indent, {T::lines, T::has_header}, T::Shape::members,
                      T::Shape::count, record);
}

}  // namespace pd

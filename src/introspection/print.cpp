#include "print.hpp"

#include <errno.h>
#include <limits.h>
#include <string.h>
#include <unistd.h>

#include <initializer_list>

#include "text_out.hpp"

namespace pd {

namespace {

// One line on its way to a descriptor.
class Line {
 public:
  explicit Line(int descriptor) : descriptor_(descriptor) {}

  void add_blanks(size_t count) {
    while (count > 0 && !failed_) {
      const size_t part = room_for(count);
      memset(buffer_ + used_, ' ', part);
      used_ += part;
      count -= part;
    }
  }

  void add(const char *text, size_t length) {
    while (length > 0 && !failed_) {
      const size_t part = room_for(length);
      memcpy(buffer_ + used_, text, part);
      used_ += part;
      text += part;
      length -= part;
    }
  }

  // Length of the line, or -1.
  int end() {
    add("\n", 1);
    flush();
    return failed_ ? -1 : static_cast<int>(written_);
  }

 private:
  // How much of length goes into the buffer now; at least 1.
  size_t room_for(size_t length) {
    if (used_ == sizeof buffer_) flush();
    const size_t room = sizeof buffer_ - used_;
    return length < room ? length : room;
  }

  void flush() {
    const char *at = buffer_;
    while (used_ > 0 && !failed_) {
      const ssize_t count = write(descriptor_, at, used_);
      if (count < 0 && errno == EINTR) continue;
      if (count <= 0) {
        failed_ = true;
        break;
      }
      at += count;
      used_ -= static_cast<size_t>(count);
      written_ += static_cast<size_t>(count);
    }
    used_ = 0;
  }

  int descriptor_;
  bool failed_ = false;
  size_t used_ = 0;
  size_t written_ = 0;
  char buffer_[512];
};

constexpr unsigned most_digits = 32;

struct Part {
  const char *text;
  size_t length;
};

// Blanks and parts as one line. Nothing is written of one that is longer than an int can say.
int print_line(int descriptor, size_t blanks, std::initializer_list<Part> parts) {
  size_t length = blanks + 1;
  for (const Part &part : parts) length += part.length;
  if (length > INT_MAX) return -1;
  Line line(descriptor);
  line.add_blanks(blanks);
  for (const Part &part : parts) line.add(part.text, part.length);
  return line.end();
}

void put_member_digits(char *out, const RecordMember &member, const uint8_t *record) {
  if (member.storage == 16) {
    put_wide_digits(out, record + member.offset);
  } else {
    put_hex(out, load(record + member.offset, member.storage) & member.mask, member.digits);
  }
}

size_t blanks_of(int indent) {
  return indent < 0 ? 0u - static_cast<size_t>(indent) : static_cast<size_t>(indent);
}

}  // namespace

int print_text_line(int descriptor, int indent, const char *first, const char *second,
                    const char *third) {
  return print_line(descriptor, blanks_of(indent),
                    {{first, strlen(first)}, {second, strlen(second)}, {third, strlen(third)}});
}

int print_record(int descriptor, int indent, const RecordLines &lines, const RecordMember *members,
                 unsigned count, const void *record) {
  const size_t blanks = blanks_of(indent);
  const char *prefix = lines.text;
  int result = 0;
  if (lines.has_header) {
    const size_t length = static_cast<size_t>(strchr(prefix, '\n') - prefix);
    result = print_line(descriptor, blanks, {{prefix, length}});
    prefix += length + 1;
  }
  for (unsigned i = 0; i < count; ++i) {
    char digits[most_digits];
    put_member_digits(digits, members[i], static_cast<const uint8_t *>(record));
    const size_t length = static_cast<size_t>(strchr(prefix, '\n') - prefix);
    result = print_line(descriptor, blanks == 0 ? 1 : blanks,
                        {{prefix, length}, {digits, members[i].digits}});
    prefix += length + 1;
  }
  return result;
}

}  // namespace pd

// The files that commands write.
#pragma once

#include <optional>
#include <string>

#include "tesselctl/command/command.hpp"
#include "tesselctl/text/file_writer.hpp"

namespace tesselctl {

// The file that a word names; for "-" the text is the answer of the command.
class OutputFile {
 public:
  // The context outlives it. Throws Fault, as all do.
  OutputFile(Context &context, Word word);

  void write(std::string_view text);
  uint64_t bytes() const { return bytes_; }
  // Behind all text. The row and what was done are the answer where the text is none.
  void finish(const Row &row, std::string_view done);

 private:
  Context &context_;
  std::optional<FileWriter> file_;
  std::string answer_;
  uint64_t bytes_ = 0;
};

}  // namespace tesselctl

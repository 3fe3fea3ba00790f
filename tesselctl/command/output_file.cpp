#include "tesselctl/command/output_file.hpp"

namespace tesselctl {

OutputFile::OutputFile(Context &context, Word word) : context_(context) {
  if (word.text != "-") file_.emplace(context.output_path(word));
}

void OutputFile::write(std::string_view text) {
  check_interrupt();
  bytes_ += text.size();
  if (file_) {
    file_->write(text);
  } else {
    answer_ += text;
  }
}

void OutputFile::finish(const Row &row, std::string_view done) {
  if (!file_) return context_.results.text(answer_);
  file_->commit();
  context_.results.done(row, done);
}

}  // namespace tesselctl

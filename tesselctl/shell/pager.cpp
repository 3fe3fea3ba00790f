#include "tesselctl/shell/pager.hpp"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <utility>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

// What the shell ends with when it cannot run a command.
constexpr int kCannotRun = 126;

bool is_installed(const std::string &program) {
  const char *path = std::getenv("PATH");
  Word folders = {path != nullptr ? path : "", 1};
  while (!folders.text.empty()) {
    const std::string folder(take_until(folders, ':').text);
    if (access((folder + "/" + program).c_str(), X_OK) == 0) return true;
  }
  return false;
}

}  // namespace

std::string pager_command() {
  for (const char *name : {"TESSELCTL_PAGER", "PAGER"}) {
    const char *command = std::getenv(name);
    if (command != nullptr) return command == std::string_view("cat") ? "" : command;
  }
  return is_installed("less") ? "less -FRX" : "";
}

PagedAnswer::PagedAnswer(std::string pager, int terminal, Output &out, Output &errors)
    : pager_(std::move(pager)), window_(window_of(terminal)), out_(out), errors_(errors) {
  detour_.emplace(out_, [this](std::string_view text) { take(text); });
  hold_.emplace(errors_);
}

PagedAnswer::~PagedAnswer() {
  to_pager_.reset();
  if (pipe_ != nullptr) pclose(pipe_);
}

void PagedAnswer::take(std::string_view text) {
  if (pipe_ != nullptr) return pass_on(text);
  kept_ += text;
  if (!fits(text)) start();
}

// The last line of the window is that of the prompt.
bool PagedAnswer::fits(std::string_view text) {
  for (const char c : text) {
    const bool is_wrapped = c != '\n' && ++column_ > window_.columns;
    if (c != '\n' && !is_wrapped) continue;
    column_ = is_wrapped ? 1 : 0;
    if (++rows_ >= window_.rows) return false;
  }
  return true;
}

void PagedAnswer::start() {
  signals_.emplace({SIGINT, SIGPIPE}, take_signal);
  setenv("LESS", "FRX", 0);  // for a less that PAGER names
  pipe_ = popen(pager_.c_str(), "w");
  if (pipe_ == nullptr) throw Fault("cannot start the pager: there is no process for it");
  to_pager_.emplace(pipe_, out_.colour());
  pass_on(std::exchange(kept_, {}));
}

void PagedAnswer::pass_on(std::string_view text) {
  if (left_) return;
  try {
    to_pager_->write(text);
    to_pager_->flush();
  } catch (const Fault &) {
    left_ = true;
    request_interrupt();  // the rest of the answer is for nobody
  }
}

PagedAnswer::End PagedAnswer::finish() {
  out_.flush();
  detour_.reset();
  if (pipe_ == nullptr) {
    hold_.reset();
    out_.write(kept_);
    out_.flush();
    errors_.flush();
    return End::shown;
  }
  to_pager_.reset();
  const int status = pclose(std::exchange(pipe_, nullptr));
  signals_.reset();
  left_ = left_ || (interrupt_requested() && !end_requested());
  if (left_) clear_interrupt();
  const bool cannot_run = WIFEXITED(status) && WEXITSTATUS(status) >= kCannotRun;
  if (left_ || cannot_run) errors_.take();
  hold_.reset();
  if (cannot_run)
    errors_.line("tesselctl: cannot run the pager '{}'; --no-pager does without", pager_);
  errors_.flush();
  return cannot_run ? End::no_pager : left_ ? End::left_early : End::shown;
}

}  // namespace tesselctl

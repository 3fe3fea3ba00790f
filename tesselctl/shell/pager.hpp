// Answers that are longer than the window go through a pager.
#pragma once

#include <optional>
#include <string>

#include "tesselctl/shell/window.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

// The command of the pager that the environment names (TESSELCTL_PAGER, PAGER), else of less where
// it is installed. Empty for none.
std::string pager_command();

// While it lives, what is written to out is kept; once it is longer than the window, the pager
// starts and gets it as it comes. What goes to errors is kept until the pager has ended.
class PagedAnswer {
 public:
  // The outputs outlive it; out is that terminal.
  PagedAnswer(std::string pager, int terminal, Output &out, Output &errors);
  ~PagedAnswer();
  PagedAnswer(const PagedAnswer &) = delete;
  PagedAnswer &operator=(const PagedAnswer &) = delete;

  enum class End { shown, left_early, no_pager };
  // Waits until the user has left the pager. One who leaves it early, or interrupts, wants to see
  // no fault of the command that this ended. Throws Fault when the output is gone.
  End finish();

 private:
  void take(std::string_view text);
  bool fits(std::string_view text);
  void start();
  void pass_on(std::string_view text);

  const std::string pager_;
  const Window window_;
  Output &out_;
  Output &errors_;
  std::optional<Output::Detour> detour_;
  std::optional<Output::Hold> hold_;
  std::optional<SignalScope> signals_;
  std::string kept_;
  size_t rows_ = 0;  // that the text takes so far, and the columns of its last one
  size_t column_ = 0;
  std::FILE *pipe_ = nullptr;
  std::optional<Output> to_pager_;
  bool left_ = false;
};

}  // namespace tesselctl

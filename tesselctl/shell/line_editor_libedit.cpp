// Lines edited with libedit: history, completion on TAB and help on '?'.
#include <histedit.h>
#include <unistd.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cwchar>

#include "tesselctl/shell/line_editor.hpp"
#include "tesselctl/shell/line_input.hpp"
#include "tesselctl/shell/window.hpp"
#include "tesselctl/text/utf8.hpp"

namespace tesselctl {

namespace {

// More candidates than that stand in columns, without their help.
constexpr size_t kMostWithHelp = 24;
constexpr char kEndOfInput = 4;
// In a prompt, what stands between two of these takes no room.
constexpr char kNoWidth = '\1';

class EditedLines : public LineEditor {
 public:
  explicit EditedLines(LineHost host);
  ~EditedLines() override;

  LineEnd read(std::string &line) override;
  void remember(const std::string &line) override;

 private:
  static EditedLines &of(EditLine *editor) {
    void *self = nullptr;
    el_get(editor, EL_CLIENTDATA, &self);
    return *static_cast<EditedLines *>(self);
  }
  static char *prompt(EditLine *editor) { return of(editor).prompt_.data(); }
  static int read_character(EditLine *editor, wchar_t *character);
  static unsigned char complete_word(EditLine *editor, int key);
  static unsigned char explain(EditLine *editor, int key);

  Completion completion() const;
  size_t cursor() const;
  std::string line() const;
  void replace(size_t start, const std::string &word);
  void list_with_help(const Completion &completion) const;
  void list_in_columns(const std::vector<Candidate> &candidates) const;
  std::string faint(const std::string &text) const {
    return host_.colour ? "\033[2m" + text + "\033[0m" : text;
  }

  LineHost host_;
  std::string prompt_;
  EditLine *editor_;
  ::History *history_;
  bool interrupted_ = false;
  std::mbstate_t state_{};  // of a character that was read in part
};

EditedLines::EditedLines(LineHost host) : host_(std::move(host)) {
  // Characters are as wide as the user's locale says; without one the editor works in bytes.
  std::setlocale(LC_CTYPE, "");
  const std::string mark(1, kNoWidth);
  prompt_ = host_.prompt;
  if (host_.colour) {
    // libedit prints what takes no room with the character behind it, and nothing at the end.
    prompt_.insert(prompt_.size() - 1, mark + "\033[0m" + mark);
    prompt_.insert(0, mark + "\033[1m" + mark);
  }
  editor_ = el_init("tesselctl", stdin, stdout, stderr);
  history_ = history_init();
  HistEvent event;
  history(history_, &event, H_SETSIZE, static_cast<int>(History::kMost));
  history(history_, &event, H_SETUNIQUE, 1);
  el_set(editor_, EL_CLIENTDATA, this);
  el_set(editor_, EL_PROMPT_ESC, &EditedLines::prompt, kNoWidth);
  el_set(editor_, EL_EDITOR, "emacs");
  el_set(editor_, EL_SIGNAL, 1);
  el_set(editor_, EL_GETCFN, &EditedLines::read_character);
  el_set(editor_, EL_HIST, history, history_);
  el_set(editor_, EL_ADDFN, "tessel-complete", "Completes a word", &EditedLines::complete_word);
  el_set(editor_, EL_ADDFN, "tessel-explain", "Lists what can stand here", &EditedLines::explain);
  el_set(editor_, EL_BIND, "^I", "tessel-complete", nullptr);
  el_set(editor_, EL_BIND, "?", "tessel-explain", nullptr);
  el_set(editor_, EL_BIND, "^R", "em-inc-search-prev", nullptr);
}

EditedLines::~EditedLines() {
  el_end(editor_);
  history_end(history_);
}

// As the library's own, but that an interrupt ends it.
int EditedLines::read_character(EditLine *editor, wchar_t *character) {
  EditedLines &self = of(editor);
  while (true) {
    char byte = 0;
    const Input input = read_input_byte(byte);
    self.interrupted_ = input == Input::interrupted;
    if (input != Input::byte) return self.interrupted_ ? -1 : 0;
    // A Ctrl-D that was typed before the editor took the terminal comes as a zero.
    if (byte == 0) byte = kEndOfInput;
    const size_t used = std::mbrtowc(character, &byte, 1, &self.state_);
    if (used == static_cast<size_t>(-2)) continue;
    if (used == static_cast<size_t>(-1)) {
      self.state_ = {};
      continue;
    }
    return 1;
  }
}

LineEnd EditedLines::read(std::string &line) {
  interrupted_ = false;
  state_ = {};
  int count = 0;
  const char *text = el_gets(editor_, &count);
  if (interrupted_) {
    // What was typed goes with the line.
    el_reset(editor_);
    return LineEnd::interrupted;
  }
  if (text == nullptr || count <= 0) return LineEnd::end_of_input;
  line = text;
  while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
  return LineEnd::entered;
}

void EditedLines::remember(const std::string &line) {
  HistEvent event;
  history(history_, &event, H_ENTER, line.c_str());
}

size_t EditedLines::cursor() const {
  const LineInfo *info = el_line(editor_);
  return static_cast<size_t>(info->cursor - info->buffer);
}

std::string EditedLines::line() const {
  const LineInfo *info = el_line(editor_);
  return {info->buffer, info->lastchar};
}

Completion EditedLines::completion() const { return host_.complete(line(), cursor()); }

void EditedLines::replace(size_t start, const std::string &word) {
  const std::string typed = line().substr(start, cursor() - start);
  if (!typed.empty()) el_deletestr(editor_, static_cast<int>(utf8_count(typed)));
  el_insertstr(editor_, word.c_str());
}

void EditedLines::list_with_help(const Completion &completion) const {
  size_t width = 0;
  for (const Candidate &candidate : completion.candidates) {
    width = std::max(width, utf8_count(candidate.word));
  }
  std::fputs("\r\n", stdout);
  for (const Candidate &candidate : completion.candidates) {
    const std::string padding(width - utf8_count(candidate.word) + 2, ' ');
    const std::string help =
        candidate.help.empty() ? "" : padding + faint(printable(candidate.help));
    std::fputs(("  " + printable(candidate.word) + help + "\r\n").c_str(), stdout);
  }
  if (!completion.hint.empty()) {
    std::fputs(("  " + faint(printable(completion.hint)) + "\r\n").c_str(), stdout);
  } else if (completion.candidates.empty()) {
    std::fputs(("  " + faint("nothing is known to stand here") + "\r\n").c_str(), stdout);
  }
}

void EditedLines::list_in_columns(const std::vector<Candidate> &candidates) const {
  size_t width = 0;
  for (const Candidate &candidate : candidates) width = std::max(width, candidate.word.size() + 2);
  const size_t columns = std::max<size_t>(1, window_of(STDOUT_FILENO).columns / width);
  const size_t rows = (candidates.size() + columns - 1) / columns;
  std::string text = "\r\n";
  for (size_t row = 0; row < rows; ++row) {
    for (size_t i = row; i < candidates.size(); i += rows) {
      const std::string &word = candidates[i].word;
      text += printable(word);
      if (i + rows < candidates.size()) text += std::string(width - word.size(), ' ');
    }
    text += "\r\n";
  }
  std::fputs(text.c_str(), stdout);
}

unsigned char EditedLines::complete_word(EditLine *editor, int) {
  EditedLines &self = of(editor);
  const Completion completion = self.completion();
  const std::vector<Candidate> &candidates = completion.candidates;
  if (candidates.empty()) {
    if (completion.hint.empty()) return CC_REFRESH_BEEP;
    self.list_with_help(completion);
    return CC_REDISPLAY;
  }
  const std::string typed = self.line().substr(completion.start, self.cursor() - completion.start);
  std::string word = common_beginning(candidates);
  if (candidates.size() == 1 && candidates[0].is_complete()) word += ' ';
  if (word.size() > typed.size() || (word.size() == typed.size() && word != typed)) {
    self.replace(completion.start, word);
    return CC_REFRESH;
  }
  if (candidates.size() > kMostWithHelp) {
    self.list_in_columns(candidates);
  } else {
    self.list_with_help(completion);
  }
  return CC_REDISPLAY;
}

unsigned char EditedLines::explain(EditLine *editor, int) {
  EditedLines &self = of(editor);
  const std::string before = self.line().substr(0, self.cursor());
  // Within quotes it is a character of a name.
  if (std::count(before.begin(), before.end(), '"') % 2 != 0) {
    el_insertstr(editor, "?");
    return CC_REFRESH;
  }
  self.list_with_help(self.completion());
  return CC_REDISPLAY;
}

}  // namespace

std::unique_ptr<LineEditor> make_line_editor(LineHost host) {
  return std::make_unique<EditedLines>(std::move(host));
}
bool has_line_editing() { return true; }

}  // namespace tesselctl

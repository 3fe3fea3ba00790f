#include "soft_journal.hpp"

#include <mutex>

#include "contract/contract_call.hpp"

namespace soft {

std::atomic<uint32_t> watch_state{0};

// The list reads "(session, device, soft::list(bytes, length), length)"; the name of an array is
// its first inner word.
std::string_view CallNotes::next_name() {
  size_t depth = 1;
  size_t end = position_;
  size_t name_begin = position_;
  size_t name_end = std::string_view::npos;
  for (; end < names_.size() && depth != 0; ++end) {
    const char c = names_[end];
    if (c == '(' && ++depth == 2) name_begin = end + 1;
    const bool ends_word = (c == ',' || c == ')') && depth == 2;
    if (ends_word && name_end == std::string_view::npos) name_end = end;
    if (c == ')') --depth;
    if (c == ',' && depth == 1) break;
  }
  const size_t closing = depth == 0 ? end - 1 : end;
  if (name_end == std::string_view::npos) name_end = closing;
  position_ = end + 1;
  while (position_ < names_.size() && names_[position_] == ' ') ++position_;
  return names_.substr(name_begin, name_end - name_begin);
}

namespace journal {
namespace {

struct Book {
  std::mutex mutex;
  uint64_t epoch = 0;
  std::vector<Call> calls;
};

// Never destroyed: contract calls may come while the process ends.
Book &book() {
  static Book *const instance = new Book;
  return *instance;
}

void empty(Book &book) {
  ++book.epoch;
  book.calls.clear();
}

const Value &named(const std::string &function, std::string_view name,
                   const std::vector<Argument> &list, const char *what) {
  for (const Argument &argument : list) {
    if (argument.name == name) return argument.value;
  }
  throw std::out_of_range(function + " has no " + what + " " + std::string(name));
}

}  // namespace

const Value &Call::argument(std::string_view name) const {
  return named(function, name, arguments, "argument");
}
const Value &Call::result(std::string_view name) const {
  return named(function, name, results, "result");
}

void start() {
  const std::lock_guard lock(book().mutex);
  empty(book());
  watch(kWatchJournal, true);
}

void stop() { watch(kWatchJournal, false); }

void clear() {
  const std::lock_guard lock(book().mutex);
  empty(book());
}

std::vector<Call> calls() {
  const std::lock_guard lock(book().mutex);
  return book().calls;
}

std::vector<Call> calls(std::string_view function) {
  const std::lock_guard lock(book().mutex);
  std::vector<Call> found;
  for (const Call &call : book().calls) {
    if (call.function == function) found.push_back(call);
  }
  return found;
}

Ticket open(const char *function, std::vector<Argument> arguments) {
  Call call;
  call.function = function;
  call.thread = std::this_thread::get_id();
  call.arguments = std::move(arguments);
  const std::lock_guard lock(book().mutex);
  call.number = book().calls.size() + 1;
  book().calls.push_back(std::move(call));
  return {book().epoch, book().calls.size()};
}

void close(Ticket ticket, bf_status_t status, bool performed, std::vector<Argument> results) {
  const std::lock_guard lock(book().mutex);
  if (ticket.epoch != book().epoch) return;
  Call &call = book().calls[ticket.number - 1];
  call.status = status;
  call.performed = performed;
  call.finished = true;
  call.results = std::move(results);
}

}  // namespace journal
}  // namespace soft

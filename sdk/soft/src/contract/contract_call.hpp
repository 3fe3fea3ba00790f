// The frame around every function of the contract: journal, fault plan, and the promise that no
// exception leaves the SDK. A function is written as
//
//   bf_status_t pipe_mgr_thing_set(pipe_session_handle_t session, bf_device_id_t device,
//                                  pipe_object_handle_t thing, const uint8_t *bytes,
//                                  uint32_t length) {
//     return SOFT_CALL((session, device, thing, list(bytes, length), length),
//                      on<&Thing::set>(ByHandle{session, device, thing}, list(bytes, length)));
//   }
//
// The parenthesised list names the parameters for the journal, in order; an array goes in as
// list(pointer, count). What a non-const pointer leads to is recorded after the call, if it
// succeeded. A function that returns no status keeps its result in a local and reports BF_SUCCESS.
#pragma once

#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include "contract/journal_values.hpp"
#include "contract/watch.hpp"

namespace soft {

// The values of one call on their way into the journal.
class CallNotes {
 public:
  enum class Phase { kArguments, kResults };

  // names is the text of the parenthesised argument list.
  CallNotes(Phase phase, std::string_view names) : phase_(phase), names_(names) {}

  template <class... Args>
  void all(const Args &...args) {
    (note(args), ...);
  }

  std::vector<journal::Argument> take() { return std::move(list_); }

 private:
  template <class T>
  void note(const T &argument) {
    const std::string_view name = next_name();
    if (phase_ == Phase::kArguments) {
      list_.push_back({std::string(name), journal::before_call(argument)});
    } else if (auto result = journal::after_call(argument)) {
      list_.push_back({std::string(name), std::move(*result)});
    }
  }
  std::string_view next_name();

  Phase phase_;
  std::string_view names_;
  size_t position_ = 1;  // behind the opening parenthesis
  std::vector<journal::Argument> list_;
};

// Runs body, which may throw std::bad_alloc and nothing else.
template <class Body>
bf_status_t guarded(Body &&body) noexcept {
  try {
    return body();
  } catch (const std::bad_alloc &) {
    return BF_NO_MEMORY;
  }
}

// The path of a call while the journal or the fault plan is on.
template <class Body, class Note>
[[gnu::noinline, gnu::cold]] bf_status_t watched_call(const char *function, const char *names,
                                                      Body &body, Note &note) {
  using Phase = CallNotes::Phase;
  journal::Ticket ticket;
  if (watched(kWatchJournal)) {
    CallNotes arguments(Phase::kArguments, names);
    note(arguments);
    ticket = journal::open(function, arguments.take());
  }
  bf_status_t status = BF_SUCCESS;
  const bool struck = faults::strikes(function, &status);
  if (!struck) status = guarded(body);
  if (ticket.held()) {
    CallNotes results(Phase::kResults, names);
    if (!struck && status == BF_SUCCESS) note(results);
    journal::close(ticket, status, !struck, results.take());
  }
  return status;
}

template <class Body, class Note>
bf_status_t contract_call(const char *function, const char *names, Body body, Note note) noexcept {
  if (!watched()) [[likely]]
    return guarded(body);
  return guarded([&] { return watched_call(function, names, body, note); });
}

}  // namespace soft

#define SOFT_CALL(arguments, ...)                                         \
  ::soft::contract_call(                                                  \
      __func__, #arguments, [&]() -> bf_status_t { return __VA_ARGS__; }, \
      [&]([[maybe_unused]] ::soft::CallNotes &soft_notes) { soft_notes.all arguments; })

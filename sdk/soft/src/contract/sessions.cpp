#include "contract/sessions.hpp"

#include <array>
#include <atomic>
#include <mutex>

#include "soft_sdk.h"

namespace {

// The slot of a session is its handle modulo the limit; it holds the handle while it is open.
std::array<std::atomic<pipe_session_handle_t>, soft::kSessionLimit> slots;
std::mutex open_mutex;
pipe_session_handle_t last_handle = 0;  // under open_mutex

std::atomic<pipe_session_handle_t> &slot_of(pipe_session_handle_t session) {
  return slots[session % soft::kSessionLimit];
}

}  // namespace

bool soft::session_is_open(pipe_session_handle_t session) {
  return session != 0 && slot_of(session).load(std::memory_order_acquire) == session;
}

bf_status_t soft_session_open(pipe_session_handle_t *session) {
  if (session == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(open_mutex);
  for (uint32_t tried = 0; tried <= soft::kSessionLimit; ++tried) {
    const pipe_session_handle_t candidate = ++last_handle;
    if (candidate == 0 || slot_of(candidate).load(std::memory_order_relaxed) != 0) continue;
    slot_of(candidate).store(candidate, std::memory_order_release);
    *session = candidate;
    return BF_SUCCESS;
  }
  return BF_NO_MEMORY;
}

bf_status_t soft_session_close(pipe_session_handle_t session) {
  if (session == 0) return BF_INVALID_SESSION;
  pipe_session_handle_t expected = session;
  const bool closed = slot_of(session).compare_exchange_strong(expected, 0);
  return closed ? BF_SUCCESS : BF_INVALID_SESSION;
}

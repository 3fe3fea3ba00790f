#include "services/digest_engine.hpp"

#include "soft_learning.h"
#include "soft_sdk.h"

namespace soft {
namespace {

const EngineSet digests{
    EngineOrder::kServices,
    add_all<DigestEngine, &soft_program_t::digests, &soft_program_t::digest_count>};

}  // namespace

DigestEngine::DigestEngine(const Device &device, const soft_digest_t &description)
    : Engine(description.handle),
      entry_bytes_(description.entry_bytes),
      device_(device.id()),
      collecting_(device.pipes()) {}

bf_status_t DigestEngine::listen(pipe_session_handle_t session, pipe_mgr_digest_cb_t callback,
                                 void *cookie) {
  if (callback == nullptr) return BF_INVALID_ARGUMENT;
  const std::lock_guard lock(mutex_);
  if (callback_ != nullptr) return BF_ALREADY_EXISTS;
  session_ = session;
  callback_ = callback;
  cookie_ = cookie;
  return BF_SUCCESS;
}

bf_status_t DigestEngine::stop_listening() {
  const std::lock_guard lock(mutex_);
  if (callback_ == nullptr) return BF_OBJECT_NOT_FOUND;
  callback_ = nullptr;
  for (bf_pipe_id_t pipe = 0; pipe < collecting_.size(); ++pipe) close(pipe);
  for (const Message &message : closed_) forget(message);
  closed_.clear();
  return BF_SUCCESS;
}

bf_status_t DigestEngine::acknowledge(const pipe_mgr_digest_message_t *message) {
  const std::lock_guard lock(mutex_);
  for (auto it = sent_.begin(); it != sent_.end(); ++it) {
    if (&it->head != message) continue;
    forget(*it);
    sent_.erase(it);
    return BF_SUCCESS;
  }
  return BF_OBJECT_NOT_FOUND;
}

void DigestEngine::forget(const Message &message) {
  each(message.entries, [this](std::string_view bytes) {
    const auto entry = known_.find(bytes);
    if (entry != known_.end()) known_.erase(entry);
  });
}

bf_status_t DigestEngine::inject(bf_pipe_id_t pipe, std::span<const uint8_t> entries,
                                 uint32_t *learnt) {
  uint32_t fresh = 0;
  {
    const std::lock_guard lock(mutex_);
    if (callback_ == nullptr) return BF_NOT_READY;
    each(entries, [&](std::string_view entry) { fresh += collect(pipe, entry); });
    if (timeout_us_ == 0) close(pipe);
  }
  if (learnt != nullptr) *learnt = fresh;
  send_closed();
  return BF_SUCCESS;
}

// Takes an entry into the message of its pipe; false when it is known. May throw std::bad_alloc,
// and then the entry is not taken.
bool DigestEngine::collect(bf_pipe_id_t pipe, std::string_view entry) {
  Messages &open = collecting_[pipe];
  if (open.empty()) open.emplace_back();
  Message &message = open.front();
  if (message.head.entry_count == 0) {
    message.entries.reserve(size_t{SOFT_DIGEST_BATCH} * entry_bytes_);
    message.head = {device_, pipe, handle(), 0, entry_bytes_, message.entries.data()};
    message.begun_ms = now_ms();
  }
  if (known_.contains(entry)) return false;
  known_.emplace(entry);
  message.entries.insert(message.entries.end(), entry.begin(), entry.end());
  if (++message.head.entry_count == SOFT_DIGEST_BATCH) close(pipe);
  return true;
}

// Makes what a pipe has collected a message to be sent.
void DigestEngine::close(bf_pipe_id_t pipe) {
  Messages &open = collecting_[pipe];
  if (!open.empty() && open.front().head.entry_count != 0) closed_.splice(closed_.end(), open);
}

void DigestEngine::close_due(uint64_t now_ms) {
  for (bf_pipe_id_t pipe = 0; pipe < collecting_.size(); ++pipe) {
    const Messages &open = collecting_[pipe];
    if (open.empty() || now_ms < open.front().begun_ms) continue;
    if ((now_ms - open.front().begun_ms) * 1000 >= timeout_us_) close(pipe);
  }
}

void DigestEngine::send_closed() {
  for (;;) {
    std::unique_lock lock(mutex_);
    if (closed_.empty() || callback_ == nullptr) return;
    pipe_mgr_digest_message_t *message = &closed_.front().head;
    sent_.splice(sent_.end(), closed_, closed_.begin());
    const pipe_mgr_digest_cb_t callback = callback_;
    const pipe_session_handle_t session = session_;
    void *const cookie = cookie_;
    lock.unlock();
    callback(session, message, cookie);
  }
}

void DigestEngine::set_timeout(uint32_t timeout_us) {
  {
    const std::lock_guard lock(mutex_);
    timeout_us_ = timeout_us;
    close_due(now_ms());
  }
  send_closed();
}

void DigestEngine::clock_advanced(uint64_t now_ms) {
  {
    const std::lock_guard lock(mutex_);
    close_due(now_ms);
  }
  send_closed();
}

DigestEngine::Pending DigestEngine::pending() {
  const std::lock_guard lock(mutex_);
  Pending pending;
  for (const Messages &open : collecting_) {
    for (const Message &message : open) pending.collected += message.head.entry_count;
  }
  for (const Message &message : closed_) pending.collected += message.head.entry_count;
  pending.unacknowledged = static_cast<uint32_t>(sent_.size());
  return pending;
}

uint64_t DigestEngine::held_bytes() const {
  uint64_t bytes = collecting_.capacity() * sizeof(Messages) +
                   known_.size() * (sizeof(std::string) + 4 * sizeof(void *) + entry_bytes_);
  const auto add = [&](const Messages &messages) {
    for (const Message &message : messages) bytes += sizeof(message) + message.entries.capacity();
  };
  for (const Messages &open : collecting_) add(open);
  add(closed_);
  add(sent_);
  return bytes;
}

void DigestEngine::take_over(DigestEngine &other) {
  const auto add = [this](Messages &messages, const Message &message) {
    if (message.head.entry_count == 0) return;
    Message &copy = messages.emplace_back(message);
    copy.entries.reserve(size_t{SOFT_DIGEST_BATCH} * entry_bytes_);
    copy.head.device = device_;
    copy.head.entries = copy.entries.data();
    each(copy.entries, [this](std::string_view entry) { known_.emplace(entry); });
  };
  for (size_t pipe = 0; pipe < collecting_.size(); ++pipe) {
    for (const Message &message : other.collecting_[pipe]) add(collecting_[pipe], message);
  }
  for (const Message &message : other.closed_) add(closed_, message);
  timeout_us_ = other.timeout_us_;
}

void DigestEngine::inherit(Object &predecessor) noexcept {
  DigestEngine &old = *predecessor.as<DigestEngine>();
  const std::lock_guard lock(old.mutex_);
  session_ = old.session_;
  callback_ = old.callback_;
  cookie_ = old.cookie_;
  for (const Message &message : old.sent_) {
    each(message.entries, [&](std::string_view bytes) {
      const auto entry = old.known_.find(bytes);
      if (entry != old.known_.end()) known_.insert(old.known_.extract(entry));
    });
  }
  sent_.splice(sent_.end(), old.sent_);
}

}  // namespace soft

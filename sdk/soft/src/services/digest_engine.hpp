// A learning digest of a device: collects entries into messages, sends them, and keeps them until
// they are acknowledged. soft_learning.h says when a message is sent.
#pragma once

#include <functional>
#include <list>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "device/engine.hpp"
#include "pipe_mgr_types.h"

namespace soft {

class DigestEngine : public Engine<DigestEngine> {
 public:
  DigestEngine(const Device &device, const soft_digest_t &description);

  // ---- The listener ----

  // BF_ALREADY_EXISTS: there is one. BF_INVALID_ARGUMENT: the callback is null.
  bf_status_t listen(pipe_session_handle_t session, pipe_mgr_digest_cb_t callback, void *cookie);
  // BF_OBJECT_NOT_FOUND: there is none.
  bf_status_t stop_listening();

  // Gives a message back. The pointer is compared and not followed. BF_OBJECT_NOT_FOUND: no message
  // of this digest waits under this address.
  bf_status_t acknowledge(const pipe_mgr_digest_message_t *message);

  // ---- Entries ----

  // entries is a whole number of entries. See soft_digest_inject.
  bf_status_t inject(bf_pipe_id_t pipe, std::span<const uint8_t> entries, uint32_t *learnt);
  void set_timeout(uint32_t timeout_us);
  void clock_advanced(uint64_t now_ms) override;

  struct Pending {
    uint32_t collected = 0;
    uint32_t unacknowledged = 0;
  };
  Pending pending();

  uint32_t entry_bytes() const { return entry_bytes_; }
  uint64_t held_bytes() const;
  // Into an engine without contents. What was sent stays with the listener that it was sent to;
  // what waits, waits here for the next occasion to be sent.
  void take_over(DigestEngine &other);
  void inherit(Object &predecessor) noexcept override;

 private:
  struct Message {
    pipe_mgr_digest_message_t head{};
    std::vector<uint8_t> entries;
    uint64_t begun_ms = 0;  // when its first entry came
  };
  // A message moves from list to list and never in memory: its address is its name.
  using Messages = std::list<Message>;

  // Runs visit(entry) on the bytes of each entry.
  template <class Visit>
  void each(std::span<const uint8_t> entries, Visit visit) const {
    const std::string_view all(reinterpret_cast<const char *>(entries.data()), entries.size());
    for (size_t at = 0; at < all.size(); at += entry_bytes_) visit(all.substr(at, entry_bytes_));
  }
  // The members below are called under the lock.
  bool collect(bf_pipe_id_t pipe, std::string_view entry);
  void close(bf_pipe_id_t pipe);
  void close_due(uint64_t now_ms);
  void forget(const Message &message);

  // Without the lock: hands closed messages to the listener.
  void send_closed();

  uint32_t entry_bytes_;
  bf_device_id_t device_;
  uint32_t timeout_us_ = 0;
  pipe_session_handle_t session_ = 0;
  pipe_mgr_digest_cb_t callback_ = nullptr;  // null: nobody listens
  void *cookie_ = nullptr;
  std::vector<Messages> collecting_;  // of each pipe, at most one message
  Messages closed_;                   // to be sent
  Messages sent_;                     // to be acknowledged
  // The bytes of the entries in all these messages. An entry may wait and be sent: it waited in the
  // device that this one is a copy of. Nodes move without memory.
  std::multiset<std::string, std::less<>> known_;
};

}  // namespace soft

// What calls are made with, and what is there once they were made.
#include <cstring>

#include "calls.hpp"

namespace soft_test {

void Room::clear() {
  std::memset(static_cast<void *>(this), 0xa5, sizeof(*this));
  zero[0] = zero[1] = 0;
  match = {};
  match.scope = 5;
  match.byte_count = 10;
  match.value = bytes;
  match.mask = bytes + 16;
  action = {};
  action.data = {0, 28, bytes + 32};
  data = {0, 28, bytes + 60};
  query = {2, cells};
}

std::string Room::contents() const {
  Room shown;
  std::memcpy(static_cast<void *>(&shown), this, sizeof(shown));
  shown.match.mask = shown.action.data.bytes = shown.data.bytes = nullptr;
  shown.match.value = match.value == nullptr ? nullptr : shown.bytes;
  const bool has_key = shown.match.value != nullptr;
  shown.match.value = nullptr;
  shown.query.cells = nullptr;
  return std::string(reinterpret_cast<const char *>(&shown), sizeof(shown)) +
         (has_key ? "key" : "");
}

void Hand::begin() {
  ++number;
  asked = pointers = 0;
  room.clear();
}

std::string contents(const Calls &calls, Hand hand) {
  std::string all;
  for (const Call &call : calls) {
    if (call.kind != Call::kRead) continue;
    hand.begin();
    all += std::to_string(call.make(hand));
    all += hand.room.contents();
  }
  return all;
}

Filled::Filled(pipe_session_handle_t session, bf_device_id_t device) {
  for (const Calls &calls : lists) {
    Hand &hand = hands.emplace_back();
    hand.session = session;
    hand.device = device;
    for (const Call &call : calls) {
      hand.begin();
      if (call.kind == Call::kEnd) continue;
      EXPECT_EQ(call.make(hand), call.expected()) << call.text;
    }
    soft_placement_free(hand.placed);
    hand.placed = nullptr;
  }
}

Filled Filled::on(bf_device_id_t device) const {
  Filled other = *this;
  for (Hand &hand : other.hands) {
    if (hand.member >> 24 == hand.device) hand.member += (device - hand.device) << 24;
    hand.device = device;
  }
  return other;
}

std::string Filled::contents() const {
  std::string all;
  for (size_t i = 0; i < lists.size(); ++i) all += soft_test::contents(lists[i], hands[i]);
  return all;
}

void Filled::end() {
  for (size_t i = 0; i < lists.size(); ++i) {
    for (const Call &call : lists[i]) {
      hands[i].begin();
      if (call.kind != Call::kEnd) continue;
      EXPECT_EQ(call.make(hands[i]), BF_SUCCESS) << call.text;
    }
  }
}

}  // namespace soft_test

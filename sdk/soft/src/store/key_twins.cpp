#include "store/key_twins.hpp"

namespace soft {

void KeyTwins::start(uint32_t slot, uint32_t priority, uint64_t age, uint8_t pipe) {
  link(slot) = Link{age, kNone, kNone, priority, pipe};
}

// Scrambles the slot number, so that trees stay shallow whatever the order of additions is.
uint32_t KeyTwins::weight(uint32_t slot) {
  slot = (slot ^ slot >> 16) * 0x7feb352du;
  slot = (slot ^ slot >> 15) * 0x846ca68bu;
  return slot ^ slot >> 16;
}

bool KeyTwins::before(const Link &a, const Link &b) const {
  return a.priority != b.priority ? a.priority < b.priority : a.age < b.age;
}

// Cuts a tree into what stands before the given place and what does not.
void KeyTwins::cut(uint32_t root, const Link &at, uint32_t &left, uint32_t &right) {
  uint32_t *to_left = &left;
  uint32_t *to_right = &right;
  while (root != kNone) {
    Link &here = link(root);
    if (before(here, at)) {
      *to_left = root;
      to_left = &here.right;
      root = here.right;
    } else {
      *to_right = root;
      to_right = &here.left;
      root = here.left;
    }
  }
  *to_left = kNone;
  *to_right = kNone;
}

// Joins two trees of which the first stands wholly before the second.
uint32_t KeyTwins::merge(uint32_t left, uint32_t right) {
  uint32_t root = kNone;
  uint32_t *to = &root;
  while (left != kNone && right != kNone) {
    if (weight(left) > weight(right)) {
      *to = left;
      to = &link(left).right;
      left = *to;
    } else {
      *to = right;
      to = &link(right).left;
      right = *to;
    }
  }
  *to = left != kNone ? left : right;
  return root;
}

uint32_t KeyTwins::join(uint32_t root, uint32_t slot) {
  Link &joining = link(slot);
  uint32_t *to = &root;
  while (*to != kNone && weight(*to) >= weight(slot)) {
    Link &here = link(*to);
    to = before(here, joining) ? &here.right : &here.left;
  }
  cut(*to, joining, joining.left, joining.right);
  *to = slot;
  return root;
}

uint32_t KeyTwins::leave(uint32_t root, uint32_t slot) {
  const Link &leaving = link(slot);
  uint32_t *to = &root;
  while (*to != slot) {
    Link &here = link(*to);
    to = before(here, leaving) ? &here.right : &here.left;
  }
  *to = merge(leaving.left, leaving.right);
  return root;
}

uint32_t KeyTwins::find(uint32_t root, uint32_t priority, uint8_t pipe) const {
  while (root != kNone && link(root).priority != priority)
    root = link(root).priority < priority ? link(root).right : link(root).left;
  if (root == kNone) return kNone;
  const Link &here = link(root);
  const uint32_t older = find(here.left, priority, pipe);
  if (older != kNone) return older;
  return here.pipe == pipe ? root : find(here.right, priority, pipe);
}

uint32_t KeyTwins::best(uint32_t root, uint8_t pipe) const {
  if (root == kNone) return kNone;
  const Link &here = link(root);
  const uint32_t sooner = best(here.left, pipe);
  if (sooner != kNone) return sooner;
  return here.pipe == pipe || here.pipe == kAllPipes ? root : best(here.right, pipe);
}

}  // namespace soft

// Look-ups among many rules of several shapes, against a search from end to end.
#include "program.hpp"

namespace {

using namespace soft_test;

struct Rule {
  uint32_t handle = 0;
  Bytes value, mask;
  uint32_t priority = 0, pipe = kAll;

  bool is_hit(const Bytes &packet, uint32_t in) const {
    bool hit = pipe == kAll || pipe == in;
    for (size_t i = 0; i < mask.size(); ++i) {
      hit = hit && ((value[i] ^ packet[i]) & mask[i] & kCompared[i]) == 0;
    }
    return hit;
  }
};

class Rules : public SoftTest, public testing::WithParamInterface<uint32_t> {
 protected:
  // A prefix of two numbers, any bits, all bits, or none; the last parameter has whole bytes with
  // many values, which make the most levels. Each of the others has another mixture of few numbers,
  // so that many rules agree in much.
  void random_key(Rule *rule) {
    rule->value.assign(10, 0);
    rule->mask.assign(10, 0);
    const bool has_bytes = GetParam() == 9;
    const uint32_t shape = random.below(GetParam() % 4 + 1);
    const uint32_t values = has_bytes ? 256 : GetParam() % 3 * 9 + 3;
    for (const size_t field : {0u, 5u}) {
      const uint32_t bits = random.below(shape == 2 ? 41 : 9) * (shape == 2 ? 1 : 5);
      for (size_t i = 0; i < 5; ++i) {
        const uint32_t left = bits > 8 * i ? bits - static_cast<uint32_t>(8 * i) : 0;
        uint32_t mask = left > 7 ? 0xff : 0xff00u >> left;
        if (shape == 1) mask = 0xff;
        if (shape == 3) mask = random.one_in(3) ? random() : 0;
        if (has_bytes) mask = random.one_in(2) ? 0xff : 0;
        rule->mask[field + i] = static_cast<uint8_t>(mask);
        rule->value[field + i] = static_cast<uint8_t>(random.below(values));
      }
    }
    rule->priority = random.below(GetParam() % 2 == 0 ? 3 : 5000);
    if (GetParam() > 6) rule->priority += 5000 - 3 * static_cast<uint32_t>(rules.size());
    rule->pipe = random.one_in(4) ? random.below(2) : kAll;
  }
  void add() {
    Rule rule;
    random_key(&rule);
    const Key key(80, rule.value, rule.mask, rule.priority);
    const Action deny;
    OK(pipe_mgr_mat_ent_add(session, kDevice, rule.pipe, kTunnel, &key.spec, kDeny, &deny.spec, 0,
                            0, &rule.handle));
    rules.push_back(rule);
  }
  void remove() {
    const size_t at = random.below(static_cast<uint32_t>(rules.size()));
    OK(pipe_mgr_mat_ent_del(session, kDevice, kTunnel, rules[at].handle, 0));
    rules.erase(rules.begin() + static_cast<ptrdiff_t>(at));
  }
  void look_up() {
    Rule packet;
    random_key(&packet);
    if (random.below(4) != 0) {
      packet = random.of(rules);
      for (size_t i = 0; i < 10; ++i)
        packet.value[i] ^= static_cast<uint8_t>(random() & ~packet.mask[i]);
    }
    const uint32_t pipe = random.below(2);
    const Rule *best = nullptr;
    for (const Rule &rule : rules) {
      if (!rule.is_hit(packet.value, pipe)) continue;
      if (best == nullptr || rule.priority < best->priority) best = &rule;
    }
    uint32_t hit = 0;
    const bf_status_t status =
        soft_lookup(kDevice, pipe, kTunnel, packet.value.data(), 10, &hit, nullptr);
    ASSERT_EQ(status, best == nullptr ? BF_TABLE_MISS : BF_SUCCESS);
    ASSERT_EQ(hit, best == nullptr ? 0 : best->handle);
  }

  Random random{GetParam()};
  std::vector<Rule> rules;
};

TEST_P(Rules, HitTheSameAsOneByOne) {
  OK(pipe_mgr_tbl_set_property(session, kDevice, kTunnel, PIPE_TABLE_ENTRY_SCOPE, 1, 0));
  OK(pipe_mgr_tbl_set_property(session, kDevice, kTunnel, PIPE_TABLE_DUPLICATE_CHECK, 0, 0));
  for (const uint32_t count : {12u, 40u, 1500u, 900u, 200u, 600u, 5u}) {
    while (rules.size() < count) {
      add();
      if (random.one_in(3)) look_up();
    }
    while (rules.size() > count) {
      remove();
      if (random.one_in(3)) look_up();
    }
    for (int i = 0; i < 200 && !HasFatalFailure(); ++i) look_up();
  }
}

INSTANTIATE_TEST_SUITE_P(Shapes, Rules, testing::Range(1u, 10u));

}  // namespace

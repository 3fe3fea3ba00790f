// Look-ups among many rules of several shapes, against a search from end to end.
#include "model.hpp"

namespace {

using namespace soft_test;

class Rules : public SoftTest, public testing::WithParamInterface<uint32_t> {
 protected:
  Rules() { table.description = &small_program().tables[6]; }

  // A prefix of two numbers, any bits, all bits, or none: each parameter has another mixture. Few
  // numbers, so that many rules agree in much.
  void random_key(ModelEntry *rule) {
    rule->value.assign(10, 0);
    rule->mask.assign(10, 0);
    const uint32_t shape = random.below(GetParam() % 4 + 1);
    for (const size_t field : {0u, 5u}) {
      const uint32_t bits = random.below(shape == 2 ? 41 : 9) * (shape == 2 ? 1 : 5);
      for (size_t i = 0; i < 5; ++i) {
        const uint32_t left = bits > 8 * i ? bits - static_cast<uint32_t>(8 * i) : 0;
        uint32_t mask = left > 7 ? 0xff : 0xff00u >> left;
        if (shape == 1) mask = 0xff;
        if (shape == 3) mask = random.one_in(3) ? random() : 0;
        rule->mask[field + i] = static_cast<uint8_t>(mask);
        rule->value[field + i] = static_cast<uint8_t>(random.below(GetParam() % 3 * 9 + 3));
      }
    }
    rule->priority = random.below(GetParam() % 2 == 0 ? 3 : 5000);
    rule->pipe = random.one_in(4) ? random.below(2) : kAll;
  }
  void add() {
    ModelEntry rule;
    random_key(&rule);
    const Key key(80, rule.value, rule.mask, rule.priority);
    const Action deny;
    OK(pipe_mgr_mat_ent_add(session, kDevice, rule.pipe, kTunnel, &key.spec, kDeny, &deny.spec, 0,
                            0, &rule.handle));
    table.entries.push_back(rule);
  }
  void remove() {
    const size_t at = random.below(static_cast<uint32_t>(table.entries.size()));
    OK(pipe_mgr_mat_ent_del(session, kDevice, kTunnel, table.entries[at].handle, 0));
    table.entries.erase(table.entries.begin() + static_cast<ptrdiff_t>(at));
  }
  void look_up() {
    ModelEntry packet;
    random_key(&packet);
    if (random.below(4) != 0) {
      packet = random.of(table.entries);
      for (size_t i = 0; i < 10; ++i)
        packet.value[i] ^= static_cast<uint8_t>(random() & ~packet.mask[i]);
    }
    const uint32_t pipe = random.below(2);
    const ModelEntry *best = table.look_up(packet.value, pipe);
    uint32_t hit = 0;
    const bf_status_t status =
        soft_lookup(kDevice, pipe, kTunnel, packet.value.data(), 10, &hit, nullptr);
    ASSERT_EQ(status, best == nullptr ? BF_TABLE_MISS : BF_SUCCESS);
    ASSERT_EQ(hit, best == nullptr ? 0 : best->handle);
  }

  Random random{GetParam()};
  ModelTable table;
};

TEST_P(Rules, HitTheSameAsOneByOne) {
  OK(pipe_mgr_tbl_set_property(session, kDevice, kTunnel, PIPE_TABLE_ENTRY_SCOPE, 1, 0));
  OK(pipe_mgr_tbl_set_property(session, kDevice, kTunnel, PIPE_TABLE_DUPLICATE_CHECK, 0, 0));
  for (const uint32_t count : {12u, 40u, 900u, 200u, 600u, 5u}) {
    while (table.entries.size() < count) {
      add();
      if (random.one_in(3)) look_up();
    }
    while (table.entries.size() > count) {
      remove();
      if (random.one_in(3)) look_up();
    }
    for (int i = 0; i < 200 && !HasFatalFailure(); ++i) look_up();
  }
}

INSTANTIATE_TEST_SUITE_P(Shapes, Rules, testing::Range(1u, 9u));

}  // namespace

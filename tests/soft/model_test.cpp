// Random calls on a device and on a naive one beside it (model.hpp), which must answer alike.
#include "model_calls.hpp"

namespace soft_test {
namespace {

TEST_P(Beside, AgreesAfterRandomCalls) {
  using Step = void (Beside::*)();
  const std::vector<Step> steps = {
      &Beside::add_entry,         &Beside::add_entry,         &Beside::add_entry,
      &Beside::add_entry,         &Beside::add_entry,         &Beside::change_entry,
      &Beside::change_entry,      &Beside::change_resources,  &Beside::change_resources,
      &Beside::remove_entry,      &Beside::find_entry,        &Beside::change_default,
      &Beside::send_traffic,      &Beside::send_traffic,      &Beside::send_traffic,
      &Beside::send_traffic,      &Beside::change_counter,    &Beside::change_age,
      &Beside::change_age,        &Beside::advance_clock,     &Beside::change_member,
      &Beside::change_group,      &Beside::change_membership, &Beside::change_membership,
      &Beside::change_membership, &Beside::change_fallback,   &Beside::change_counter_cell,
      &Beside::change_meter_cell, &Beside::change_meter_cell, &Beside::change_member,
      &Beside::change_membership, &Beside::change_membership};
  const std::vector<Step> seldom = {&Beside::change_property, &Beside::switch_ageing};
  for (uint32_t step = 0; step < 6000; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    if (random.one_in(40)) (this->*random.of(seldom))();
    // Fills and drains in turn.
    (this->*(step / 500 % 3 == 2 && random.one_in(2) ? &Beside::remove_entry : random.of(steps)))();
    if (step % 100 == 0) {
      compare_tables();
      compare_profiles();
      compare_cells();
    }
    if (random.one_in(250)) move();
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Beside, testing::Range(1u, 9u));

// Two entries that packets hit alike, the newer one in a slot that was in use before.
TEST_F(SoftTest, TheOlderOfTwoThatPacketsHitAlikeWins) {
  const auto add = [&](uint8_t uncompared, uint32_t number) {
    Bytes value(10);
    value[0] = uncompared;
    value[8] = static_cast<uint8_t>(number >> 8);
    value[9] = static_cast<uint8_t>(number);
    const Key key(80, value, Bytes(10, 255));
    const Action deny;
    uint32_t entry = 0;
    OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kTunnel, &key.spec, kDeny, &deny.spec, 0, 0,
                            &entry));
    return entry;
  };
  Words entries;
  for (uint32_t i = 0; i < 1100; ++i) entries.push_back(add(0, i));
  const uint32_t older = entries.back();
  entries.pop_back();
  for (const uint32_t entry : entries)
    OK(pipe_mgr_mat_ent_del(session, kDevice, kTunnel, entry, 0));
  uint32_t first = 0, hit = 0;
  const uint32_t newer = add(0x80, 1099);
  OK(pipe_mgr_get_first_entry_handle(session, kTunnel, kDevice, 0, &first));
  ASSERT_EQ(first, newer) << "its slot is the lower one";
  const uint8_t packet[] = {0, 0, 0, 0, 0, 0, 0, 0, 1099 >> 8, 1099 & 255};
  OK(soft_lookup(kDevice, 0, kTunnel, packet, 10, &hit, nullptr));
  EXPECT_EQ(hit, older);
}

}  // namespace
}  // namespace soft_test

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

}  // namespace
}  // namespace soft_test

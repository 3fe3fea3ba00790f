// Start, stop, and what the driver framework holds of the library in between.
#include "typed.hpp"

namespace pd_test {
namespace {

constexpr const char *kClient = "p4_pd_tessel_switch_pd";

TEST(Frame, InitMakesAStatePerProfileAndRegisters) {
  // Without its third state it goes no further, ...
  EXPECT_EQ(first_init().failed_status, P4_PD_NO_MEMORY);
  EXPECT_EQ(names_of(first_init().failed_calls),
            (std::vector<std::string>{"p4_pd_ms_init", "p4_pd_ms_init_state", "p4_pd_ms_init_state",
                                      "p4_pd_ms_init_state"}));
  // ... and the next one makes the two that are missing.
  const std::vector<std::string> wanted = {"p4_pd_ms_init", "p4_pd_ms_init_state",
                                           "p4_pd_ms_init_state", "bf_drv_register",
                                           "bf_drv_client_register_callbacks"};
  EXPECT_EQ(names_of(first_init().calls), wanted);
  ASSERT_EQ(first_init().calls.size(), wanted.size());
  EXPECT_EQ(first_init().calls[3].get<std::string>("client_name"), kClient);
  EXPECT_EQ(first_init().calls[4].scalar("priority"), 2u);
}

TEST(Frame, TheFrameworkHoldsThreeCallbacks) {
  EXPECT_EQ(soft_client_count(), 1u);
  uint32_t client = 0;
  uint32_t priority = 0;
  bf_drv_client_callbacks_t callbacks;
  std::memset(&callbacks, 0x5a, sizeof callbacks);
  ASSERT_EQ(soft_client_get(kClient, &client, &priority, &callbacks), BF_SUCCESS);
  EXPECT_EQ(client, bf_drv_hdl);
  EXPECT_EQ(priority, 2u);
  static_assert(sizeof callbacks == 29 * sizeof(void *));
  void *slots[29];
  std::memcpy(slots, &callbacks, sizeof slots);
  for (size_t slot = 1; slot <= 29; ++slot) {
    EXPECT_EQ(slots[slot - 1] != nullptr, slot >= 4 && slot <= 6) << slot;
  }
}

TEST(Frame, ASecondInitKeepsTheStates) {
  const auto refused = recorded([] { EXPECT_EQ(PD(init)(), P4_PD_DRIVER_REFUSED); });
  EXPECT_EQ(names_of(refused), (std::vector<std::string>{"p4_pd_ms_init", "bf_drv_register"}));
  EXPECT_EQ(soft_client_count(), 1u);
}

TEST(Frame, ComesBackAfterCleanup) {
  const uint32_t before = bf_drv_hdl;
  const Call call = only_call([] { EXPECT_EQ(PD(cleanup)(), BF_SUCCESS); });
  EXPECT_EQ(call.function, "bf_drv_deregister");
  EXPECT_EQ(call.scalar("client"), before);
  EXPECT_EQ(bf_drv_hdl, before);
  EXPECT_EQ(soft_client_count(), 0u);
  EXPECT_EQ(PD(cleanup)(), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(PD(init)(), BF_SUCCESS);
  EXPECT_EQ(soft_client_count(), 1u);
}

}  // namespace
}  // namespace pd_test

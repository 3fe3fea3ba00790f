// Start, stop, and what the driver framework holds of the library in between.
#include "typed.hpp"

namespace pd_test {
namespace {

TEST(Frame, TheFrameworkHoldsThreeCallbacks) {
  bf_drv_client_callbacks_t callbacks;
  std::memset(&callbacks, 0x5a, sizeof callbacks);
  ASSERT_EQ(soft_client_get("p4_pd_tessel_switch_pd", nullptr, nullptr, &callbacks), BF_SUCCESS);
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

TEST(Frame, IsCleanedUpOnce) {
  const uint32_t before = bf_drv_hdl;
  for (const p4_pd_status_t status : {BF_SUCCESS, BF_OBJECT_NOT_FOUND}) {
    EXPECT_EQ(PD(cleanup)(), status);
    EXPECT_EQ(bf_drv_hdl, before);
  }
  EXPECT_EQ(PD(init)(), BF_SUCCESS);
}

}  // namespace
}  // namespace pd_test

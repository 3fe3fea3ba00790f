// Read-back of resource lists that the library's own program does not make, and the words that are
// written on failure.
#include "texts.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

constexpr uint32_t kClassCount = 0x04000007;
constexpr uint32_t kPolicyCount = 0x04000005;
constexpr uint32_t kPdpMeter = 0x05000001;

pipe_mgr_resource_t attach(uint32_t handle, uint32_t index, uint32_t tag = PIPE_RESOURCE_ATTACH) {
  pipe_mgr_resource_t resource = {};
  resource.handle = handle;
  resource.index = index;
  resource.tag = tag;
  return resource;
}

class ReadBack : public LibraryTest {};

TEST_F(ReadBack, TheMeterOverridesTheCounterInWhateverOrder) {
  const struct {
    std::vector<pipe_mgr_resource_t> resources;
    uint32_t cell;
  } cases[] = {
      {{}, 0xffffffff},
      {{attach(kClassCount, 0, PIPE_RESOURCE_DETACH)}, 0xffffffff},
      {{attach(kPolicyCount, 9)}, 0},
      {{attach(kClassCount, 5)}, 5},
      {{attach(kPdpMeter, 6), attach(kClassCount, 5)}, 6},
      {{attach(kPdpMeter, 0), attach(kPolicyCount, 3), attach(kClassCount, 5)}, 0},
  };
  const pdgen::Table &table = table_named("pdpPolicy");
  uint8_t data[4] = {0x11, 0x22, 0x33, 0x44};  // not what a cell is read from
  for (const auto &attached : cases) {
    pipe_mgr_action_spec_t spec = {};
    spec.type = PIPE_ACTION_DATA;
    spec.data = {32, 4, data};
    std::ranges::copy(attached.resources, spec.resources);
    spec.resource_count = static_cast<uint32_t>(attached.resources.size());
    uint32_t entry = 0;
    EXPECT_EQ(pipe_mgr_mat_default_entry_set(session(), kDevice, kPipe, table.handle,
                                             pair_of(table, "pdpPolice")->handle, &spec, 0, &entry),
              BF_SUCCESS);
    PD(pdpPolicy_match_spec_t) key = {};
    PD(pdpPolice_action_spec_t) read = {};
    bool no_key = true;
    const uint64_t allocations = soft_allocations_made();
    EXPECT_EQ(PD(pdpPolicy_get_entry)(session(), kDevice, entry, false, &key, nullptr, &read,
                                      nullptr, &no_key),
              BF_SUCCESS);
    const uint64_t lists = attached.cell == 0xffffffff ? 0 : 1;  // none without a resource
    EXPECT_EQ(soft_allocations_made() - allocations, lists);
    EXPECT_EQ(read.action_pdpResourceIndex, attached.cell);
  }
}

// Whether or not the action reads one of them.
TEST_F(ReadBack, ResourcesAreListed) {
  const p4_pd_device_target_t target = {kDevice, BF_ALL_PIPES};
  uint32_t entry = 0;
  ASSERT_EQ(PD(finalDropControl_set_default_action_accept)(session(), target, &entry), BF_SUCCESS);
  PD(action_specs_t) specs = {};
  const uint64_t allocations = soft_allocations_made();
  EXPECT_EQ(PD(finalDropControl_table_get_default_entry)(session(), target, false, &specs),
            BF_SUCCESS);
  EXPECT_EQ(soft_allocations_made() - allocations, 1u);
}

}  // namespace
}  // namespace pd_test

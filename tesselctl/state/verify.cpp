#include "tesselctl/state/verify.hpp"
#include "tesselctl/program/trace.hpp"

namespace tesselctl {

const char *difference_text(Difference difference) {
  switch (difference) {
    case Difference::missing:
      return "missing";
    case Difference::different:
      return "different";
    default:
      return "extra";
  }
}

const pipe_mgr_placement_t *Placement::of_entry(const Device &device, const TableInfo &table,
                                                uint32_t entry) {
  check(soft_placement_of_entry(device.id(), table.description->handle, entry, &object_),
        {table.name(), 1});
  return object_;
}

const pipe_mgr_placement_t *Placement::of_member(const Device &device,
                                                 const soft_profile_t &profile, uint32_t member) {
  check(soft_placement_of_member(device.id(), profile.action_data_table, member, &object_),
        {profile.name, 1});
  return object_;
}

std::string value_of(const bindings::Export &function, const pipe_mgr_placement_t *placement) {
  const TraceScope quiet(nullptr);
  std::string text(binding().sizes.value, '\0');
  Call call(function);
  text.resize(
      static_cast<size_t>(call.set("placement", placement).set("buffer", text.data()).run()));
  return text;
}

VerifyCounts verify(const Device &old_device, const Device &new_device,
                    const std::function<void(const Finding &)> &report) {
  Verification run = {old_device, new_device, report};
  for (const TableInfo &table : all_tables()) verify_table(run, table);
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    verify_profile(run, profile);
  }
  return run.counts;
}

}  // namespace tesselctl

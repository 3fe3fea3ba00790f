// A scene for one export: a fresh device on which a call of it with the scene's arguments succeeds.
// Sweeps play it as it is, with a fault planned, or with one argument spoilt. The same export and
// variation give the same scene every time.
#pragma once

#include "oracle.hpp"
#include "soft_placement.h"
#include "support.hpp"

namespace pd_test {

// What of the program an export is about.
struct Subject {
  const pdgen::Table *table = nullptr;
  const pdgen::Profile *profile = nullptr;
  const pdgen::Resource *resource = nullptr;  // a counter, meter or register
  const pdgen::Hash *hash = nullptr;
  // Of the resource, the calculation, the digest or the value set.
  uint32_t handle = 0;
  // Whether the program has what a call needs: many exports are there for every program.
  bool is_there = true;
};
Subject subject_of(const Export &exported);
// The exports that a scene can be made for, and the others.
const std::vector<const Export *> &exports_with_scene();
const std::vector<const Export *> &exports_without_scene();

class Scene {
 public:
  explicit Scene(const Export &exported, std::string_view variation = "");
  Scene(const Scene &) = delete;
  Scene &operator=(const Scene &) = delete;
  ~Scene();

  const Export &exported() const { return exported_; }
  Arguments &arguments() { return arguments_; }
  const Arguments &arguments() const { return arguments_; }

  // Calls the export with the journal on.
  uint64_t play();
  const std::vector<Call> &calls() const { return calls_; }

  const Subject &subject() const { return subject_; }
  const pdgen::Table *table() const { return subject_.table; }
  const pdgen::Profile *profile() const { return subject_.profile; }

  // The records given to the export, where it takes them.
  const Bytes &match_spec() const { return match_spec_; }
  const Bytes &action_spec() const { return action_spec_; }
  const p4_pd_bytes_meter_spec_t &meter_spec() const { return meter_spec_; }

  // Memory behind an out-parameter, exactly as large as the call may write. Every byte holds
  // kUntouched until then.
  static constexpr uint8_t kUntouched = 0xa5;
  const Bytes &output(std::string_view name) const;
  bool is_output(std::string_view name) const { return outputs_.contains(name); }
  // Names of the out-parameters that were written.
  std::string written_outputs() const;

  // The action function handle of the member (and of the group that it is in).
  uint32_t member_action() const { return member_action_; }
  bool member_has_params() const { return member_has_params_; }

 private:
  void set_up(uint32_t needs);
  Given given(const Bytes &spec) const;
  const pdgen::Resource *direct_resource() const;
  void add_entry();
  void add_second_entry();
  void set_default_entry();
  uint32_t add_member(std::string_view action);
  uint32_t create_group();
  void join(uint32_t member);
  void take_placement(uint32_t needs);
  p4_pd_status_t add_entry_of(const Bytes &match_spec, uint32_t *entry);
  void set_up_ageing();
  void add_value_entries();
  void send_digest();
  void configure_hashes();
  void take_snapshot();

  void fill_arguments();
  bool fill_input(const bindings::Parameter &parameter);
  Given values() const;
  void fill_output(const bindings::Parameter &parameter);

  const Export &exported_;
  uint64_t allocations_before_;
  Random random_;
  Device device_;
  Arguments arguments_;
  const Subject subject_;
  const pdgen::Table *const table_;
  const pdgen::Profile *const profile_;
  Bytes match_spec_;
  Bytes action_spec_;
  p4_pd_bytes_meter_spec_t meter_spec_;
  uint32_t priority_ = 0;
  uint32_t entry_ = 0;
  uint32_t member_ = 0;
  uint32_t group_ = 0;
  uint32_t member_action_ = 0;
  bool member_has_params_ = false;
  uint32_t snapshot_ = 0;
  pipe_mgr_digest_message_t *message_ = nullptr;
  pipe_stful_cell_t cells_[2 * kPipes] = {};
  pipe_stful_query_t query_ = {2 * kPipes, cells_};
  pipe_mgr_placement_t *placement_ = nullptr;
  std::optional<Device> virtual_device_;
  std::map<std::string, Bytes, std::less<>> outputs_;
  std::vector<Call> calls_;
};

// The status that a scene's call gives, 0 but for what no scene can make succeed.
p4_pd_status_t expected_status(const Export &exported);

}  // namespace pd_test

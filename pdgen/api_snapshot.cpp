// Snapshots: the trigger and capture records, and the four functions over the snapshot service.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Snapshots";

std::string padding(const Snapshots &snapshots, unsigned used) {
  if (used == snapshots.record_bytes) return "";
  return fmt::format("  uint8_t {}[{}];\n", padding_member(), snapshots.record_bytes - used);
}

std::string record(const std::string &remark, const std::string &type, const std::string &members) {
  return expand("/* $0 */\ntypedef struct __attribute__((packed)) $1 {\n$2} $3;\n",
                {remark, type_tag(type), members, type});
}

std::string trigger_record(const Program &program, const SnapshotLayout &layout) {
  std::string members;
  for (const SnapshotField &field : layout.fields) {
    members += fmt::format("  uint{}_t {};\n", 8 * field.bytes, field.name);
  }
  const Snapshots &snapshots = *program.snapshots;
  return record(fmt::format("Trigger of {} snapshots, {} bytes: field values, or the bits of them "
                            "that count.",
                            layout.name, snapshots.record_bytes),
                snapshot_trigger_type(program, layout),
                members + padding(snapshots, layout.used_bytes));
}

std::string capture_record(const Program &program) {
  const Snapshots &snapshots = *program.snapshots;
  std::string members;
  unsigned used = 0;
  for (const SnapshotField &field : snapshots.capture) {
    members += field.bytes == 1 ? fmt::format("  uint8_t {};\n", field.name)
                                : fmt::format("  uint8_t {}[{}];\n", field.name, field.bytes);
    used += field.bytes;
  }
  return record(fmt::format("What one stage captured, {} bytes. Fields of several bytes have the "
                            "most significant first.",
                            snapshots.record_bytes),
                snapshot_capture_type(program), members + padding(snapshots, used));
}

void add_functions(Api &api) {
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const std::string &call) {
    api.add(kGroup, {program_function(api.program(), "snapshot_" + operation), "p4_pd_status_t",
                     std::move(parameters), "return pd::" + call, "snapshot_" + operation, "", ""});
  };
  const Parameter snapshot = {"uint32_t", "snapshot"};
  const Parameter pipe = {"uint16_t", "pipe"};
  add("create",
      {device32(),
       pipe,
       {"uint8_t", "first_stage"},
       {"uint8_t", "last_stage"},
       {"uint32_t", "direction"},
       {"uint32_t *", "snapshot"}},
      "create_snapshot(device, pipe, first_stage, last_stage, direction, snapshot)");
  add("delete", {snapshot}, "delete_snapshot(snapshot)");
  add("capture_trigger_set", {snapshot, {"const void *", "value"}, {"const void *", "mask"}},
      "set_trigger<snapshot::records>(snapshot, value, mask)");
  add("capture_data_get",
      {snapshot,
       pipe,
       {snapshot_capture_type(api.program()) + " *", "records"},
       {"bf_snapshot_control_t *", "control"},
       {"uint32_t *", "captures"}},
      "get_captures(snapshot::records, snapshot, pipe, records, control, captures)");
}

}  // namespace

void add_snapshot_functions(Api &api) {
  api.begin_unit("snapshot", {"snapshot.hpp"});
  if (!api.program().snapshots) return;
  const Snapshots &snapshots = *api.program().snapshots;
  api.add_note(
      "Snapshots",
      fmt::format(
          "direction is 0 for ingress and 1 for egress; bit 1 of the handle is set for an egress "
          "snapshot. capture_trigger_set takes two trigger records of that layout in host order, "
          "field values and mask, and hands copies in network order on. capture_data_get writes a "
          "record for each stage of the capture, at most {0}; records has room for {0}, control "
          "(null: not wanted) for one element a stage. captures is 0 unless the capture was asked "
          "for. Records are written even when the capture itself fails; a stage that is shorter "
          "than a record fills it up with zeroes. P4_PD_NO_MEMORY, and no record written, when "
          "the capture could not be allocated.",
          snapshots.capture_limit));
  for (const SnapshotLayout &layout : snapshots.layouts) {
    api.declare(kGroup, trigger_record(api.program(), layout) + "\n");
  }
  api.declare(kGroup, capture_record(api.program()));
  add_functions(api);
}

}  // namespace pdgen

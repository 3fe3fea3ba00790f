// Snapshots: packets caught at chosen stages.
#include <algorithm>

#include "bf_snapshot.h"
#include "soft_snapshot.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"

namespace tesselctl {

namespace {

const char *direction_name(uint32_t direction) { return direction == 0 ? "ingress" : "egress"; }

// The record of that name; a program with snapshots may have those of one direction alone.
const bindings::Record &record_in(const bindings::RecordList &records, const char *name,
                                  Word word) {
  if (const bindings::Record *found = find_record(records.list(), name)) return *found;
  throw Fault(word, fmt::format("the program has no {} snapshots", name));
}

// Those words that are no options, in the record of a direction.
RecordWriter record_of(const FieldWords &words, const bindings::RecordList &records,
                       uint32_t direction) {
  const char *name = direction_name(direction);
  return words.record(record_in(records, name, words.command), std::string(name) + " snapshot");
}

uint32_t direction_of(const Options &options) {
  return static_cast<uint32_t>(options.choice_or("direction", {"ingress", "egress"}, 0));
}

Row snapshot_row(uint32_t snapshot) {
  Row row;
  row.number("snapshot", snapshot);
  return row;
}

struct Stages {
  uint8_t first;
  uint8_t last;
  explicit Stages(const Options &options)
      : first(static_cast<uint8_t>(options.number_or("first", SOFT_STAGE_LIMIT - 1, 0))),
        last(static_cast<uint8_t>(options.number_or("last", SOFT_STAGE_LIMIT - 1, first))) {
    if (last < first) throw Fault(options.need("last"), "last comes before first");
  }
};

void create(Context &context, const Invocation &invocation) {
  const Options options(invocation, 0, {"first", "last", "direction", "pipe", "as"});
  const Stages stages(options);
  const uint32_t direction = direction_of(options);
  uint32_t snapshot = 0;
  Call call = context.device.prepare("snapshot_create", "");
  call.set("pipe", uint64_t{pipe_of(context, options, BF_ALL_PIPES)});
  call.set("first_stage", uint64_t{stages.first}).set("last_stage", uint64_t{stages.last});
  call.set("direction", uint64_t{direction}).set("snapshot", &snapshot);
  check(call.run(), invocation.command);
  if (options.has("as")) remember(context, options.need("as"), snapshot);
  context.results.done(snapshot_row(snapshot), "created");
}

void remove(Context &context, const Invocation &invocation) {
  const Options options(invocation, 0, {"snapshot"});
  const uint32_t snapshot = options.handle(context, "snapshot");
  Call call = context.device.prepare("snapshot_delete", "");
  check(call.set("snapshot", uint64_t{snapshot}).run(), options.need("snapshot"));
  context.results.done(snapshot_row(snapshot), "deleted");
}

// Bit 1 of a handle is the direction.
void trigger(Context &context, const Invocation &invocation) {
  const FieldWords words(invocation, 0, {"snapshot"});
  const Options options(words.options(), 0, {"snapshot"});
  const uint32_t snapshot = options.handle(context, "snapshot");
  const RecordWriter fields = record_of(words, binding().triggers, snapshot >> 1 & 1);
  const uint8_t *mask = fields.data() + program().snapshot_bytes;
  Call call = context.device.prepare("snapshot_capture_trigger_set", "");
  call.set("snapshot", uint64_t{snapshot}).set("value", fields.data()).set("mask", mask);
  check(call.run(), options.need("snapshot"));
  context.results.done(snapshot_row(snapshot), "armed");
}

// The packet carries the same fields at all of its stages; those that are not given are 0.
void inject(Context &context, const Invocation &invocation) {
  const FieldWords words(invocation, 0, {"first", "last", "direction", "pipe"});
  const Options options(words.options(), 0, {"first", "last", "direction", "pipe"});
  const Stages stages(options);
  const uint32_t direction = direction_of(options);
  const RecordWriter fields = record_of(words, binding().packets, direction);
  const uint32_t count = stages.last - stages.first + 1u;
  std::vector<uint8_t> records(size_t{count} * program().snapshot_bytes);
  for (uint32_t i = 0; i < count; ++i) {
    std::copy_n(fields.data(), program().snapshot_bytes,
                records.data() + size_t{i} * program().snapshot_bytes);
  }
  const bf_pipe_id_t pipe = pipe_of(context, options, 0);
  uint32_t captures = 0;
  check(soft_snapshot_inject(context.device.id(), pipe, direction, stages.first, records.data(),
                             count, static_cast<uint32_t>(records.size()), &captures),
        invocation.command);
  Row row;
  context.results.row(row.number("captures", captures));
}

Row stage_row(uint32_t snapshot, const bf_snapshot_control_t &control) {
  Row row = snapshot_row(snapshot);
  row.choice("direction", direction_name(snapshot >> 1 & 1)).number("stage", control.stage);
  return row.choice("triggered", control.triggered ? "yes" : "no");
}

// A row for each stage that the packet went through, with the fields that are not 0; none before
// anything is captured.
void show(Context &context, const Invocation &invocation) {
  const Options options(invocation, 0, {"snapshot", "pipe"});
  const uint32_t snapshot = options.handle(context, "snapshot");
  const bindings::Record &capture = record_in(binding().captures, "capture", {});
  Row sample = stage_row(snapshot, {});
  for (const char *word : {"yes", "no"}) sample.choice("triggered", word);
  add_samples(sample, "fields", capture);
  context.results.expect(sample);
  std::vector<uint8_t> records(binding().capture_limit * capture.size);
  std::vector<bf_snapshot_control_t> control(SOFT_STAGE_LIMIT);
  uint32_t captures = 0;
  Call call = context.device.prepare("snapshot_capture_data_get", "");
  call.set("snapshot", uint64_t{snapshot});
  call.set("pipe", uint64_t{pipe_of(context, options, BF_ALL_PIPES)});
  call.set("records", records.data()).set("control", control.data()).set("captures", &captures);
  const uint64_t status = call.run();
  if (status == BF_NOT_READY) return;
  check(status, options.need("snapshot"));
  for (size_t i = 0; i < binding().capture_limit; ++i) {
    if (!control[i].valid) continue;
    Row row = stage_row(snapshot, control[i]);
    add_record(row, "fields", capture, &records[i * capture.size], LeaveOut::zeroes);
    context.results.row(row);
  }
}

constexpr Command kCommands[] = {
    {"snapshot create", "[first=STAGE] [last=STAGE] [direction=ingress|egress] [pipe=N] [as=NAME]",
     "makes a snapshot of packets at some stages", create, Kind::acts},
    {"snapshot trigger", "snapshot=HANDLE FIELD=VALUE|VALUE&MASK...",
     "arms a snapshot: the first packet that matches in each pipe is captured", trigger,
     Kind::acts},
    {"snapshot inject",
     "FIELD=VALUE... [direction=ingress|egress] [pipe=N] [first=STAGE] [last=STAGE]",
     "sends a packet through stages; fields that are not given are 0", inject, Kind::acts},
    {"snapshot show", "snapshot=HANDLE [pipe=N]",
     "prints what was captured, stage by stage, but for fields that are 0", show, Kind::lists},
    {"snapshot delete", "snapshot=HANDLE", "deletes a snapshot", remove, Kind::acts},
};

bool has_snapshots() { return !has_program() || !binding().captures.list().empty(); }

}  // namespace

extern const Topic kSnapshotTopic = {
    .title = "Snapshots", .commands = kCommands, .is_there = has_snapshots};

}  // namespace tesselctl

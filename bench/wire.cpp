#include <google/protobuf/arena.h>

#include <algorithm>
#include <array>
#include <memory>

#include "bindings/export_table.hpp"
#include "call_rows.hpp"
#include "entry.pb.h"

namespace bench {

namespace {

// What of a call there is to send, found once.
struct Plan {
  uint32_t table;
  uint32_t action;
  std::vector<bindings::Member> fields;  // values, each before its mask or prefix length
  std::vector<bindings::Member> params;
  wire::Update::Type type;
  bool has_key;
  bool has_action;
  bool is_default;
};

std::vector<bindings::Member> members_of(const bindings::RecordList &records,
                                         const std::string &name) {
  for (const bindings::Record &record : records.list()) {
    if (record.name == name) return {record.member_list().begin(), record.member_list().end()};
  }
  expect(false, "record by name");
  return {};
}

uint32_t number_of(const bindings::RecordList &records, const std::string &name) {
  for (const bindings::Record &record : records.list()) {
    if (record.name == name) return record.number;
  }
  return 0;
}

Plan plan_of(const std::string &operation, const std::string &table, const std::string &action) {
  const bindings::Binding &binding = bindings::pd_binding;
  const auto type = operation == "add"      ? wire::Update::INSERT
                    : operation == "delete" ? wire::Update::DELETE
                    : operation == "find"   ? wire::Update::READ
                                            : wire::Update::MODIFY;
  const bool is_default = operation == "set default";
  return {number_of(binding.tables, table),
          number_of(binding.actions, action),
          members_of(binding.tables, table),
          members_of(binding.actions, action),
          type,
          !is_default,
          operation != "delete" && operation != "find",
          is_default};
}

// The field in as few whole bytes as it fills, most significant first.
void set_bytes(std::string &bytes, unsigned width) {
  char buffer[16];
  const unsigned size = (width + 7) / 8;
  for (unsigned i = 0; i < size; ++i) buffer[i] = static_cast<char>(0x35 + i);
  bytes.assign(buffer, size);
}

void add_key(const Plan &plan, wire::TableEntry &entry) {
  for (size_t i = 0; i < plan.fields.size(); ++i) {
    const bindings::Member &field = plan.fields[i];
    const bindings::Member *companion =
        i + 1 < plan.fields.size() && plan.fields[i + 1].role != bindings::Role::value
            ? &plan.fields[++i]
            : nullptr;
    wire::FieldMatch &match = *entry.add_match();
    match.set_field_id(static_cast<uint32_t>(i + 1));
    if (companion == nullptr) {
      set_bytes(*match.mutable_exact()->mutable_value(), field.width);
    } else if (companion->role == bindings::Role::mask) {
      set_bytes(*match.mutable_ternary()->mutable_value(), field.width);
      set_bytes(*match.mutable_ternary()->mutable_mask(), field.width);
    } else {
      set_bytes(*match.mutable_prefix()->mutable_value(), field.width);
      match.mutable_prefix()->set_length(24);
    }
  }
}

void fill(const Plan &plan, uint32_t priority, wire::Write &write) {
  write.set_device_id(1);
  wire::Update &update = *write.add_updates();
  update.set_type(plan.type);
  wire::TableEntry &entry = *update.mutable_table_entry();
  entry.set_table_id(plan.table);
  if (plan.has_key) {
    entry.set_priority(static_cast<int32_t>(priority));
    add_key(plan, entry);
  }
  entry.set_is_default_action(plan.is_default);
  if (!plan.has_action) return;
  wire::Action &action = *entry.mutable_action();
  action.set_action_id(plan.action);
  for (size_t i = 0; i < plan.params.size(); ++i) {
    wire::Param &param = *action.add_params();
    param.set_param_id(static_cast<uint32_t>(i + 1));
    set_bytes(*param.mutable_value(), plan.params[i].width);
  }
}

// Bytes of what was serialised, for the compiler to keep it.
volatile size_t sent;

void send(const wire::Write &write) {
  static std::array<char, 4096> buffer;
  const size_t size = write.ByteSizeLong();
  write.SerializeWithCachedSizesToArray(reinterpret_cast<uint8_t *>(buffer.data()));
  sent = size;
}

}  // namespace

std::vector<Side> messages(const std::string &operation, const std::string &table,
                           const std::string &action) {
  const auto plan = std::make_shared<Plan>(plan_of(operation, table, action));
  const auto on_heap = [plan](uint64_t operations) {
    for (; operations > 0; --operations) {
      wire::Write write;
      fill(*plan, static_cast<uint32_t>(operations), write);
      send(write);
    }
  };
  const auto in_arena = [plan](uint64_t operations) {
    static std::array<char, 1 << 16> block;
    google::protobuf::Arena arena(block.data(), block.size());
    for (; operations > 0; --operations) {
      auto *write = google::protobuf::Arena::CreateMessage<wire::Write>(&arena);
      fill(*plan, static_cast<uint32_t>(operations), *write);
      send(*write);
      arena.Reset();
    }
  };
  return {{"protobuf on the heap", [on_heap] { return on_heap; }},
          {"protobuf in an arena", [in_arena] { return in_arena; }}};
}

}  // namespace bench

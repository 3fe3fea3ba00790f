#include <fmt/format.h>

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "p4_pd_tessel_switch.h"
#include "soft_contents.h"
#include "soft_state.h"
#include "tesselctl/image.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/read_back.hpp"
#include "tesselctl/status.hpp"

namespace tesselctl {

namespace {

constexpr size_t kPiece = 1u << 18;

class ImageSaver {
 public:
  ImageSaver(const Device &device, const TextSink &sink) : device_(device), sink_(&sink) {}

  void save(ImagePart part) {
    line("tesselctl image {} {}", kImageVersion, program().name);
    line("pipes {}", device_.pipes());
    for (const soft_profile_t &profile : program_rows<soft_profile_t>()) save_profile(profile);
    if (part == ImagePart::all) save_others();
    const uint64_t lines = lines_;
    line("end {}", lines);
    (*sink_)(text_);
  }

 private:
  void save_others() {
    for (const bindings::Record &record : tables()) save_table(resolve_table({record.name, 0}));
    for (const soft_counter_t &counter : program_rows<soft_counter_t>()) save_counter(counter);
    for (const soft_meter_t &meter : program_rows<soft_meter_t>()) save_meter(meter);
    for (const soft_register_t &reg : program_rows<soft_register_t>()) save_register(reg);
    for (const soft_hash_t &hash : program_rows<soft_hash_t>()) save_hash(hash);
    for (const soft_value_set_t &set : program_rows<soft_value_set_t>()) save_value_set(set);
  }

  // Numbers of members and groups in the image, by handle.
  struct Numbers {
    std::unordered_map<uint32_t, uint32_t> members;
    std::unordered_map<uint32_t, uint32_t> groups;
  };
  // What the entries of a table carry beside their value.
  struct Extras {
    Call ttl;
    Call meter;
    Call counter;
    bool has_ttl = false;
    bool has_meter = false;
    bool has_counter = false;
  };

  template <class... Arguments>
  void line(fmt::format_string<Arguments...> format, Arguments &&...arguments) {
    fmt::format_to(std::back_inserter(text_), format, std::forward<Arguments>(arguments)...);
    end_line();
  }
  void end_line() {
    text_ += '\n';
    ++lines_;
    if (text_.size() < kPiece) return;
    (*sink_)(text_);
    text_.clear();
  }
  // The heading of an object comes with the first line that belongs to it.
  void open(std::string_view kind, std::string_view name) {
    if (opened_kind_ == kind && opened_ == name) return;
    opened_kind_ = kind;
    opened_ = name;
    line("{} {}", kind, name);
  }

  void save_profile(const soft_profile_t &profile) {
    Numbers &numbers = numbers_[profile.action_data_table];
    const char *name = profile.name;
    for_each_member(device_, name, {}, [&](uint32_t member) {
      open("profile", name);
      const auto number = static_cast<uint32_t>(numbers.members.size() + 1);
      numbers.members.emplace(member, number);
      save_member(name, number, member);
    });
    for_each_group(device_, name, {}, [&](uint32_t group) {
      open("profile", name);
      numbers.groups.emplace(group, static_cast<uint32_t>(numbers.groups.size() + 1));
      save_group(profile, group, numbers);
    });
    pipe_member_handle_t fallback = 0;
    if (soft_fallback_member(device_.id(), profile.selector, &fallback) == BF_SUCCESS) {
      open("profile", name);
      line("fallback {}", numbers.members.at(fallback));
    }
  }

  void save_member(const char *profile, uint32_t number, uint32_t member) {
    p4_pd_tessel_switch_action_specs_t specs = {};
    Call call = device_.prepare("get_member", profile);
    call.set("member", uint64_t{member}).set("read_from_hardware", uint64_t{0});
    check(call.set("action_specs", &specs).run(), {});
    fmt::format_to(std::back_inserter(text_), "member {} ", number);
    append_action(specs.action, reinterpret_cast<const uint8_t *>(&specs.spec));
    end_line();
  }

  void save_group(const soft_profile_t &profile, uint32_t group, const Numbers &numbers) {
    std::string members;
    std::string inactive;
    for_each_group_member(device_, profile.name, group, {}, [&](uint32_t member, bool active) {
      const std::string number = decimal(numbers.members.at(member));
      members += (members.empty() ? "" : ",") + number;
      if (!active) inactive += (inactive.empty() ? " inactive=" : ",") + number;
    });
    uint32_t size = 0;
    check(soft_group_max_size(device_.id(), profile.selector, group, &size), {});
    line("group {} size={} members={}{}", numbers.groups.at(group), size, members, inactive);
  }

  // ---- Tables ----

  Extras extras_of(const TableInfo &table) const {
    Extras extras = {device_.prepare("get_entry_count", table.name()),
                     device_.prepare("get_entry_count", table.name()),
                     device_.prepare("get_entry_count", table.name())};
    if (table.ages()) {
      extras.has_ttl = true;
      extras.ttl = device_.prepare("get_ttl", table.name());
    }
    for (const soft_meter_t &meter : program_rows<soft_meter_t>()) {
      if (meter.table != table.description->handle) continue;
      extras.has_meter = true;
      extras.meter = device_.prepare("meter_read", meter.name);
    }
    for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
      if (counter.table != table.description->handle) continue;
      extras.has_counter = true;
      extras.counter = device_.prepare("counter_read", counter.name);
      extras.counter.set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE});
    }
    return extras;
  }

  void save_extras(Extras &extras, uint32_t entry, bool is_default) {
    const auto out = std::back_inserter(text_);
    if (extras.has_ttl && !is_default) {
      uint32_t ttl = 0;
      extras.ttl.set("entry", uint64_t{entry}).set("ttl", &ttl);
      if (extras.ttl.run() == BF_SUCCESS) fmt::format_to(out, " ttl={}", ttl);
    }
    if (extras.has_meter) {
      p4_pd_bytes_meter_spec_t spec = {};
      extras.meter.set("entry", uint64_t{entry}).set("meter_spec", &spec);
      if (extras.meter.run() == BF_SUCCESS) {
        fmt::format_to(out, " meter={},{},{},{}", spec.committed_rate, spec.committed_burst,
                       spec.peak_rate, spec.peak_burst);
      }
    }
    if (extras.has_counter) {
      p4_pd_counter_values_t values = {};
      extras.counter.set("entry", uint64_t{entry}).set("values", &values);
      if (extras.counter.run() == BF_SUCCESS && (values.packets | values.bytes) != 0) {
        fmt::format_to(out, " packets={} bytes={}", values.packets, values.bytes);
      }
    }
  }

  void save_table(const TableInfo &table) {
    EntryReader reader(device_, table);
    Extras extras = extras_of(table);
    const auto save_line = [&](std::string_view keyword, uint32_t entry) {
      check(reader.read(entry), {});
      open("table", table.name());
      text_ += keyword;
      append_value(table, reader);
      save_extras(extras, entry, keyword == "default ");
      end_line();
    };
    uint32_t entry = 0;
    Call handle = device_.prepare("table_get_default_entry_handle", table.name());
    if (handle.set("entry", &entry).run() == BF_SUCCESS) save_line("default ", entry);
    if (!table.keyed()) return;
    for_each_entry(device_, table, {}, [&](uint32_t found) { save_line("entry ", found); });
    if (table.ages()) save_ageing(table);
  }

  // The value string of the entry with all bits of its key. That of the library leaves out the bits
  // that take no part in the lookup, which entries keep all the same.
  void append_value(const TableInfo &table, const EntryReader &reader) {
    text_ += "((";
    if (reader.has_key()) {
      text_ += "( ";
      append_record(*table.record, reader.key.data());
      text_ += "),";
    } else {
      text_ += "(),";
    }
    if (!table.indirect()) {
      append_action(reader.action, reader.action_record());
    } else if (reader.has_member || reader.has_group) {
      const Numbers &numbers = numbers_[table.description->action_data_table];
      const uint32_t number =
          reader.has_group ? numbers.groups.at(reader.group) : numbers.members.at(reader.member);
      fmt::format_to(std::back_inserter(text_), "('{}',({:#x},))",
                     reader.has_group ? "setGrpHdl" : "setMbrHdl", number);
    }
    text_ += "),(";
    const auto priority = static_cast<int32_t>(table.has_priority() ? reader.priority : 0);
    fmt::format_to(std::back_inserter(text_), "{},True))", priority);
  }

  void append_action(uint32_t number, const uint8_t *parameters) {
    if (last_action_ == nullptr || last_action_->number != number) {
      const auto all = actions();
      const auto found = std::find_if(all.begin(), all.end(), [&](const bindings::Record &action) {
        return action.number == number;
      });
      if (found == all.end()) throw Fault("the device holds an unknown action");
      last_action_ = &*found;
    }
    text_ += "('";
    text_ += last_action_->name;
    text_ += "',(";
    append_record(*last_action_, parameters);
    text_ += ")),";
  }

  // The numbers of a record as value strings have them.
  void append_record(const bindings::Record &record, const uint8_t *bytes) {
    for (const bindings::Member &member : record.member_list()) {
      text_ += "0x";
      const uint8_t *at = bytes + member.offset;
      if (member.storage == 16) {
        for (size_t i = 0; i < 16; ++i) append_hexadecimal(at[i], 2, "0123456789ABCDEF");
      } else {
        uint32_t value = 0;
        memcpy(&value, at, member.storage);
        append_hexadecimal(value, (member.width + 3) / 4, "0123456789abcdef");
      }
      text_ += ',';
    }
  }
  void append_hexadecimal(uint32_t value, unsigned digits, const char *names) {
    while (digits < 8 && value >> (4 * digits) != 0) ++digits;
    for (unsigned i = digits; i-- > 0;) text_ += names[value >> (4 * i) & 0xf];
  }

  void save_ageing(const TableInfo &table) {
    p4_pd_idle_time_params_t params = {};
    Call call = device_.prepare("idle_params_get", table.name());
    if (call.set("params", &params).run() != BF_SUCCESS) return;
    open("table", table.name());
    line("ageing mode={} sweep={} max={} min={} ttl={}", params.mode, params.sweep_interval_ms,
         params.max_ttl_ms, params.min_ttl_ms, params.default_ttl_ms);
  }

  // ---- Cells ----

  template <class Visit>
  void for_each_cell(uint32_t handle, Visit visit) {
    uint32_t cell = 0;
    while (soft_next_cell(device_.id(), handle, cell, &cell) == BF_SUCCESS) {
      visit(cell);
      if (++cell == 0) return;
    }
  }

  void save_counter(const soft_counter_t &counter) {
    if (counter.table != 0) return;
    for_each_cell(counter.handle, [&](uint32_t cell) {
      for (uint32_t pipe = 0; pipe < device_.pipes(); ++pipe) {
        p4_pd_counter_values_t values = {};
        const p4_pd_device_target_t target = device_.target_of(pipe);
        Call call = device_.prepare("counter_read", counter.name);
        call.set("target", &target).set("index", uint64_t{cell});
        call.set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE}).set("values", &values);
        check(call.run(), {});
        if ((values.packets | values.bytes) == 0) continue;
        open("counter", counter.name);
        line("cell {} pipe={} packets={} bytes={}", cell, pipe, values.packets, values.bytes);
      }
    });
  }

  void save_meter(const soft_meter_t &meter) {
    if (meter.table != 0) return;
    for_each_cell(meter.handle, [&](uint32_t cell) {
      p4_pd_bytes_meter_spec_t spec = {};
      Call call = device_.prepare("meter_read", meter.name);
      check(call.set("index", uint64_t{cell}).set("meter_spec", &spec).run(), {});
      const bool is_zero =
          (spec.committed_rate | spec.committed_burst | spec.peak_rate | spec.peak_burst) == 0;
      if (is_zero) return;  // as one that was never set
      open("meter", meter.name);
      line("cell {} meter={},{},{},{} type={}", cell, spec.committed_rate, spec.committed_burst,
           spec.peak_rate, spec.peak_burst, spec.meter_type);
    });
  }

  std::string register_values(const soft_register_t &reg, uint32_t cell, bool *all_zero) {
    std::vector<uint32_t> values(device_.pipes());
    uint32_t count = 0;
    Call call = device_.prepare("register_read", reg.name);
    call.set("index", uint64_t{cell}).set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE});
    check(call.set("values", values.data()).set("value_count", &count).run(), {});
    std::string text;
    *all_zero = true;
    for (uint32_t i = 0; i < count; ++i) {
      const uint32_t value = register_value(reg.width, values.data(), i);
      *all_zero = *all_zero && value == 0;
      text += (text.empty() ? "" : ",") + decimal(value);
    }
    return text;
  }

  void save_register(const soft_register_t &reg) {
    bool all_zero = true;
    const std::string most = register_values(reg, SOFT_REGISTER_CELLS - 1, &all_zero);
    if (!all_zero) {
      open("register", reg.name);
      line("all {}", most);
    }
    for_each_cell(reg.handle, [&](uint32_t cell) {
      open("register", reg.name);
      line("cell {} {}", cell, register_values(reg, cell, &all_zero));
    });
  }

  void save_hash(const soft_hash_t &hash) {
    uint64_t seed = 0;
    check(device_.prepare("hash_calc_seed_get", hash.name).set("seed", &seed).run(), {});
    if (seed == 0) return;
    open("hash", hash.name);
    line("seed {:#x}", seed);
  }

  void save_value_set(const soft_value_set_t &set) {
    for (uint32_t direction = 0; direction < 2; ++direction) {
      const p4_pd_parser_target_t all = {device_.id(), direction, BF_ALL_PIPES, SOFT_ALL_PARSERS};
      Call first = device_.prepare("pvs_entry_get_first_entry_handle", set.name);
      Call next = device_.prepare("pvs_entry_get_next_entry_handles", set.name);
      first.set("target", &all);
      next.set("target", &all);
      for_each_handle({first, next, "entry", "entries", "entry"}, {}, [&](uint32_t entry) {
        uint32_t value = 0;
        uint32_t mask = 0;
        Call call = device_.prepare("pvs_entry_get", set.name);
        check(call.set("entry", uint64_t{entry}).set("value", &value).set("mask", &mask).run(), {});
        soft_parsers_t where = {};
        check(soft_value_set_parsers(device_.id(), set.handle, entry, &where), {});
        open("valueset", set.name);
        line("value {:#x} mask={:#x} direction={} pipe={} parser={}", value, mask, where.direction,
             where.pipe, where.parser);
      });
    }
  }

  const Device &device_;
  const TextSink *sink_;
  std::string text_;
  uint64_t lines_ = 0;
  const bindings::Record *last_action_ = nullptr;
  std::string_view opened_kind_;
  std::string_view opened_;
  std::unordered_map<uint32_t, Numbers> numbers_;  // by action-data table
};

}  // namespace

void save_image(const Device &device, const TextSink &sink, ImagePart part) {
  ImageSaver(device, sink).save(part);
}

}  // namespace tesselctl

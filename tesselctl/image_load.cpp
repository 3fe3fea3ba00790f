#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <optional>

#include "soft_state.h"
#include "tesselctl/entry_line.hpp"
#include "tesselctl/image.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/status.hpp"
#include "tesselctl/value.hpp"
#include "tesselctl/value_scanner.hpp"

namespace tesselctl {

namespace {

// " name=value" words behind a value.
struct Attributes {
  explicit Attributes(ValueScanner scanner) {
    std::string_view rest = scanner.rest();
    size_t column = scanner.column();
    while (!rest.empty()) {
      const size_t blank = std::min(rest.find(' '), rest.size());
      if (blank != 0) words.push_back(split_assignment({rest.substr(0, blank), column}));
      const size_t skip = std::min(blank + 1, rest.size());
      rest.remove_prefix(skip);
      column += skip;
    }
  }

  const Word *find(std::string_view name) const {
    for (const Assignment &word : words) {
      if (word.name.text == name) return &word.value;
    }
    return nullptr;
  }
  uint64_t number(std::string_view name, uint64_t limit, uint64_t otherwise) const {
    const Word *word = find(name);
    return word == nullptr ? otherwise : parse_limited(*word, limit, std::string(name));
  }
  void refuse_others(std::initializer_list<std::string_view> names) const {
    for (const Assignment &word : words) {
      if (std::find(names.begin(), names.end(), word.name.text) == names.end()) {
        throw Fault(word.name, "nothing of this name belongs here");
      }
    }
  }

  std::vector<Assignment> words;
};

constexpr uint64_t kMost32 = 0xffffffffu;

// The calls that add an entry with one action, or set it as the default.
struct ActionCalls {
  const bindings::Record *action;
  std::optional<Call> add;
  std::optional<Call> set_default;
};

class ImageLoader {
 public:
  explicit ImageLoader(const Device &device) : device_(device) {}

  // Throws Fault with the column in the line.
  void line(std::string_view text) {
    ++counts.lines;
    const size_t blank = std::min(text.find(' '), text.size());
    const Word keyword = {text.substr(0, blank), 1};
    line_word_ = keyword;
    const size_t behind = std::min(blank + 1, text.size());
    ValueScanner rest(text.substr(behind), behind + 1);
    if (counts.lines == 1) return read_first(keyword, rest);
    if (ended_) throw Fault(keyword, "nothing should follow the line 'end'");
    for (const Reader &reader : readers()) {
      if (keyword.text != reader.keyword) continue;
      if (reader.section != Section::any && reader.section != section_) {
        throw Fault(keyword, "this does not belong here");
      }
      return (this->*reader.read)(rest);
    }
    throw Fault(keyword, "an image has no such line");
  }

  void finish() const {
    if (ended_) return;
    throw Fault({"end of file", 1}, "the image is not whole: the line 'end' is missing");
  }

  LoadCounts counts;

 private:
  enum class Section { any, none, profile, table, counter, meter, reg, hash, value_set };
  struct Reader {
    std::string_view keyword;
    Section section;
    void (ImageLoader::*read)(ValueScanner &rest);
  };
  static std::span<const Reader> readers();

  void refused(uint64_t status) const { check(status, line_word_); }
  static Word word_of(const ValueScanner &rest) { return {rest.rest(), rest.column()}; }

  void read_first(Word keyword, ValueScanner &rest) const {
    if (keyword.text != "tesselctl" || !rest.accept("image ")) {
      throw Fault(keyword, "this is no image of tesselctl");
    }
    const Word version = word_of(rest);
    if (rest.decimal() != kImageVersion) {
      throw Fault(version, fmt::format("this tool reads images of version {}", kImageVersion));
    }
    rest.expect(" ");
    if (rest.rest() != program().name) {
      throw Fault(word_of(rest), std::string("the device runs ") + program().name);
    }
  }
  void read_pipes(ValueScanner &rest) {
    const Word word = word_of(rest);
    if (parse_limited(word, 8, "pipes") != device_.pipes()) {
      throw Fault(word, fmt::format("the device has {} pipes", device_.pipes()));
    }
  }
  void read_end(ValueScanner &rest) {
    const Word word = word_of(rest);
    if (parse_limited(word, ~uint64_t{0}, "the number of lines") != counts.lines - 1) {
      throw Fault(word, fmt::format("there are {} lines before this one", counts.lines - 1));
    }
    ended_ = true;
  }

  // ---- Sections ----

  void open_profile(ValueScanner &rest) {
    section_ = Section::profile;
    profile_ = &resolve_object<soft_profile_t>(word_of(rest), "profile");
    numbers_ = &profile_numbers_[profile_->action_data_table];
  }
  void open_table(ValueScanner &rest) {
    section_ = Section::table;
    table_ = resolve_table(word_of(rest));
    key_.assign(table_->record->size, 0);
    actions_.clear();
    if (table_->indirect()) numbers_ = &profile_numbers_[table_->description->action_data_table];
  }
  void open_counter(ValueScanner &rest) {
    section_ = Section::counter;
    object_ = resolve_object<soft_counter_t>(word_of(rest), "counter").name;
  }
  void open_meter(ValueScanner &rest) {
    section_ = Section::meter;
    object_ = resolve_object<soft_meter_t>(word_of(rest), "meter").name;
  }
  void open_register(ValueScanner &rest) {
    section_ = Section::reg;
    register_ = &resolve_object<soft_register_t>(word_of(rest), "register");
  }
  void open_hash(ValueScanner &rest) {
    section_ = Section::hash;
    object_ = resolve_object<soft_hash_t>(word_of(rest), "hash calculation").name;
  }
  void open_value_set(ValueScanner &rest) {
    section_ = Section::value_set;
    object_ = resolve_object<soft_value_set_t>(word_of(rest), "value set").name;
  }

  // ---- Profiles ----

  uint32_t number_in(ValueScanner &rest, const std::map<uint32_t, uint32_t> &taken) const {
    const Word word = word_of(rest);
    const int64_t number = rest.decimal();
    if (number <= 0) throw Fault(word, "numbers begin with 1");
    if (taken.contains(static_cast<uint32_t>(number))) throw Fault(word, "this number is taken");
    return static_cast<uint32_t>(number);
  }
  static uint32_t handle_of(const std::map<uint32_t, uint32_t> &handles, uint64_t number,
                            Word word) {
    const auto found = handles.find(static_cast<uint32_t>(number));
    if (number <= kMost32 && found != handles.end()) return found->second;
    throw Fault(word, "nothing of this number came before");
  }

  void read_member(ValueScanner &rest) {
    const uint32_t number = number_in(rest, numbers_->members);
    rest.expect(" (");
    const Word name = word_of(rest);
    const std::string_view action = rest.quoted();
    const bindings::Export *add = find_export("add_member", profile_->name, action);
    if (add == nullptr) throw Fault(name, "the profile has no action of this name");
    const bindings::Record &record = action_record(action);
    rest.expect(",(");
    parameters_.assign(record.size + 1, 0);
    rest.record(record, parameters_.data());
    rest.expect(")),");
    Attributes(rest).refuse_others({});
    p4_pd_member_handle_t member = 0;
    Call call = device_.prepare(*add);
    call.set_if_taken("action_spec", static_cast<const void *>(parameters_.data()));
    refused(call.set("member", &member).run());
    numbers_->members.emplace(number, member);
    ++counts.members;
  }

  // The numbers of a list "1,2,3"; empty for no list.
  static std::vector<uint64_t> list_of(const Word *word) {
    std::vector<uint64_t> numbers;
    if (word == nullptr || word->text.empty()) return numbers;
    Word rest = *word;
    while (true) {
      const size_t comma = std::min(rest.text.find(','), rest.text.size());
      numbers.push_back(parse_limited(rest.first(comma), kMost32, "a number"));
      if (comma == rest.text.size()) return numbers;
      rest = rest.from(comma + 1);
    }
  }

  void read_group(ValueScanner &rest) {
    const uint32_t number = number_in(rest, numbers_->groups);
    const Attributes words(rest);
    words.refuse_others({"size", "members", "inactive"});
    p4_pd_group_handle_t group = 0;
    Call create = device_.prepare("create_group", profile_->name);
    create.set("max_size", words.number("size", kMost32, 0)).set("group", &group);
    refused(create.run());
    numbers_->groups.emplace(number, group);
    ++counts.groups;
    for (const char *name : {"members", "inactive"}) {
      const Word *word = words.find(name);
      const bool join = std::string_view(name) == "members";
      Call call =
          device_.prepare(join ? "add_member_to_group" : "group_member_state_set", profile_->name);
      call.set("group", uint64_t{group});
      if (!join) call.set("state", uint64_t{P4_PD_GRP_MBR_STATE_INACTIVE});
      for (const uint64_t member : list_of(word)) {
        call.set("member", uint64_t{handle_of(numbers_->members, member, *word)});
        refused(call.run());
      }
    }
  }

  void read_fallback(ValueScanner &rest) {
    const Word word = word_of(rest);
    Call call = device_.prepare("set_dynamic_action_selection_fallback_member", profile_->name);
    call.set("member", uint64_t{handle_of(numbers_->members,
                                          parse_limited(word, kMost32, "the number"), word)});
    refused(call.run());
  }

  // ---- Tables ----

  ActionCalls &calls_of(std::string_view action, Word word) {
    for (ActionCalls &known : actions_) {
      if (action == known.action->name) return known;
    }
    const bindings::Export *add = find_export("table_add", table_->name(), action);
    const bindings::Export *set = find_export("set_default_action", table_->name(), action);
    if (add == nullptr && set == nullptr) throw Fault(word, "the table has no action of this name");
    ActionCalls calls = {&action_record(action), {}, {}};
    if (add != nullptr) calls.add = device_.prepare(*add);
    if (set != nullptr) calls.set_default = device_.prepare(*set);
    return actions_.emplace_back(std::move(calls));
  }

  // The member or group that an entry of a bound table names.
  struct Bound {
    bool is_group = false;
    uint32_t handle = 0;
  };
  std::optional<Bound> read_bound(ValueScanner &rest) const {
    if (rest.accept(")")) return {};  // no member and no group
    const bool is_group = rest.accept("('setGrpHdl',(");
    if (!is_group) rest.expect("('setMbrHdl',(");
    const Word word = word_of(rest);
    const uint64_t number = rest.hexadecimal();
    rest.expect(",)))");
    return Bound{is_group,
                 handle_of(is_group ? numbers_->groups : numbers_->members, number, word)};
  }

  // An entry or default entry: its line behind the keyword.
  struct EntryLineRead {
    bool has_key = false;
    ActionCalls *calls = nullptr;
    std::optional<Bound> bound;
    uint32_t priority = 0;
  };
  EntryLineRead read_value(ValueScanner &rest) {
    EntryLineRead entry;
    rest.expect("((");
    entry.has_key = !rest.accept("(),");
    if (entry.has_key) {
      if (!table_->keyed()) throw Fault(word_of(rest), "the table has no key");
      rest.expect("( ");
      rest.record(*table_->record, key_.data());
      rest.expect("),");
    }
    if (table_->indirect()) {
      entry.bound = read_bound(rest);
    } else {
      rest.expect("(");
      const Word name = word_of(rest);
      entry.calls = &calls_of(rest.quoted(), name);
      rest.expect(",(");
      const bindings::Record &record = *entry.calls->action;
      if (parameters_.size() <= record.size) parameters_.resize(record.size + 1);
      rest.record(record, parameters_.data());
      rest.expect(")),)");
    }
    rest.expect(",(");
    entry.priority = static_cast<uint32_t>(rest.decimal());
    rest.expect(",True))");
    return entry;
  }

  void set_counter(const Attributes &words, uint32_t entry) const {
    p4_pd_counter_values_t values = {};
    values.packets = words.number("packets", ~uint64_t{0}, 0);
    values.bytes = words.number("bytes", ~uint64_t{0}, 0);
    if ((values.packets | values.bytes) == 0) return;
    for (const soft_counter_t &counter : program_rows<soft_counter_t>()) {
      if (counter.table != table_->description->handle) continue;
      Call call = device_.prepare("counter_write", counter.name);
      refused(call.set("entry", uint64_t{entry}).set("values", &values).run());
    }
  }

  void read_entry(ValueScanner &rest) {
    const EntryLineRead entry = read_value(rest);
    if (!entry.has_key) throw Fault(line_word_, "an entry has a key");
    const Attributes words(rest);
    words.refuse_others({"ttl", "meter", "packets", "bytes"});
    const Word *meter = words.find("meter");
    const p4_pd_bytes_meter_spec_t spec =
        meter != nullptr ? parse_meter(*meter) : p4_pd_bytes_meter_spec_t{};
    p4_pd_entry_handle_t handle = 0;
    Call call = add_call(entry);
    call.set("match_spec", key_.data()).set("entry", &handle);
    call.set_if_taken("action_spec", static_cast<const void *>(parameters_.data()));
    call.set_if_taken("priority", uint64_t{entry.priority});
    call.set_if_taken("ttl", words.number("ttl", kMost32, 0));
    call.set_if_taken("meter_spec", static_cast<const void *>(meter != nullptr ? &spec : nullptr));
    refused(call.run());
    ++counts.entries;
    set_counter(words, handle);
  }

  Call add_call(const EntryLineRead &entry) const {
    if (!table_->indirect()) {
      if (!entry.calls->add) throw Fault(line_word_, "the action is for default entries only");
      return *entry.calls->add;
    }
    if (!entry.bound) throw Fault(line_word_, "the entry names no member and no group");
    Call call = device_.prepare(entry.bound->is_group ? "add_entry_with_selector" : "add_entry",
                                table_->name());
    return call.set(entry.bound->is_group ? "group" : "member", uint64_t{entry.bound->handle});
  }

  void read_default(ValueScanner &rest) {
    const EntryLineRead entry = read_value(rest);
    if (entry.has_key) throw Fault(line_word_, "a default entry has no key");
    const Attributes words(rest);
    words.refuse_others({"meter", "packets", "bytes"});
    const Word *meter = words.find("meter");
    const p4_pd_bytes_meter_spec_t spec =
        meter != nullptr ? parse_meter(*meter) : p4_pd_bytes_meter_spec_t{};
    p4_pd_entry_handle_t handle = 0;
    if (table_->indirect() && !entry.bound) return;
    Call call = default_call(entry);
    call.set("entry", &handle);
    call.set_if_taken("action_spec", static_cast<const void *>(parameters_.data()));
    call.set_if_taken("meter_spec", static_cast<const void *>(meter != nullptr ? &spec : nullptr));
    refused(call.run());
    set_counter(words, handle);
  }

  Call default_call(const EntryLineRead &entry) const {
    if (!table_->indirect()) {
      if (!entry.calls->set_default) throw Fault(line_word_, "the action cannot be the default");
      return *entry.calls->set_default;
    }
    const bool is_group = entry.bound->is_group;
    Call call = device_.prepare(is_group ? "set_default_entry_with_selector" : "set_default_entry",
                                table_->name());
    return call.set(is_group ? "group" : "member", uint64_t{entry.bound->handle});
  }

  void read_ageing(ValueScanner &rest) {
    if (!table_->ages()) throw Fault(line_word_, "the table does not age its entries");
    const Attributes words(rest);
    words.refuse_others({"mode", "sweep", "max", "min", "ttl"});
    p4_pd_idle_time_params_t params = {};
    params.mode = static_cast<uint32_t>(words.number("mode", 1, 0));
    params.sweep_interval_ms = static_cast<uint32_t>(words.number("sweep", kMost32, 0));
    params.max_ttl_ms = static_cast<uint32_t>(words.number("max", kMost32, 0));
    params.min_ttl_ms = static_cast<uint32_t>(words.number("min", kMost32, 0));
    params.default_ttl_ms = static_cast<uint32_t>(words.number("ttl", kMost32, 0));
    Call call = device_.prepare("idle_tmo_enable", table_->name());
    refused(call.set("params", &params).run());
  }

  // ---- Cells ----

  void read_cell(ValueScanner &rest) {
    const Word word = word_of(rest);
    const int64_t cell = rest.decimal();
    if (cell < 0) throw Fault(word, "cells are numbered from 0");
    rest.expect(" ");
    if (section_ == Section::counter) return read_counter_cell(static_cast<uint64_t>(cell), rest);
    if (section_ == Section::meter) return read_meter_cell(static_cast<uint64_t>(cell), rest);
    if (section_ != Section::reg) throw Fault(line_word_, "this does not belong here");
    write_register("register_write", rest, static_cast<uint64_t>(cell));
  }

  void read_counter_cell(uint64_t cell, const ValueScanner &rest) const {
    const Attributes words(rest);
    words.refuse_others({"pipe", "packets", "bytes"});
    p4_pd_counter_values_t values = {};
    values.packets = words.number("packets", ~uint64_t{0}, 0);
    values.bytes = words.number("bytes", ~uint64_t{0}, 0);
    const p4_pd_device_target_t target =
        device_.target_of(static_cast<uint32_t>(words.number("pipe", device_.pipes() - 1, 0)));
    Call call = device_.prepare("counter_write", object_);
    refused(call.set("target", &target).set("index", cell).set("values", &values).run());
  }

  void read_meter_cell(uint64_t cell, const ValueScanner &rest) const {
    const Attributes words(rest);
    words.refuse_others({"meter", "type"});
    const Word *meter = words.find("meter");
    if (meter == nullptr) throw Fault(line_word_, "meter= is missing");
    p4_pd_bytes_meter_spec_t spec = parse_meter(*meter);
    spec.meter_type =
        static_cast<uint32_t>(words.number("type", kMost32, PD_METER_TYPE_COLOR_UNAWARE));
    Call call = device_.prepare("meter_set", object_);
    refused(call.set("index", cell).set("meter_spec", &spec).run());
  }

  void read_all(ValueScanner &rest) { write_register("register_write_all", rest, {}); }

  // One value for every pipe, or one for all of them.
  void write_register(const char *family, const ValueScanner &rest, std::optional<uint64_t> cell) {
    const Word word = word_of(rest);
    const std::vector<uint64_t> values = list_of(&word);
    if (values.size() != device_.pipes()) {
      throw Fault(word, fmt::format("there should be {} values, one a pipe", device_.pipes()));
    }
    for (uint32_t pipe = 0; pipe < device_.pipes(); ++pipe) {
      const auto value = static_cast<uint32_t>(values[pipe]);
      if (register_->width < 32 && value >> register_->width != 0) {
        throw Fault(word, fmt::format("the cells have {} bits", register_->width));
      }
      const p4_pd_device_target_t target = device_.target_of(pipe);
      Call call = device_.prepare(family, register_->name);
      call.set("target", &target).set("value", &value);
      if (cell) call.set("index", *cell);
      refused(call.run());
    }
  }

  void read_seed(ValueScanner &rest) {
    const uint64_t seed = rest.hexadecimal();
    refused(device_.prepare("hash_calc_seed_set", object_).set("seed", seed).run());
  }

  void read_set_value(ValueScanner &rest) {
    const uint64_t value = rest.hexadecimal();
    const Attributes words(rest);
    words.refuse_others({"mask", "direction", "pipe", "parser"});
    p4_pd_parser_target_t target = {};
    target.device_id = device_.id();
    target.direction = static_cast<uint32_t>(words.number("direction", 1, 0));
    target.pipe_id = static_cast<uint16_t>(words.number("pipe", 0xffff, BF_ALL_PIPES));
    target.parser_id = static_cast<uint8_t>(words.number("parser", 0xff, SOFT_ALL_PARSERS));
    p4_pd_entry_handle_t entry = 0;
    Call call = device_.prepare("pvs_entry_add", object_);
    call.set("target", &target).set("value", value & kMost32).set("entry", &entry);
    refused(call.set("mask", words.number("mask", kMost32, kMost32)).run());
  }

  // Handles by the numbers of the image.
  struct Numbers {
    std::map<uint32_t, uint32_t> members;
    std::map<uint32_t, uint32_t> groups;
  };

  const Device &device_;
  Section section_ = Section::none;
  bool ended_ = false;
  Word line_word_;
  const soft_profile_t *profile_ = nullptr;
  const soft_register_t *register_ = nullptr;
  std::string_view object_;
  std::optional<TableInfo> table_;
  Numbers *numbers_ = nullptr;
  std::map<uint32_t, Numbers> profile_numbers_;  // by action-data table
  std::vector<ActionCalls> actions_;
  std::vector<uint8_t> key_;
  std::vector<uint8_t> parameters_ = std::vector<uint8_t>(1);
};

std::span<const ImageLoader::Reader> ImageLoader::readers() {
  static constexpr Reader kReaders[] = {
      {"entry", Section::table, &ImageLoader::read_entry},
      {"member", Section::profile, &ImageLoader::read_member},
      {"group", Section::profile, &ImageLoader::read_group},
      {"fallback", Section::profile, &ImageLoader::read_fallback},
      {"default", Section::table, &ImageLoader::read_default},
      {"ageing", Section::table, &ImageLoader::read_ageing},
      {"cell", Section::any, &ImageLoader::read_cell},
      {"all", Section::reg, &ImageLoader::read_all},
      {"seed", Section::hash, &ImageLoader::read_seed},
      {"value", Section::value_set, &ImageLoader::read_set_value},
      {"pipes", Section::none, &ImageLoader::read_pipes},
      {"profile", Section::any, &ImageLoader::open_profile},
      {"table", Section::any, &ImageLoader::open_table},
      {"counter", Section::any, &ImageLoader::open_counter},
      {"meter", Section::any, &ImageLoader::open_meter},
      {"register", Section::any, &ImageLoader::open_register},
      {"hash", Section::any, &ImageLoader::open_hash},
      {"valueset", Section::any, &ImageLoader::open_value_set},
      {"end", Section::any, &ImageLoader::read_end},
  };
  return kReaders;
}

}  // namespace

LoadCounts load_image(const Device &device, std::string_view file, const LineSource &lines) {
  ImageLoader loader(device);
  const auto at_line = [&](const Fault &fault, uint64_t line) {
    return Fault(fmt::format("{}:{}:{}: {}", file, line, fault.column(), fault.sentence()));
  };
  std::string_view text;
  while (lines(text)) {
    if (loader.counts.lines % 4096 == 0) check_interrupt();
    try {
      loader.line(text);
    } catch (const Fault &fault) {
      throw at_line(fault, loader.counts.lines);
    }
  }
  try {
    loader.finish();
  } catch (const Fault &fault) {
    throw at_line(fault, loader.counts.lines + 1);
  }
  return loader.counts;
}

}  // namespace tesselctl

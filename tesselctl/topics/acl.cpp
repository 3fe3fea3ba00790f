// Access rules from files.
#include <fmt/format.h>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_adder.hpp"
#include "tesselctl/program/value_range.hpp"
#include "tesselctl/state/save_point.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/progress.hpp"
#include "tesselctl/topics/bulk_load.hpp"

namespace tesselctl {

namespace {

constexpr uint64_t kBatch = 4096;

// In the order of bindings::Acl.
enum Part : size_t { kSource, kDestination, kSourcePort, kDestinationPort, kProtocol, kFlags };

const bindings::Acl &resolve_acl(Word table) {
  std::string names;
  for (const bindings::Acl &acl : binding().acls) {
    if (table.text == acl.table) return acl;
    names += fmt::format("{}{}", names.empty() ? "" : ", ", acl.table);
  }
  resolve_table(table);
  throw Fault(table, "the program has access rules in " + names);
}

// The words of a line of a file, one after the other:
//
//   @10.0.0.0/8 0.0.0.0/0 0 : 65535 80 : 80 0x06/0xFF 0x02/0x12
class RuleWords {
 public:
  RuleWords(std::string_view line, Words words) : line_(line), words_(words) {}

  bool at_end() const { return at_ == words_.size(); }
  Word next(std::string_view what) {
    if (!at_end()) return words_[at_++];
    throw Fault({"end of line", line_.size() + 1}, fmt::format("{} should follow", what));
  }
  void expect(std::string_view text) {
    const Word word = next(fmt::format("'{}'", text));
    if (word.text != text) throw Fault(word, fmt::format("'{}' should stand here", text));
  }

 private:
  std::string_view line_;
  Words words_;
  size_t at_ = 0;
};

// Turns the lines of a file into entries of one table.
class AclLoad {
 public:
  AclLoad(Context &context, const bindings::Acl &acl, EntryLine &line)
      : line_(line), first_(line.priority() ? line.priority()->value : 1) {
    line.need_key();
    line.refuse_label();
    line.set_priority(first_);
    for (size_t i = 0; i < std::size(acl.fields); ++i) {
      if (acl.fields[i] == nullptr) continue;
      fields_[i] = &find_field(*line.table().record, {acl.fields[i], 0}, acl.table);
      if (!line.key().is_given(*fields_[i])) continue;
      throw Fault(line.table_word(), fmt::format("each rule says its {}", fields_[i]->label));
    }
    adder_.emplace(context.device, line, context.settings.replace);
  }

  void load(const std::string &name, FileLines &lines, FaultReport &faults) {
    std::string_view text;
    std::vector<Word> words;
    for (uint64_t number = 1; lines.next(text); ++number) {
      if (number % kBatch == 0) check_interrupt();
      bool is_read = false;
      try {
        words.clear();
        split_words(text, words);
        if (words.empty()) continue;
        ++rules_;
        read_rule({text, words}, number);
        is_read = true;
        for (const AddedEntry &entry : adder_->run()) ++(entry.is_new ? added_ : modified_);
        ++done_;
      } catch (const Fault &fault) {
        // One of the device is about the words of the command.
        faults.add(name, number, is_read ? 0 : fault.column(),
                   is_read ? fault.message() : fault.sentence());
      }
    }
  }

  uint64_t rules() const { return rules_; }
  uint64_t done() const { return done_; }
  uint64_t added() const { return added_; }
  uint64_t modified() const { return modified_; }

 private:
  void read_rule(RuleWords words, uint64_t number) {
    const Word source = words.next("'@' and an address");
    if (!source.text.starts_with('@')) throw Fault(source, "a rule begins with '@'");
    put(kSource, parse_value(*fields_[kSource], source.from(1)));
    put(kDestination, parse_value(*fields_[kDestination], words.next("an address")));
    read_ports(kSourcePort, words);
    read_ports(kDestinationPort, words);
    put(kProtocol, read_bits(kProtocol, words.next("PROTOCOL/MASK")));
    read_flags(words);
    if (!words.at_end()) throw Fault(words.next(""), "nothing should stand here");
    if (number - 1 > 0xffffffffu - first_) throw Fault(source, "the priority is too large");
    line_.set_priority(first_ + static_cast<uint32_t>(number - 1));
  }

  void put(Part part, const FieldValue &value) { line_.key().put(*fields_[part], {value}); }

  void read_ports(Part part, RuleWords &words) {
    const Field &field = *fields_[part];
    const Word low = words.next("a port");
    words.expect(":");
    const Word high = words.next("a port");
    const ValueRange range = {parse_single(field, low), parse_single(field, high)};
    if (range.high < range.low) throw Fault(high, "the range ends before it begins");
    line_.key().put(field, prefixes_of(range, range_width(field)));
  }

  FieldValue read_bits(Part part, Word word) const {
    const size_t slash = word.text.find('/');
    if (slash == std::string_view::npos) throw Fault(word, "this should be VALUE/MASK");
    return parse_masked(*fields_[part], word, slash);
  }

  // Those that are left out may be any, as those with a mask of 0.
  void read_flags(RuleWords &words) {
    const Word word = words.at_end() ? Word{"0/0"} : words.next("");
    if (fields_[kFlags] != nullptr) return put(kFlags, read_bits(kFlags, word));
    const size_t slash = std::min(word.text.find('/'), word.text.size() - 1);
    if (parse_number(word.text.substr(slash + 1)) == Number()) return;
    throw Fault(word, fmt::format("{} does not match flags", line_.table().name()));
  }

  EntryLine &line_;
  uint32_t first_;  // the priority of line 1
  const Field *fields_[std::size(bindings::Acl().fields)] = {};
  std::optional<EntryAdder> adder_;
  uint64_t rules_ = 0;
  uint64_t done_ = 0;      // of them
  uint64_t added_ = 0;     // entries
  uint64_t modified_ = 0;  // entries
};

// The words behind FILE with a table at their front.
std::vector<Word> entry_words(const Invocation &invocation) {
  std::vector<Word> words(invocation.arguments.begin() + 1, invocation.arguments.end());
  const bool has_table = !words.empty() && words[0].text.find('=') == std::string_view::npos;
  if (!has_table) words.insert(words.begin(), {binding().acls.front().table, 0});
  if (!has_table) words[0].column = invocation.command.column;
  return words;
}

void load_rules(Context &context, const Invocation &invocation) {
  const Word file = need_argument(invocation, 0, "the name of a file");
  const std::vector<Word> words = entry_words(invocation);
  const bindings::Acl &acl = resolve_acl(words[0]);
  EntryLine line(context, {invocation.command, words});
  AclLoad rules(context, acl, line);
  const std::string name(file.text);
  FileLines lines(context.path(file));
  const uint32_t table = line.table().record->number;
  const uint64_t before = memory_of(context.device.id(), table);
  Output report;
  Output errors;
  FaultReport faults(errors);
  const StopWatch watch;
  rules.load(name, lines, faults);
  const double seconds = watch.cpu_seconds();
  report.line("{}: {} rules", name, grouped(rules.rules()));
  report.line("{}", line.table().name());
  print_step(report, context.settings.replace ? "replaced" : "added",
             {rules.done(), rules.rules(), seconds});
  report.line("  entries   {:>10} added, {} modified", grouped(rules.added()),
              grouped(rules.modified()));
  print_memory(report, memory_of(context.device.id(), table) - before, rules.added());
  report.line("{} error{}", grouped(faults.count()), faults.count() == 1 ? "" : "s");
  faults.finish();
  context.results.text(report.take());
  if (faults.count() == 0) return;
  throw Fault(fmt::format("not every rule could be added{}:\n{}",
                          context.settings.atomic ? ", so the device is as it was" : "",
                          errors.take()));
}

void acl(Context &context, const Invocation &invocation) {
  const bool is_atomic = context.settings.atomic && !context.is_trial;
  all_or_nothing(is_atomic, context.device, [&] { load_rules(context, invocation); });
}

constexpr Command kCommands[] = {
    {"acl", "FILE [TABLE] [FIELD=VALUE...] [priority=N] [ttl=MS] [meter=CIR,CBS,PIR,PBS] OUTCOME",
     "adds a file of access rules, whose lines say the priorities", acl, Kind::changes,
     "--replace --atomic"},
};

bool has_acl() { return !has_program() || !binding().acls.empty(); }

}  // namespace

extern const Topic kAclTopic = {
    .title = "Access rules", .commands = kCommands, .is_there = has_acl};

}  // namespace tesselctl

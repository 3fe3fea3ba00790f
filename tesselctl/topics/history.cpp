// What the journal of a served device has: who changed what, and taking it back.
#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <utility>

#include "tesselctl/command/topic.hpp"
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/state/save_point.hpp"

namespace tesselctl {

namespace {

Journal &need_journal(const Context &context, const Invocation &invocation) {
  if (context.journal != nullptr) return *context.journal;
  throw Fault(invocation.command,
              "there is no journal here: serve the device with --journal FILE, and give this "
              "command on a line of its own");
}

// The objects of any kind that have the name. Throws Fault when none has.
void check_object(Word word) {
  const std::vector<std::string_view> names = names_of_objects();
  if (std::ranges::find(names, word.text) == names.end()) throw_unknown(word, "object", names);
}

// "[OBJECT [FIELD=VALUE...]]"; the values are filters.
void history(Context &context, const Invocation &invocation) {
  const Journal &journal = need_journal(context, invocation);
  Results &results = context.results;
  std::string_view object;
  for (const Word &word : invocation.arguments) {
    if (&word == &invocation.arguments.front()) {
      check_object(word);
      object = word.text;
    } else {
      const Assignment value = split_assignment(word);
      results.add_filter({std::string(value.name.text), std::string(value.value.text)});
    }
  }
  const auto row_of = [](const Journaled &change, const Row &item) {
    Row row;
    row.number("number", change.number).text("when", change.time).text("who", change.client);
    return row.append(item).text("command", change.command);
  };
  results.expect(row_of({}, {}));
  expect_changes(results, object);
  JournalReader reader;
  journal.read(
      reader, [](uint64_t) { return true; },
      [&](const Journaled &journaled) {
        check_interrupt();
        std::string head = fmt::format("{} {} {} {}\n", journaled.number, journaled.time,
                                       journaled.client, journaled.command);
        for (const Change &change : journaled.changes) {
          if (!object.empty() && object != change.part->object) continue;
          for_each_row(change, [&](const Row &row) {
            results.row(row_of(journaled, row), head + "  " + row.words());
            head.clear();
          });
        }
        reader.forget();
      });
}

// The changes of those numbers, the oldest first; as long as the reader.
std::vector<Change> changes_of(const Journal &journal, JournalReader &reader,
                               const std::set<uint64_t> &numbers) {
  std::vector<Change> changes;
  journal.read(
      reader, [&](uint64_t number) { return numbers.contains(number); },
      [&](const Journaled &change) {
        changes.insert(changes.end(), change.changes.begin(), change.changes.end());
      });
  return changes;
}

// Of the device, or of a copy to try on.
void take_back(const Context &context, Journal &journal, const std::vector<Change> &changes) {
  auto *const recorder = dynamic_cast<Recorder *>(journal.device().listener());
  if (recorder == dynamic_cast<Recorder *>(context.device.listener())) {
    return all_or_nothing(true, context.device, [&] { recorder->invert(changes); });
  }
  Recorder trial(context.device);
  trial.numbering() = recorder->numbering();
  trial.invert(changes);
}

void undo(Context &context, const Invocation &invocation) {
  refuse_arguments_from(invocation, 1);
  Journal &journal = need_journal(context, invocation);
  const Word word = invocation.arguments.empty() ? Word{"1", 0} : invocation.arguments[0];
  const uint64_t count = parse_limited(word, ~uint64_t{0}, "the number of commands", 1);
  const std::vector<uint64_t> standing = journal.standing();
  if (count > standing.size()) {
    const std::string most =
        standing.empty() ? "no command" : fmt::format("only the last {}", standing.size());
    throw Fault(invocation.command, most + " can be taken back, by what the journal's files have");
  }
  const std::set<uint64_t> numbers(standing.end() - static_cast<ptrdiff_t>(count), standing.end());
  JournalReader reader;
  std::vector<Change> changes = changes_of(journal, reader, numbers);
  take_back(context, journal, changes);
  if (context.device.listener() == journal.device().listener()) journal.set_undone(count);
  std::ranges::reverse(changes);
  for (Change &change : changes) change = change.inverse();
  print_changes(context.results, context.settings.count, changes);
}

void offer_objects_of_kinds(Offers &offers, const Context &, const Command &, Words) {
  const ObjectKind *last = nullptr;
  for (const ItemKind *kind : kinds()) {
    const bool is_new = std::exchange(last, &kind->object) != &kind->object;
    for (size_t i = 0; is_new && kind->object.name(i) != nullptr; ++i) {
      offers.offer(kind->object.name(i), std::string(kind->object.noun));
    }
  }
}

void choose(Subject &subject, std::string_view name) {
  if (const soft_table_t *table = find_object<soft_table_t>(name)) {
    choose_table(subject, resolve_table({table->name, 0}));
  }
}

constexpr ObjectWord kWords[] = {{"OBJECT", offer_objects_of_kinds, choose}};

constexpr Command kCommands[] = {
    {"history", "[OBJECT [FIELD=VALUE...]]",
     "prints who changed what in a device with a journal, or in an object or entry of it", history,
     Kind::asks, "--count --filter --sort"},
    {"undo", "[N]", "takes back the last command, or the last N, of a device with a journal", undo,
     Kind::changes, "--count"},
};

}  // namespace

extern const Topic kHistoryTopic = {"Journal", kCommands, kWords};

}  // namespace tesselctl

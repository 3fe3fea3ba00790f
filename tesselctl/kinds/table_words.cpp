// The words of grammars that stand for tables and actions.
#include "tesselctl/command/subject.hpp"

namespace tesselctl {

namespace {

std::string table_help(const TableInfo &table) {
  static constexpr const char *kMatches[] = {"exact", "ternary", "prefix"};
  if (!table.keyed()) return "no key";
  std::string text = kMatches[std::min<size_t>(table.description->match, 2)];
  text += ":";
  for (const Field &field : table.record->shown()) text += " " + std::string(field.label);
  return text;
}

void offer_tables(Offers &offers, const Command &command, Words given) {
  const bool only_ageing = command.first_word() == "age";
  for (const bindings::Record &record : tables()) {
    if (!offers.begins(record.name)) continue;
    const bool is_given = std::any_of(given.begin(), given.end(),
                                      [&](const Word &word) { return word.text == record.name; });
    const TableInfo table = resolve_table({record.name, 0});
    if (!is_given && (!only_ageing || table.ages())) offers.offer(record.name, table_help(table));
  }
}

void choose(Subject &subject, std::string_view name) {
  for (const bindings::Record &record : tables()) {
    if (name == record.name) choose_table(subject, resolve_table({record.name, 0}));
  }
}

void offer_all_actions(Offers &offers, const Command &, Words) {
  for (const bindings::Record &record : actions()) offers.offer(record.name, "an action");
}

constexpr ObjectWord kWords[] = {{"TABLE", offer_tables, choose}, {"ACTION", offer_all_actions}};

}  // namespace

std::span<const ObjectWord> table_words() { return kWords; }

}  // namespace tesselctl

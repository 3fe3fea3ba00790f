// One packet through several tables: what each finds, runs and hands on.
#include <fmt/format.h>

#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/completion/field_offers.hpp"
#include "tesselctl/explain/nearest.hpp"
#include "tesselctl/explain/walk.hpp"
#include "tesselctl/program/record.hpp"

namespace tesselctl {

namespace {

constexpr std::string_view kOptions[] = {"pipe", "hash"};
// Groups of the rows.
constexpr std::string_view kAsked = "asked";
constexpr std::string_view kHandsOn = "hands_on";

void add_asked(Row &row, const Field &field, const PathKey &key) {
  Field one = field;
  one.match = Match::exact;
  const Number value = load_value(field, key.data()).value;
  row.field(kAsked, field.label, format_value(one, {value, low_ones(field.width)}), {});
}

// What is printed of a table: a heading, and lines of a label and a text below it; in JSON a row.
class VisitPrinter {
 public:
  VisitPrinter(Context &context, const Path &path, const std::vector<Visited> &visits)
      : context_(context), path_(path), visits_(visits) {}

  void print(size_t at) {
    const Visited &visit = visits_[at];
    const TableInfo &table = path_.stops()[at].table;
    row_ = {};
    text_ = context_.out.styled(Style::heading, table.name());
    row_.object("table", table.name());
    Row asked;
    for (const Field &field : table.record->shown()) {
      if (visit.key.origin_of(field).kind != Origin::nowhere) add_asked(asked, field, visit.key);
    }
    if (!asked.items().empty()) text_ += " " + asked.words();
    row_.append(asked);
    print_found(visit, table);
    print_handed_on(at);
    const bool is_miss = visit.found == Found::by_default || visit.found == Found::nothing;
    std::vector<NearEntry> nearest;
    if (is_miss && table.keyed()) {
      nearest = nearest_entries(context_.device, table, visit.key.data(), path_.stops()[at].word);
      if (nearest.empty()) line("nearest", "none, the table has no entries");
    }
    context_.results.row(row_, text_);
    for (const NearEntry &near : nearest) print_near(near, visit, table);
  }

  // Where the path ends: at the last table that was looked up.
  void print_end() {
    size_t last = visits_.size();
    while (--last != 0 && visits_[last].found == Found::skipped) {
    }
    const Visited &visit = visits_[last];
    Row row;
    row.text("ends", path_.stops()[last].table.name());
    Row action;
    if (!visit.action().empty()) add_action(action, visit.action());
    const std::string_view none =
        visit.found == Found::nothing ? "no entry is hit" : "no action runs";
    context_.results.summary(
        row.append(action),
        fmt::format("ends at {}: {}", path_.stops()[last].table.name(),
                    action.items().empty() ? none : std::string_view(action.words())));
  }

 private:
  void line(std::string_view label, std::string_view text) {
    text_ += context_.settings.terse ? fmt::format(" {} {}", label, text)
                                     : fmt::format("\n  {:<9} {}", label, text);
  }

  void print_found(const Visited &visit, const TableInfo &table) {
    static constexpr const char *kFound[] = {"hit", "default", "miss", "skipped"};
    const char *const found = kFound[static_cast<size_t>(visit.found)];
    row_.choice("result", found);
    if (visit.found == Found::skipped) {
      const std::string unset = labels_of(visit.key.unknown_fields(false), ",");
      row_.text("unset", unset);
      return line(found, "nothing has set " + unset);
    }
    if (visit.found == Found::nothing) {
      line(found, "no entry, and no default entry");
    } else {
      const Row entry = entry_of(visit, table);
      row_.append(entry);
      line(found, entry.words());
    }
    const std::string zeroes = labels_of(visit.key.unknown_fields(true), ",");
    if (zeroes.empty()) return;
    row_.text("not_given", zeroes);
    line("not given", zeroes + ": taken as 0");
  }

  static Row entry_of(const Visited &visit, const TableInfo &table) {
    Row row;
    if (visit.found == Found::hit) row.number("entry", visit.entry);
    add_entry(row, table, visit.item.view(), Naming::handles);
    if (head_of(visit.item.value).outcome == EntryHead::kGroup) {
      visit.member != 0 ? row.number("member", visit.member) : row.choice("member", "none");
    }
    if (!visit.of_member.empty()) add_action(row, visit.of_member);
    return row;
  }

  // The parameters that are values of later keys, as far as no action between changed them.
  void print_handed_on(size_t at) {
    const std::string_view action = visits_[at].action();
    if (action.empty()) return;
    Row parameters;
    add_action(parameters, action);
    for (const Field &parameter : action_of_number(head_of(action).number).shown()) {
      const std::string places = places_of(at, parameter);
      if (places.empty()) continue;
      row_.field(kHandsOn, parameter.label, places, {});
      line("hands on",
           fmt::format("{} -> {}", item_words(*parameters.find(parameter.label)), places));
    }
  }

  std::string places_of(size_t at, const Field &parameter) const {
    std::string places;
    for (size_t i = at + 1; i < visits_.size(); ++i) {
      const TableInfo &table = path_.stops()[i].table;
      for (const Field &field : table.record->shown()) {
        const Origin &origin = visits_[i].key.origin_of(field);
        const bool is_its =
            origin.kind == Origin::action && origin.stop == at && origin.parameter == &parameter;
        if (!is_its) continue;
        places += fmt::format("{}{}.{}", places.empty() ? "" : ",", table.name(), field.label);
      }
    }
    return places;
  }

  void print_near(const NearEntry &near, const Visited &visit, const TableInfo &table) {
    Row entry;
    entry.number("entry", near.entry);
    add_key(entry, table, near.item.view());
    Row asked;
    for (const Field *field : near.differing) add_asked(asked, *field, visit.key);
    text_ = table.name();
    line("nearest", fmt::format("{} not {}", entry.words(), asked.words()));
    // The table stands above.
    if (!context_.settings.terse) text_.erase(0, text_.find('\n') + 1);
    row_ = {};
    row_.object("table", table.name()).choice("result", "nearest").append(entry).append(asked);
    context_.results.row(row_, text_);
  }

  Context &context_;
  const Path &path_;
  const std::vector<Visited> &visits_;
  Row row_;
  std::string text_;
};

void explain(Context &context, const Invocation &invocation) {
  const Path path(context, invocation.arguments, kOptions);
  path.check(invocation.command);
  const Options options({invocation.command, path.options()}, 0, kOptions);
  const Packet packet = {.pipe = pipe_of(context, options, 0),
                         .hash = static_cast<uint32_t>(options.number_or("hash", 0xffffffffu, 0))};
  const std::vector<Visited> visits = walk(context.device, path, packet);
  VisitPrinter printer(context, path, visits);
  for (size_t i = 0; i < visits.size(); ++i) printer.print(i);
  printer.print_end();
}

void list_paths(Context &context, const Invocation &invocation) {
  refuse_arguments_from(invocation, 0);
  const PathFile file = PathFile::of(context);
  for (const NamedPath &path : file.paths()) {
    const std::string words = path.joined_words();
    Row row;
    row.object("path", path.name).text("words", words);
    context.results.row(row, fmt::format("path {} = {}", path.name, words));
  }
}

// ---- Completion ----

void offer_paths(Offers &offers, const Context &context, const Command &, Words) {
  const PathFile file = PathFile::of(context);
  for (const NamedPath &path : file.paths()) offers.offer(path.name, path.joined_words());
}

// The fields that are wanted next, those first that must be given; behind a name what its value can
// be.
void offer_fields(Offers &offers, const Context &context, Words given, std::string_view name) {
  const Path path(context, given, kOptions);
  for (const Stop &stop : path.stops()) {
    const Field *field = find_field(*stop.table.record, name);
    if (field != nullptr) return offers.hint(field_help(*field, false));
  }
  std::vector<std::string_view> seen;
  for (const bool may_be_left_out : {false, true}) {
    for (size_t i = 0; i < path.stops().size(); ++i) {
      for (const Field *field : path.fullest_key(i).unknown_fields(may_be_left_out)) {
        if (std::ranges::find(seen, field->label) != seen.end()) continue;
        seen.push_back(field->label);
        offers.offer(
            std::string(field->label) + (name.empty() ? "=" : ""),
            fmt::format("{}, of {}{}", field_help(*field, false), path.stops()[i].table.name(),
                        may_be_left_out ? "; may be left out" : ""));
      }
    }
  }
}

constexpr ObjectWord kWords[] = {{"PATH", offer_paths}};

constexpr Command kCommands[] = {
    {.name = "explain",
     .arguments = "TABLE|PATH... FIELD=VALUE|PARAM=FIELD... [pipe=N] [hash=N]",
     .summary = "follows a packet through tables, and shows what each finds and hands on",
     .run = explain,
     .offer_fields = offer_fields},
    {"paths", "", "lists the named paths of --paths", list_paths, Kind::lists},
};

}  // namespace

extern const Topic kExplainTopic = {"Packets", kCommands, kWords};

}  // namespace tesselctl

// One name and one notation for a value, wherever it is printed, offered or read.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <set>

#include "tesselctl/completion/completion.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

using Names = std::set<std::string, std::less<>>;

std::vector<std::string> words_of(std::string_view line) {
  std::vector<std::string> words;
  std::vector<Word> split;
  split_words(line.substr(0, line.find('\n')), split);
  for (const Word &word : split) words.emplace_back(word.text);
  return words;
}

class NamesTest : public ToolTest {
 protected:
  ~NamesTest() override { remove(image_.c_str()); }

  // Values that are not 0, as the fields' names and notations have them.
  static std::string values(const bindings::Record &record) {
    std::string text;
    for (const Field &field : record.shown()) {
      Number bit = 1;  // one that value strings hold
      while ((bit & key_bits(field)).is_zero()) bit = bit << 1;
      Number mask = low_ones(field.width);
      if (field.match == Match::ternary) mask = bit;
      if (field.match == Match::lpm) mask = bit = prefix_mask(1, field.width);
      text += fmt::format(" {}={}", field.label, format_value(field, {bit, mask}));
    }
    return text;
  }
  // The words that would add one entry, but for its action, and what it does.
  struct Line {
    std::string key;
    std::string outcome;
  };
  Line line_of(const TableInfo &table) {
    std::string key = values(*table.record);
    if (table.has_priority()) key += " priority=5";
    if (const soft_profile_t *profile = table.profile()) {
      const char *action = profile->actions[0].name;
      EXPECT_EQ(run(fmt::format("member add {} as=m action={}{}", profile->name, action,
                                values(action_record(action)))),
                "");
      return {key, " member=" + std::to_string(context_.labels["m"])};
    }
    const char *family = table.keyed() ? "table_add" : "set_default_action";
    // The action with the most to name.
    const bindings::Record *chosen = nullptr;
    for (uint32_t i = 0; i < table.description->action_count; ++i) {
      const bindings::Record &action = action_record(table.description->actions[i].name);
      if (find_export(family, table.name(), action.name) == nullptr) continue;
      if (chosen == nullptr || action.shown_count > chosen->shown_count) chosen = &action;
    }
    return {key, fmt::format(" action={}{}", chosen->name, values(*chosen))};
  }
  // The first words of rows of that kind.
  Names described(const std::string &table, std::string_view kind) {
    Names names;
    const std::string text = run("describe " + table + " --json");
    const std::string key = fmt::format("{{\"{}\":\"", kind);
    for (size_t at = 0; (at = text.find(key, at)) != std::string::npos;) {
      at += key.size();
      names.insert(text.substr(at, text.find('"', at) - at));
    }
    return names;
  }
  Names offered(const std::string &line) {
    Names names;
    for (const Candidate &candidate : complete(context_, line, line.size()).candidates) {
      names.insert(candidate.word.substr(0, candidate.word.find('=')));
    }
    return names;
  }
  void expect_same_everywhere(const TableInfo &table, const Line &line);

  std::string image_ = ::testing::TempDir() + "tesselctl_names.img";
};

// Names of the NAME=VALUE words.
Names names_in(const std::string &text) {
  Names names;
  for (const std::string &word : words_of(text)) {
    if (word.find('=') != std::string::npos) names.insert(word.substr(0, word.find('=')));
  }
  return names;
}

// The words without those that only some of the places print.
std::vector<std::string> common(const std::string &text) {
  std::vector<std::string> words = words_of(text);
  std::erase_if(words, [](const std::string &word) {
    return word == "ttl=0" || word == "meter=1,2,3,4" || word.starts_with("entry=") ||
           word == "+" || word == "default";
  });
  return words;
}

void NamesTest::expect_same_everywhere(const TableInfo &table, const Line &line) {
  const std::string name = table.name();
  const std::vector<std::string> written = words_of(name + line.key + line.outcome);
  EXPECT_EQ(common(run(fmt::format("show {} entry=$it", name))), written);
  EXPECT_EQ(common(run(fmt::format("display {} entry=$it", name))), written);
  const Names keys = names_in(values(*table.record));
  EXPECT_EQ(described(name, "field"), keys) << name;
  if (!table.keyed()) return;
  const Names offers = offered("add " + name + " ");
  EXPECT_TRUE(std::includes(offers.begin(), offers.end(), keys.begin(), keys.end())) << name;
  if (table.indirect()) return;
  const std::string action = words_of(line.outcome).front();
  const Names parameters = names_in(line.outcome.substr(1 + action.size()));
  const Names behind = offered(fmt::format("add {} {} ", name, action));
  EXPECT_TRUE(std::includes(behind.begin(), behind.end(), parameters.begin(), parameters.end()))
      << name;
  EXPECT_EQ(described(action.substr(7), "parameter"), parameters) << name;
}

TEST_F(NamesTest, OneEntryOfEachTableReadsTheSameInEveryPlace) {
  std::map<std::string, std::vector<std::string>> shown;
  ASSERT_EQ(run("save " + image_), "");
  for (const bindings::Record &record : tables()) {
    const TableInfo table = resolve_table({record.name, 0});
    const Line line = line_of(table);
    if (!table.keyed()) {
      ASSERT_EQ(run(fmt::format("default set {} as=it{}", table.name(), line.outcome)), "");
    } else {
      const bool metered =
          !table.indirect() &&
          Call(need_export("table_add", table.name(), words_of(line.outcome)[0].substr(7)))
              .takes("meter_spec");
      ASSERT_EQ(run(fmt::format("add {}{} as=it{}{}", table.name(), line.key,
                                metered ? " meter=1,2,3,4" : "", line.outcome)),
                "");
      if (!table.indirect()) shown[table.name()] = words_of(table.name() + line.key + line.outcome);
    }
    expect_same_everywhere(table, line);
  }
  // What the image of a device without them lacks is printed in the same words.
  size_t compared = 0;
  const std::string text = run("diff " + image_);
  for (size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
    const std::vector<std::string> words = common(text.substr(at, text.find('\n', at) - at));
    const auto found = words.empty() ? shown.end() : shown.find(words.front());
    if (found == shown.end()) continue;
    EXPECT_EQ(words, found->second);
    ++compared;
  }
  EXPECT_EQ(compared, shown.size());
  EXPECT_GT(compared, 80u);
}

TEST_F(NamesTest, NamesAreUniqueAndThoseOfBeforeAreAccepted) {
  size_t fields = 0;
  const auto sweep = [&](const bindings::Record &record) {
    for (const Field &field : record.field_list()) {
      EXPECT_EQ(&find_field(record, {field.label, 0}, record.name), &field) << record.name;
      EXPECT_EQ(&find_field(record, {field.name, 0}, record.name), &field) << record.name;
      ++fields;
    }
  };
  for (const bindings::RecordList *list :
       {&bindings::binding.tables, &bindings::binding.actions, &bindings::binding.digests,
        &bindings::binding.triggers, &bindings::binding.captures}) {
    std::for_each_n(list->rows, list->count, sweep);
  }
  EXPECT_GT(fields, 600u);
  const struct {
    const char *table;
    const char *before;
    const char *now;
  } renamed[] = {
      {"ingressPortDropCheck", "fromParserAuxIngressParserErr", "ingressParserErr"},
      {"qosRewrite", "forTmIngressCos", "ingressCos"},
      {"mcastPrune", "forTmMcastGrpA", "mcastGrpA"},
      {"finalDropControl", "forTmCopyToCpu", "copyToCpu"},
      {"cpuEncap", "vlanHdr0Valid", "vlanHdr0Valid"},
      {"l2Lookup", "dmacOui", "dmacOui"},
  };
  for (const auto &row : renamed) {
    const bindings::Record &table = resolve({row.table, 0}, tables(), "table");
    EXPECT_EQ(find_field(table, {row.before, 0}, row.table).label, row.now);
  }
}

}  // namespace
}  // namespace tesselctl

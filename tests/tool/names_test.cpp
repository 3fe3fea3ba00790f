// Every action of every table: its entry reads the same wherever it is printed, offered or read.
#include <fmt/format.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>

#include "tesselctl/completion/completion.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/program/value.hpp"
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
  uint64_t random() { return uint64_t{engine_()} << 32 | engine_(); }
  // Random values, as the fields' names and notations have them.
  std::string values(const bindings::Record &record) {
    std::string text;
    for (const Field &field : record.shown()) {
      const Number taken = key_bits(field);
      Number mask = low_ones(field.width);
      if (field.match == Match::ternary) mask = taken & Number(random(), random());
      if (mask.is_zero()) mask = taken;
      if (field.match == Match::lpm)
        mask = prefix_mask(static_cast<unsigned>(1 + engine_() % field.width), field.width);
      Number value = Number(random(), random()) & mask & taken;
      // Cells that every counter and meter of the device has.
      if (field.label.ends_with("Index")) value = value & low_ones(22);
      text += fmt::format(" {}={}", field.label, format_value(field, {value, mask}));
    }
    return text;
  }
  bool offers_all(const std::string &line, const Names &names) {
    Names offered;
    for (const Candidate &candidate : complete(context_, line, line.size()).candidates) {
      offered.insert(candidate.word.substr(0, candidate.word.find('=')));
    }
    return std::includes(offered.begin(), offered.end(), names.begin(), names.end());
  }
  void expect_same_everywhere(const std::string &entry, const std::string &written);
  void take_entry(const TableInfo &table, const std::string &outcome, const char *more);

  std::mt19937 engine_{2026};
  std::map<std::string, std::vector<std::string>> written_;  // entries by their keys
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

void NamesTest::expect_same_everywhere(const std::string &entry, const std::string &written) {
  for (const char *command : {"show ", "display "}) {
    EXPECT_EQ(common(run(command + entry)), words_of(written)) << command << entry;
  }
}

// An entry is added, found, read, modified, and deleted, and stays when it is added again.
void NamesTest::take_entry(const TableInfo &table, const std::string &outcome, const char *more) {
  const std::string name = table.name();
  const std::string key =
      name + values(*table.record) + (table.has_priority() ? " priority=5" : "");
  run("delete " + key);
  const std::string line = "add " + key + more + outcome;
  ASSERT_EQ(run(line + " as=it"), "") << line;
  expect_same_everywhere(name + " entry=$it", key + outcome);
  const std::string entry = fmt::format("{} entry={}", name, context_.labels["it"]);
  EXPECT_EQ(run("find " + key), entry + "\n") << line;
  for (const std::string &again :
       {"modify " + entry + outcome, "modify " + key + outcome, "delete " + key, line}) {
    EXPECT_EQ(run(again), "") << again;
  }
  if (!table.indirect()) written_[key] = words_of(key + outcome);  // diff has numbers of members
}

TEST_F(NamesTest, EveryActionOfEveryTableReadsTheSameInEveryPlace) {
  const std::string empty = ::testing::TempDir() + "tesselctl_names.img";
  ASSERT_EQ(run("save " + empty), "");
  size_t pairs = 0;
  for_each_export("table_add", [&](const bindings::Export &add) {
    const TableInfo table = resolve_table({add.object, 0});
    const std::string parameters = values(action_record(add.action));
    const std::string outcome = fmt::format(" action={}{}", add.action, parameters);
    take_entry(table, outcome, Call(add).takes("meter_spec") ? " meter=1,2,3,4" : "");
    const std::string line = fmt::format("add {} ", add.object);
    EXPECT_TRUE(offers_all(line, names_in(values(*table.record)))) << line;
    EXPECT_TRUE(offers_all(line + "action=" + add.action + " ", names_in(parameters))) << line;
    ++pairs;
  });
  EXPECT_EQ(pairs, 221u);
  for (const bindings::Record &record : tables()) {
    const TableInfo table = resolve_table({record.name, 0});
    const soft_profile_t *const profile = table.profile();
    if (table.keyed() && profile == nullptr) continue;
    const char *action =
        profile != nullptr ? profile->actions[0].name : table.description->actions[0].name;
    const std::string parameters = values(action_record(action));
    const std::string outcome = fmt::format(" action={}{}", action, parameters);
    const char *const made = profile != nullptr ? profile->name : record.name;
    const char *const command = profile != nullptr ? "member add" : "default set";
    ASSERT_EQ(run(fmt::format("{} {} as=it{}", command, made, outcome)), "");
    if (profile != nullptr) {
      take_entry(table, fmt::format(" member={}", context_.labels["it"]), "");
    } else {
      expect_same_everywhere(made + std::string(" entry=$it"), made + outcome);
    }
  }
  // A device without them is found to lack them in the same words, and an image brings them back.
  size_t compared = 0;
  const std::string text = run("diff " + empty);
  for (size_t at = 0; at < text.size(); at = text.find('\n', at) + 1) {
    const std::vector<std::string> words = common(text.substr(at, text.find('\n', at) - at));
    const auto same = [&](const auto &one) { return one.second == words; };
    compared += static_cast<size_t>(std::ranges::count_if(written_, same));
  }
  EXPECT_EQ(compared, written_.size());
  EXPECT_GT(compared, 200u);
  ASSERT_EQ(run("save " + empty), "");
  const Device other({.id = 9, .pipes = 2});
  ImageSource(empty, empty).load(other);
  EXPECT_EQ(image_of(other), image_of(device_));
  std::remove(empty.c_str());
}

}  // namespace
}  // namespace tesselctl

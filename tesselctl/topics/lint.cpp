// The command that looks for what is wrong with a device.
#include "tesselctl/lint/lint.hpp"
#include "tesselctl/command/command.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

namespace {

// The tables of those names, and the profiles that they are bound to.
std::set<std::string_view> objects_of(Words tables) {
  std::set<std::string_view> objects;
  for (const Word &word : tables) {
    const TableInfo table = resolve_table(word);
    objects.insert(table.name());
    if (table.profile() != nullptr) objects.insert(table.profile()->name);
  }
  return objects;
}

void expect_findings(Results &results, const std::set<std::string_view> &objects) {
  if (!results.asks_for_names()) return;
  Row row;
  for (const std::string_view check : kChecks) row.object("check", check);
  const auto is_wanted = [&](const char *name) {
    return objects.empty() || objects.contains(name);
  };
  for (const TableInfo &table : all_tables()) {
    if (!is_wanted(table.name())) continue;
    add_entry_samples(row.object("table", table.name()), table);
  }
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (!is_wanted(profile.name)) continue;
    add_member_samples(row.object("profile", profile.name).number("member", 0u), profile);
  }
  row.number("group", 0u).list("members", {}).list("inactive", {}).object("which", "default");
  results.expect(row.number("actions", uint64_t{0}));
}

void run_lint(Context &context, const Invocation &invocation) {
  const std::set<std::string_view> objects = objects_of(invocation.arguments);
  expect_findings(context.results, objects);
  lint(context.device, objects, [&](const Row &row) { context.results.row(row); });
  context.differs = context.results.passed() != 0;
}

constexpr Command kCommands[] = {
    {"lint", "[TABLE...]",
     "shows entries without effect, actions that lead nowhere, and members and groups without use",
     run_lint, Kind::asks, "--count --filter --sort"},
};

}  // namespace

extern const Topic kLintTopic = {"Comparing", kCommands};

}  // namespace tesselctl

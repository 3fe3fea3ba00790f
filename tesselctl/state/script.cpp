#include "tesselctl/state/script.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

std::string_view word_of(Numbered what) { return what == Numbered::groups ? "group" : "member"; }

}  // namespace

Script &Script::begin(std::string_view verb, std::string_view object) {
  line_ = verb;
  if (!object.empty()) line_ += ' ';
  line_ += object;
  return *this;
}

Script &Script::word(std::string_view name, std::string_view value) {
  line_ += ' ';
  line_ += name;
  line_ += '=';
  line_ += value;
  return *this;
}

Script &Script::number(std::string_view name, uint64_t value) {
  return word(name, fmt::format_int(value).str());
}

Script &Script::words(const Row &row, uint32_t profile) {
  for (const Item &item : row.items()) {
    if (item.kind == Item::Kind::object) continue;
    if (item.of.matches == matches_numbered) {
      const Numbered what = item.name == "group" ? Numbered::groups : Numbered::members;
      reference(what, profile, static_cast<uint32_t>(parse_number(item.value.substr(1))->low));
    } else {
      const bool is_taken = item.group == Row::kKey && is_entry_word(item.name);
      word(is_taken ? item.of.field : std::string_view(item.name), item.value);
    }
  }
  return *this;
}

Script &Script::reference(Numbered what, uint32_t profile, uint32_t number) {
  const auto found = names_.find({what, profile, number});
  if (found == names_.end()) return this->number(word_of(what), number);
  return word(word_of(what), found->second);
}

Script &Script::name(Numbered what, const ItemEdit &edit, uint32_t profile, uint32_t number) {
  const std::string name = fmt::format("{}.{}{}", edit.object, word_of(what), number);
  names_[{what, profile, number}] = "$" + name;
  return word("as", name);
}

void print_commands(Script &script, const ChangeStep &one) {
  const auto &[step, change] = one;
  const DeviceState::Part &part = *change->part;
  const auto was = change->before != nullptr ? std::optional(change->before->view()) : std::nullopt;
  part.access->print_commands(script,
                              {*part.kind, part.object, step.edit, was, change->item().view()});
}

namespace {

// From one state to another one.
class ScriptBetween : public Script {
 public:
  ScriptBetween(const DeviceState &before, const DeviceState &after, Results &results)
      : Script(results), before_(before), after_(after) {}

  Items after(const ItemEdit &edit, std::string_view keyword) override {
    return items(after_, edit, keyword);
  }
  bool differ(const ItemEdit &edit, std::string_view keyword) override {
    return !std::ranges::equal(items(before_, edit, keyword), items(after_, edit, keyword), {},
                               &ItemStore::Item::view, &ItemStore::Item::view);
  }

 private:
  static Items items(const DeviceState &state, const ItemEdit &edit, std::string_view keyword) {
    for (const auto &[place, part] : state.parts()) {
      const bool is_kind = &part.kind->object == &edit.kind.object && part.kind->keyword == keyword;
      if (is_kind && part.object == std::string_view(edit.object)) return part.items;
    }
    return {};
  }

  const DeviceState &before_;
  const DeviceState &after_;
};

}  // namespace

void print_script(const DeviceState &before, const DeviceState &after,
                  const std::vector<Change> &changes, Results &results) {
  ScriptBetween script(before, after, results);
  for (const ChangeStep &step : steps_of(changes)) {
    check_interrupt();
    print_commands(script, step);
  }
}

}  // namespace tesselctl

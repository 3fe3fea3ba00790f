#include "tesselctl/state/item_lines.hpp"

#include <span>

#include "tesselctl/program/library.hpp"

namespace tesselctl {

namespace {

std::string_view resolve_name(const ObjectKind &kind, Word name) {
  for (size_t i = 0; const char *known = kind.name(i); ++i) {
    if (is_name(known, name.text)) return known;
  }
  std::vector<std::string_view> names;
  for (size_t i = 0; const char *known = kind.name(i); ++i) names.emplace_back(known);
  throw_unknown(name, kind.noun, names);
}

}  // namespace

std::optional<ItemLine> ItemLines::read(const KeywordLine &line) {
  for (Part &part : now_ == nullptr ? std::span<Part>() : std::span(now_->parts)) {
    if (part.kind->keyword != line.keyword.text) continue;
    if (!part.items) throw Fault(line.keyword, "this object has none of these");
    ValueScanner rest(line.rest.text, line.rest.column);
    part.items->parse(rest, item_);
    return ItemLine{part.kind, now_->name, *part.items, item_.view(), line.keyword};
  }
  open(line.keyword, line.rest);
  return {};
}

void ItemLines::open(Word keyword, Word name) {
  bool is_item = false;
  for (size_t at = 0; at < kinds().size(); ++at) {
    is_item = is_item || kinds()[at]->keyword == keyword.text;
    if (kinds()[at]->object.keyword != keyword.text) continue;
    const std::string_view known = resolve_name(kinds()[at]->object, name);
    now_ = &known_[{at, known}];
    if (now_->name != nullptr) return;
    now_->name = known.data();
    for (const ItemKind *kind : kinds_of_same_objects(at)) {
      now_->parts.push_back({kind, kind->open(now_->name)});
    }
    return;
  }
  throw Fault(keyword, is_item ? "this does not belong here" : "an image has no such line");
}

}  // namespace tesselctl

#include "tesselctl/state/device_state.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/state/image.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

ItemStore::Item ItemStore::add(const ItemView &item) {
  const size_t size = rounded(item.identity.size()) + rounded(item.value.size());
  if (size > left_) {
    const size_t room = std::max(size, kChunk);
    next_ = chunks_.emplace_back(std::make_unique_for_overwrite<char[]>(room)).get();
    left_ = room;
  }
  const Item added = {next_, static_cast<uint32_t>(item.identity.size()),
                      static_cast<uint32_t>(item.value.size())};
  next_ += size;
  left_ -= size;
  std::copy(item.identity.begin(), item.identity.end(), added.identity().begin());
  std::copy(item.value.begin(), item.value.end(), added.value().begin());
  return added;
}

void ItemStore::clear() {
  if (chunks_.size() > 1) chunks_.clear();
  left_ = chunks_.empty() ? 0 : kChunk;
  next_ = chunks_.empty() ? nullptr : chunks_.front().get();
}

namespace {

// Visits every object with the kinds that it may have items of.
template <class Visit>
void for_each_object(Visit visit) {
  for (size_t at = 0; at < kinds().size();) {
    const auto of_object = kinds_of_same_objects(at);
    for (size_t i = 0; const char *name = of_object.front()->object.name(i); ++i) {
      for (size_t k = 0; k < of_object.size(); ++k) {
        visit(DeviceState::Place{at, i, at + k}, *of_object[k], name);
      }
    }
    at += of_object.size();
  }
}

DeviceState::Place place_of(const ItemKind &kind, std::string_view object) {
  size_t at = 0;
  while (&kinds()[at]->object != &kind.object) ++at;
  size_t i = 0;
  while (kind.object.name(i) != object) ++i;
  const auto own = std::find(kinds().begin(), kinds().end(), &kind);
  return {at, i, static_cast<size_t>(own - kinds().begin())};
}

}  // namespace

DeviceState::Part &DeviceState::part_at(const Place &place) {
  const auto [found, is_new] = parts_.try_emplace(place);
  if (is_new) {
    const ItemKind &kind = *kinds()[place[2]];
    const char *name = kind.object.name(place[1]);
    found->second = {&kind, name, kind.open(name), {}};
  }
  return found->second;
}

DeviceState DeviceState::of_file(const std::string &path, std::string_view shown) {
  DeviceState state;
  FileLines lines{path};
  Part *part = nullptr;
  read_image(shown, lines.source(), 0, [&](const ItemLine &line) {
    if (part == nullptr || part->kind != line.kind || part->object != line.object) {
      part = &state.part_at(place_of(*line.kind, line.object));
    }
    part->items.push_back(state.store_.add(line.item));
  });
  return state;
}

DeviceState DeviceState::of_device(const Device &device, const Wanted &is_wanted, Naming naming) {
  DeviceState state;
  Numbering numbering =
      naming == Naming::handles ? Numbering::by_handle() : Numbering::of_device(device);
  Source from = {device, numbering};
  for_each_object([&](const Place &place, const ItemKind &kind, const char *name) {
    if (is_wanted && !is_wanted(kind.object, name)) return;
    check_interrupt();
    Part part = {&kind, name, kind.open(name), {}};
    if (!part.access) return;
    part.access->read(from,
                      [&](const ItemView &item) { part.items.push_back(state.store_.add(item)); });
    if (!part.items.empty()) state.parts_.emplace(place, std::move(part));
  });
  return state;
}

void DeviceState::edit(const ItemKind &kind, const char *object, Edit edit, const ItemView &item) {
  Part &part = part_at(place_of(kind, object));
  const auto [index, is_new] = indexes_.try_emplace(&part);
  Index &places = index->second;
  for (size_t i = 0; is_new && i < part.items.size(); ++i) {
    places.emplace(part.items[i].view().identity, i);
  }
  const auto found = places.find(item.identity);
  if ((found == places.end()) != (edit == Edit::add)) {
    throw Fault(fmt::format("{} {}: this {} is {}", kind.object.keyword, object, kind.keyword,
                            edit == Edit::add ? "there already" : "not there"));
  }
  if (edit == Edit::add) {
    part.items.push_back(store_.add(item));
    places.emplace(part.items.back().view().identity, part.items.size() - 1);
    return;
  }
  const size_t at = found->second;
  places.erase(found);
  if (edit == Edit::modify) {
    part.items[at] = store_.add(item);
  } else {
    part.items[at] = part.items.back();
    part.items.pop_back();
    if (at == part.items.size()) return;
    places.erase(part.items[at].view().identity);
  }
  places.emplace(part.items[at].view().identity, at);
}

const DeviceState::Part *DeviceState::find(const Place &place) const {
  const auto found = parts_.find(place);
  return found == parts_.end() ? nullptr : &found->second;
}

// ---- By number ----

namespace {

// Adds the numbered items of a part in the order of their numbers. Where one is missing, a copy of
// the next one takes it; those are returned.
std::vector<ItemBytes> add_by_number(Target &to, const DeviceState::Part &part) {
  std::map<uint32_t, ItemView> by_number;
  for (const ItemStore::Item &item : part.items) {
    by_number.emplace(read_bytes<uint32_t>(item.view().identity), item.view());
  }
  std::vector<ItemBytes> fillers;
  uint32_t next = 1;
  for (const auto &[number, item] : by_number) {
    for (; next < number; ++next) {
      ItemBytes &filler = fillers.emplace_back();
      append_bytes(filler.identity, next);
      filler.value = item.value;
      part.access->write(to, Edit::add, filler.view(), {part.kind->keyword, 1});
    }
    part.access->write(to, Edit::add, item, {part.kind->keyword, 1});
    ++next;
  }
  return fillers;
}

}  // namespace

void load_by_number(const Device &device, const DeviceState &state) {
  Numbering numbering;
  Target to = {device, numbering};
  std::vector<std::pair<const DeviceState::Part *, std::vector<ItemBytes>>> fillers;
  for (const auto &[place, part] : state.parts()) {
    if (part.kind->numbered != Numbered::no) {
      fillers.emplace_back(&part, add_by_number(to, part));
      continue;
    }
    for (const ItemStore::Item &item : part.items) {
      part.access->write(to, Edit::add, item.view(), {part.kind->keyword, 1});
    }
  }
  // Groups before the members that they have.
  for (auto part = fillers.rbegin(); part != fillers.rend(); ++part) {
    for (const ItemBytes &filler : part->second) {
      part->first->access->write(to, Edit::remove, filler.view(), {part->first->kind->keyword, 1});
    }
  }
}

}  // namespace tesselctl

#include "tesselctl/server/monitors.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <new>

#include "tesselctl/journal/utc_text.hpp"
#include "tesselctl/kinds/event_rows.hpp"
#include "tesselctl/state/script.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

// ---- One that monitors ----

Monitor::Monitor(WantedEvents wanted, Output &out, size_t most, std::function<size_t()> unread)
    : wanted_(std::move(wanted)),
      out_(out),
      most_(most),
      unread_(std::move(unread)),
      beginning_(wanted_.json ? json_beginning(wanted_.command) : std::string()) {}

bool Monitor::takes() {
  catch_up(most_ / 2);
  if (missed_ == 0 && unread_() < most_) return true;
  miss();
  return false;
}

void Monitor::catch_up(size_t below) {
  if (missed_ == 0 || unread_() >= below) return;
  if (wanted_.json) {
    put(Row().object("event", "missed").number("changes", missed_).json());
  } else {
    put(fmt::format("missed {} change{}\n", grouped(missed_), missed_ == 1 ? "" : "s"));
  }
  missed_ = 0;
}

void Monitor::write(std::string_view text) {
  put(text);
  ++sent_;
}

void Monitor::put(std::string_view event) {
  out_.write(wanted_.json ? fmt::format("{}{}{}", beginning_, event, kJsonEnd)
                          : std::string(event));
}

// ---- All of them ----

void Monitors::add(Monitor &monitor) {
  if (monitors_.empty()) log_.add(*this);
  monitors_.push_back(&monitor);
}

void Monitors::remove(Monitor &monitor) {
  std::erase(monitors_, &monitor);
  if (monitors_.empty()) log_.remove(*this);
}

namespace {

// What an event has in front: when and who.
struct EventHead {
  int64_t time_ms;
  std::string_view who;
  uint64_t number = 0;  // of the line that made a change

  std::string print(const Row &row, bool json) const {
    const std::string time = utc_text(time_ms);
    if (!json) return fmt::format("{} {}  {}\n", time, who, row.words());
    Row whole;
    if (number != 0) whole.number("number", number);
    return whole.text("when", time).text("who", who).append(row).json();
  }
};

// Prints the commands of changes that were made just now.
class LiveScript : public Script {
 public:
  LiveScript(const Device &device, const std::vector<Change> &changes, Results &results)
      : Script(results), device_(device), changes_(changes) {}

  Items after(const ItemEdit &edit, std::string_view keyword) override {
    items_.clear();
    for (const ItemKind *kind : kinds()) {
      if (&kind->object != &edit.kind.object || kind->keyword != keyword) continue;
      Numbering numbering;
      Source from = {device_, numbering};
      kind->open(edit.object)->read(from, [&](const ItemView &item) {
        items_.push_back(store_.add(item));
      });
    }
    return items_;
  }
  bool differ(const ItemEdit &edit, std::string_view keyword) override {
    return std::ranges::any_of(changes_, [&](const Change &change) {
      return &change.part->kind->object == &edit.kind.object &&
             change.part->kind->keyword == keyword && change.part->object == edit.object;
    });
  }

 private:
  const Device &device_;
  const std::vector<Change> &changes_;
  ItemStore store_;
  std::vector<ItemStore::Item> items_;
};

int64_t now_ms() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

}  // namespace

template <class Print>
void Monitors::send(std::string_view object, const Print &print) {
  const UninterruptedScope scope;    // by whose line it is
  std::array<std::string, 2> texts;  // in words, in JSON
  for (Monitor *monitor : monitors_) {
    const WantedEvents &wanted = monitor->wanted();
    if (monitor->is_done() || !wanted.of(object)) continue;
    std::string &text = texts[wanted.json ? 1 : 0];
    try {
      if (!monitor->takes()) continue;
      if (text.empty()) text = print(wanted.json);
      if (!text.empty()) monitor->write(text);
    } catch (const std::bad_alloc &) {
      monitor->miss();
    } catch (const std::exception &) {
      // What happened stays, though it cannot be printed, or this client is gone.
    }
  }
}

void Monitors::note(const LineChanges &line) {
  const EventHead head = {line.time_ms, line.client, line.number};
  Output out;
  Results results(out);
  LiveScript script(device_, line.changes, results);
  for (const Change &change : line.changes) {
    send(change.part->object, [&](bool json) {
      const std::vector<Change> alone = {change};
      out.take();  // what there was no memory for the rest of
      for (const ChangeStep &one : steps_of(alone)) print_commands(script, one);
      const std::string commands = out.take();
      std::string text;
      std::string_view command;
      for (const LineSource next = lines_of(commands); next(command);) {
        if (json && !text.empty()) text += ',';
        text += json ? head.print(Row().text("command", command), true)
                     : head.print(Row().object("command", command), false);
      }
      return text;
    });
  }
}

void Monitors::note_events(std::string_view client) {
  const Events &events = device_.events();
  const uint64_t expired = std::exchange(expired_, events.expired_count);
  const uint32_t message = std::exchange(messages_, events.messages.delivered);
  const bool is_quiet = expired_ == expired && messages_ == message;
  if (monitors_.empty() || is_quiet) return;
  const EventHead head = {now_ms(), client};
  const auto fresh =
      static_cast<size_t>(std::min<uint64_t>(expired_ - expired, events.expired.size()));
  for (const ExpiredEntry &one : std::span(events.expired).last(fresh)) {
    send(table_of_handle(one.table).name(),
         [&](bool json) { return head.print(expired_row(device_, one, {}), json); });
  }
  const auto &held = events.messages.held;
  for (auto at = held.upper_bound(message); at != held.end(); ++at) {
    const soft_digest_t &digest = digest_of(*at->second);
    for (uint32_t i = 0; i < at->second->entry_count; ++i) {
      send(digest.name, [&](bool json) {
        return head.print(message_entry_row(digest, at->first, *at->second, i), json);
      });
    }
  }
}

}  // namespace tesselctl

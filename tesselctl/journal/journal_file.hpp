// The files of journals: what lines changed, line by line.
//
//   tesselctl journal 1 leaf_switch        version and program
//   after 41                               the number of the last change of its checkpoint
//   change 42 2026-11-23T17:20:31.004Z anna[4711] add ipv4ShortMaskLpm vrfId=1 ...
//   table ipv4ShortMaskLpm                 objects and items stand as in images
//   + entry ((( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=0
//   end 42 checksum=9f86d081884c7d65       of the lines of the change
//   undo 43 1 2026-11-23T17:20:35.110Z anna[4711] undo
//   table ipv4ShortMaskLpm                 how many changes it took back stands behind the number
//   - entry ...
//   end 43 checksum=...
//
// An item came (+), went (-), or was (<) and is (=). Members and groups have numbers that stay
// while they live. A change whose end is missing was not answered.
#pragma once

#include <deque>
#include <functional>

#include "tesselctl/journal/line_changes.hpp"
#include "tesselctl/state/item_lines.hpp"

namespace tesselctl {

inline constexpr int kJournalVersion = 1;

// The beginning of a file.
inline constexpr std::string_view kJournalFirst = "tesselctl journal ";
std::string journal_head(uint64_t after);
// The text of a change that takes back so many others, 0 for one of its own, in pieces of some
// size.
void print_journaled(const LineChanges &line, uint64_t undone,
                     const std::function<void(std::string_view)> &sink);

// A change as it is read.
struct Journaled {
  uint64_t number = 0;
  uint64_t undone = 0;  // how many changes it took back
  std::string time, client, command;
  std::vector<Change> changes;  // as long as the reader, if they were asked for
};

// The whole changes of a file.
struct JournalExtent {
  uint64_t after = 0;
  uint64_t last = 0;   // its number, or that of the checkpoint
  uint64_t bytes = 0;  // of the file up to there
};

class JournalReader {
 public:
  // Whether the items of the change are wanted.
  using Wanted = std::function<bool(uint64_t number)>;
  using Visitor = std::function<void(const Journaled &)>;

  // Visits the changes of a file. One that is not whole ends it, unless others are behind it.
  // Throws Fault with file and line.
  JournalExtent read(const std::string &path, const Wanted &is_wanted, const Visitor &visit);
  // The items of changes so far, to which nobody points any more.
  void forget() {
    items_.clear();
    store_.clear();
  }

 private:
  void add_line(std::string_view line, Journaled &to);
  void add_item(char sign, const KeywordLine &line, Journaled &to);

  ItemLines lines_;
  ItemParts parts_;
  ItemStore store_;
  std::deque<ItemStore::Item> items_;
};

}  // namespace tesselctl

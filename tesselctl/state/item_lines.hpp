// Items as lines say them, in images and journals: each belongs to the object that a line before it
// names.
#pragma once

#include <map>
#include <optional>

#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"

namespace tesselctl {

struct ItemLine {
  const ItemKind *kind;
  std::string_view object;  // its name, a constant
  ObjectItems &items;       // of the object; as long as the reader
  ItemView item;            // until the next line
  Word keyword;
};

class ItemLines {
 public:
  // The item of a line; nothing for one like "table l2Lookup", to which the lines that follow
  // belong. Throws Fault.
  std::optional<ItemLine> read(const KeywordLine &line);

 private:
  struct Part {
    const ItemKind *kind;
    std::unique_ptr<ObjectItems> items;
  };
  struct Object {
    const char *name = nullptr;
    std::vector<Part> parts;
  };

  void open(Word keyword, Word name);

  std::map<std::pair<size_t, std::string_view>, Object> known_;
  Object *now_ = nullptr;
  ItemBytes item_;
};

}  // namespace tesselctl

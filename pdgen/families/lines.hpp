// A text whose structure is its indentation: lines that begin with # and, outside of verbatim text,
// blank ones mean nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/load/load.hpp"

namespace pdgen {

struct TextLine {
  std::size_t indent = 0;
  std::string text;  // without the indentation; empty: a blank line
  std::size_t number = 0;
};

class TextLines {
 public:
  explicit TextLines(const CatalogueFile &file);

  // The next line if it stands at that indentation or further in, null at the end of the block.
  const TextLine *next(std::size_t indent);
  // The lines that follow, as long as they stand at least that far in: one by one, as one line, or
  // as they are with the indentation cut off and blank lines between them.
  std::vector<std::string> deeper(std::size_t indent);
  std::string joined(std::size_t indent);
  std::string verbatim(std::size_t indent);
  void skip(std::size_t indent) { deeper(indent); }

  Place place(const TextLine &line) const { return {path_, line.number}; }
  Place start() const { return {path_, 1}; }

 private:
  bool is_within(std::size_t at, std::size_t indent) const;
  void skip_blanks();

  std::string path_;
  std::vector<TextLine> lines_;
  std::size_t at_ = 0;
};

// The words between blanks, and the items between commas outside of any bracket.
std::vector<std::string> words(std::string_view text);
std::vector<std::string> list_items(std::string_view text);

}  // namespace pdgen

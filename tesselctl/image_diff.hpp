// What two images differ in.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/device.hpp"
#include "tesselctl/row.hpp"

namespace tesselctl {

// A whole image in memory, its lines by object.
class Image {
 public:
  struct Section {
    std::string_view kind;  // "table"
    std::string_view name;  // "l2Lookup"
    std::vector<std::string_view> lines;
  };

  // Both throw Fault; that of a file names file, line and column.
  static Image of_file(const std::string &path, std::string_view shown);
  static Image of_device(const Device &device);
  // Of its profiles alone.
  static Image of_profiles(const Device &device);

  Image(Image &&) = default;
  Image &operator=(Image &&) = default;

  const std::vector<Section> &sections() const { return sections_; }
  const Section *find(std::string_view kind, std::string_view name) const;
  // Gives the members and groups of each profile the numbers that equal ones have in the other
  // image: first those of the same number, then any other; what is left over keeps its number where
  // it is free. Entries of bound tables follow.
  void number_like(const Image &other);

 private:
  Image() = default;
  void read();
  // The fault of a line with its place.
  Fault fault_at(std::string_view line, const Fault &fault) const;
  struct NewNumbers;
  void renumber_targets(Section &section, const NewNumbers &numbers);
  std::string_view keep(std::string line) { return kept_.emplace_back(std::move(line)); }

  std::string file_;
  std::string text_;
  std::vector<Section> sections_;
  std::deque<std::string> kept_;  // lines that were renumbered
};

// A line that one image has and the other has not, or has otherwise. before is empty where it is
// new, after where it is gone.
struct Change {
  std::string_view kind;
  std::string_view name;
  std::string_view before;
  std::string_view after;
};

// The changes that lead from one image to the other, object by object in the order of images.
// after must have been numbered like before. The texts belong to the images.
std::vector<Change> changes_between(const Image &before, const Image &after);

// The line of an object in the words of commands: "-" or "+", the object, and what the line says.
Row change_row(std::string_view sign, std::string_view kind, std::string_view name,
               std::string_view line);

}  // namespace tesselctl

// Changes to a device in the lines of images.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tesselctl/image.hpp"
#include "tesselctl/image_value.hpp"

namespace tesselctl {

// What becomes of the object that a line describes. Cells and settings are always written; remove
// puts them back to how they are in a new device.
enum class Edit : uint8_t { add, modify, remove };

class ImageEditor {
 public:
  explicit ImageEditor(const Device &device) : device_(device) {}

  // The handles behind the numbers of a profile, where the device has them already.
  struct Numbers {
    std::map<uint32_t, uint32_t> members;
    std::map<uint32_t, uint32_t> groups;
  };
  Numbers &numbers_of(const soft_profile_t &profile) {
    return profile_numbers_[profile.action_data_table];
  }

  // "table l2Lookup" and so on: the lines that follow belong to it. False for another keyword.
  bool open(Word keyword, Word name);
  // A line of the open object. Throws Fault with the column in the line.
  void edit(Edit edit, std::string_view line);

  LoadCounts counts;

 private:
  enum class Section : uint8_t { none, profile, table, counter, meter, reg, hash, value_set };
  struct Reader {
    std::string_view keyword;
    Section section;
    void (ImageEditor::*read)(ValueScanner &rest);
  };
  static std::span<const Reader> readers();

  // The calls of one action of the table, found once.
  struct ActionCalls {
    const bindings::Record *action;
    std::optional<Call> add;
    std::optional<Call> modify;
    std::optional<Call> set_default;
  };

  void refused(uint64_t status) const { check(status, keyword_); }
  static uint32_t handle_of(const std::map<uint32_t, uint32_t> &handles, uint64_t number,
                            Word word);
  uint32_t read_number(ValueScanner &rest, const std::map<uint32_t, uint32_t> &handles) const;

  void edit_member(ValueScanner &rest);
  void edit_group(ValueScanner &rest);
  uint32_t need_group(uint32_t number, const Attributes &words);
  void edit_fallback(ValueScanner &rest);

  ActionCalls &calls_of(const ActionValue &action);
  uint32_t target_of(const ImageEntry &value) const;
  Call entry_call();
  Call default_call();
  void edit_entry(ValueScanner &rest);
  bool is_default_now() const;
  void edit_default(ValueScanner &rest);
  void set_extras(const Attributes &words, uint32_t entry, bool with_ttl);
  void edit_ageing(ValueScanner &rest);

  void edit_cell(ValueScanner &rest);
  void edit_counter_cell(uint64_t cell, const ValueScanner &rest) const;
  void edit_meter_cell(uint64_t cell, const ValueScanner &rest) const;
  void write_register(const char *family, const ValueScanner &rest, std::optional<uint64_t> cell);
  void edit_all(ValueScanner &rest) { write_register("register_write_all", rest, {}); }
  void edit_seed(ValueScanner &rest);
  void edit_set_value(ValueScanner &rest);

  const Device &device_;
  Section section_ = Section::none;
  Edit edit_ = Edit::add;
  Word keyword_;
  std::string_view object_;  // a constant
  const soft_profile_t *profile_ = nullptr;
  const soft_register_t *register_ = nullptr;
  std::optional<TableInfo> table_;
  const char *counter_ = nullptr;  // of the entries of the table
  Numbers *numbers_ = nullptr;
  std::map<uint32_t, Numbers> profile_numbers_;  // by action-data table
  std::vector<ActionCalls> actions_;
  ImageEntry value_;
};

}  // namespace tesselctl

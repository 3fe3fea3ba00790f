// Reads the value strings of the library back into records.
//
//   match spec   "( 0x07,0x0a000000,0x0008,),"
//   action       "('NAME',(0x0001,)),"
//   entry        "((( 0x07,...,),('NAME',(0x0001,)),),(10,True))"
//   bound entry  "((( 0x0012,),('setMbrHdl',(0x5,))),(0,True))"
#pragma once

#include <cstdint>
#include <string_view>

#include "bindings/export_table.hpp"
#include "tesselctl/text/fault.hpp"

namespace tesselctl {

class ValueScanner {
 public:
  // Column of the first character of text.
  ValueScanner(std::string_view text, size_t column) : text_(text), column_(column) {}

  // All throw Fault at what stands there instead.
  void expect(std::string_view literal);
  bool accept(std::string_view literal);
  uint64_t hexadecimal();  // "0x1f"
  int64_t decimal();       // "-1"
  std::string_view quoted();
  // The numbers of all members of a record, each with a comma behind it.
  void record(const bindings::Record &record, uint8_t *bytes);

  std::string_view rest() const { return text_.substr(at_); }
  size_t column() const { return column_ + at_; }
  // The next number or name, for faults, and all of the rest.
  Word here() const;
  Word word() const { return {rest(), column()}; }
  [[noreturn]] void fail(std::string_view wanted) const;

 private:
  void array(uint8_t *bytes);

  std::string_view text_;
  size_t column_;
  size_t at_ = 0;
};

}  // namespace tesselctl

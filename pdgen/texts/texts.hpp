// The texts that introspection hands out, as far as they are constant: schemas, value strings with
// the digits still to come, and the lines of the printers up to their digits. All of them are
// literals that a tool reads back, so every blank counts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

// ---- Members of records ----

// Hexadecimal digits of a value of that many bits.
unsigned digit_count(unsigned width);

// The bits of a member that the key uses; a mask companion has those of its field, a prefix length
// all of its own.
Bits member_bits(const Table &table, const RecordField &field);

// The bits as schemas write them: "0x7f", and an L behind what does not fit in 31 bits.
std::string mask_text(const Bits &bits);

// ---- Schemas ----

std::string match_spec_schema(const Table &table);  // "()" without a key
std::string action_schema(const Action &action);
std::string table_schema(const Table &table);
std::string profile_schema(const Profile &profile);

// ---- Value strings ----

// A value string with zeros for digits, and where the digits of each member begin.
struct ValueText {
  std::string text;
  std::vector<std::size_t> digits_at;
};

ValueText match_spec_value(const Table &table);
ValueText action_value(const Action &action);

// ---- Lines of printers ----

// The header line, then for each member what stands between its blanks and its digits; each of them
// ends in a newline that is not part of it.
std::string match_spec_lines(const Program &program, const Table &table);
std::string action_lines(const Action &action);

// ---- Greatest lengths ----

// Bytes that the longest text of each family takes, with its NUL.
struct TextSizes {
  std::size_t schema = 0;            // of a table or profile
  std::size_t match_spec_value = 0;  // of a match spec alone
  std::size_t action_value = 0;      // of an action alone
  std::size_t value = 0;             // of an entry
  std::size_t label = 0;             // of a counted entry
  std::size_t action_name = 0;       // in full
};

TextSizes text_sizes(const Program &program);

// The same of one object.
std::size_t entry_value_size(const Table &table);
std::size_t label_size(const Label &label);

}  // namespace pdgen

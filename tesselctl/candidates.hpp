// What can stand in the place of a word of a grammar: names of the program's objects, fields,
// actions, handles that the device holds, and files.
#pragma once

#include "tesselctl/completion.hpp"
#include "tesselctl/entry_line.hpp"
#include "tesselctl/grammar.hpp"

namespace tesselctl {

// Collects the candidates that a word begins, upper and lower case making no difference.
class Offers {
 public:
  void start_at(size_t start, std::string_view typed) {
    completion_.start = start;
    typed_ = typed;
  }
  std::string_view typed() const { return typed_; }
  void offer(std::string_view word, std::string_view help);
  // Whatever was typed.
  void offer_as_it_is(size_t start, std::string word, std::string_view help);
  void hint(std::string_view text);
  bool has_hint() const { return !completion_.hint.empty(); }
  size_t count() const { return completion_.candidates.size(); }
  size_t start() const { return completion_.start; }
  bool begins(std::string_view word) const;
  Completion take() { return std::move(completion_); }

 private:
  std::string_view typed_;
  Completion completion_;
};

// What the first word behind a command names.
struct Subject {
  std::optional<TableInfo> table;           // also the one whose entries a counter or meter follows
  const soft_profile_t *profile = nullptr;  // also the one that the table is bound to
  const soft_value_set_t *value_set = nullptr;
  bool is_cells = false;  // a counter or meter

  // Whether the object takes an argument of that name at all.
  bool takes(std::string_view name) const;
  // The field of the table that NAME=VALUE gives, unless the grammar has that name itself.
  const Field *field_of(std::string_view name, const std::vector<Argument> &grammar) const;
  // The parameters of one of its actions, or null.
  const Shape *action_shape_of(std::string_view action) const;
};
Subject find_subject(const std::vector<Argument> &grammar, Word word);

// The parameters of all its actions, each name once.
void for_each_parameter(const Subject &subject, const std::function<void(const Field &)> &visit);

// Null for an unknown or ambiguous name.
const Field *find_field(const Shape &shape, std::string_view name);
// "32 bits, prefix, 10.0.0.0/8": of a key with its kind of match, or of a parameter.
std::string field_help(const Field &field, bool of_key);

void offer_fields(Offers &offers, const Subject &subject, const std::vector<Argument> &grammar,
                  const std::vector<std::string_view> &given);
void offer_parameters(Offers &offers, const Shape &shape,
                      const std::vector<std::string_view> &given);
void offer_actions(Offers &offers, const Subject &subject, std::string_view command);
// entry, member or group says of which.
void offer_handles(Offers &offers, const Context &context, const Subject &subject,
                   std::string_view name);
// The objects that a placeholder stands for; false when it stands for none.
bool offer_objects(Offers &offers, std::string_view placeholder, std::string_view command,
                   Words given);
bool is_file_placeholder(std::string_view placeholder);
void offer_files(Offers &offers, bool quoted);

}  // namespace tesselctl

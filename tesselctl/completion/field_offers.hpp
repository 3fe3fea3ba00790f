// Fields, parameters and actions as candidates.
#pragma once

#include "tesselctl/completion/subject.hpp"

namespace tesselctl {

// "32 bits, prefix, 10.0.0.0/8": of a key with its kind of match, or of a parameter.
std::string field_help(const Field &field, bool of_key);
// The names that values of the field have, and that help.
void offer_values(Offers &offers, const Field &field, bool of_key);

void offer_fields(Offers &offers, const Subject &subject, const std::vector<Argument> &grammar,
                  const std::vector<std::string_view> &given);
void offer_parameters(Offers &offers, const bindings::Record &record,
                      const std::vector<std::string_view> &given);
void offer_actions(Offers &offers, const Subject &subject, std::string_view command);
// The names of what is answered about entries of the table, each with its end: "dip=".
void offer_answer_names(Offers &offers, const Subject &subject, const char *end);

}  // namespace tesselctl

#include "tesselctl/command/grammar.hpp"

#include <algorithm>

namespace tesselctl {

namespace {

constexpr std::string_view kAgain = "...";

// Takes brackets and dots off a word. inside is whether a bracket is open, before and after it.
Argument peel(std::string_view &word, bool &inside) {
  Argument argument;
  if (word.starts_with('[')) {
    inside = true;
    word.remove_prefix(1);
  }
  argument.optional = inside;
  while (word.ends_with(']') || word.ends_with(kAgain)) {
    const bool closes = word.ends_with(']');
    word.remove_suffix(closes ? 1 : kAgain.size());
    if (closes) inside = false;
    if (!closes) argument.repeated = true;
  }
  return argument;
}

// The end of the first alternative: '|' parts arguments when one with '=' follows, and values of
// one argument otherwise.
size_t alternative_end(std::string_view word) {
  for (size_t bar = word.find('|'); bar != std::string_view::npos; bar = word.find('|', bar + 1)) {
    const std::string_view next = word.substr(bar + 1, word.find('|', bar + 1) - bar - 1);
    if (next.find('=') != std::string_view::npos) return bar;
  }
  return word.size();
}

struct Meaning {
  std::string_view word;
  std::string_view text;
};

std::string_view look_up(std::span<const Meaning> meanings, std::string_view word) {
  const auto found = std::find_if(meanings.begin(), meanings.end(),
                                  [&](const Meaning &meaning) { return meaning.word == word; });
  return found == meanings.end() ? std::string_view() : found->text;
}

}  // namespace

std::vector<Argument> grammar_of(std::string_view text) {
  std::vector<Argument> grammar;
  bool inside = false;
  for (size_t choice = 0; !text.empty(); ++choice) {
    std::string_view word = take_until(text, ' ');
    Argument argument = peel(word, inside);
    argument.choice = choice;
    while (!word.empty()) {
      const size_t end = alternative_end(word);
      const std::string_view one = word.substr(0, end);
      const size_t equals = one.find('=');
      const bool named = equals != std::string_view::npos;
      argument.name = named ? one.substr(0, equals) : std::string_view();
      argument.value = named ? one.substr(equals + 1) : one;
      grammar.push_back(argument);
      word.remove_prefix(std::min(end + 1, word.size()));
    }
  }
  return grammar;
}

std::vector<std::string_view> alternatives_of(std::string_view value) {
  std::vector<std::string_view> alternatives;
  while (!value.empty()) {
    alternatives.push_back(take_until(value, '|'));
  }
  return alternatives;
}

bool is_placeholder(std::string_view word) {
  return !word.empty() && word[0] >= 'A' && word[0] <= 'Z';
}

std::string_view meaning_of_value(std::string_view placeholder) {
  static constexpr Meaning kMeanings[] = {
      {"N", "a number"},
      {"N,N", "numbers with commas between them, one a pipe"},
      {"MS", "milliseconds, or a time like 30s"},
      {"SECONDS", "seconds from one round to the next, 0.1 to 86400"},
      {"CELLS", "cells of a queue: drops begin at min=, and are most probable at max="},
      {"COMMAND", "a command"},
      {"HANDLE", "a handle: a number, or $NAME of one that as=NAME remembered"},
      {"HANDLES", "handles with commas between them; none for nothing"},
      {"CIR,CBS,PIR,PBS", "committed rate and burst, peak rate and burst"},
      {"NAME", "a name"},
      {"FILE", "a file"},
      {"VALUE/BITS", "a value and its width, in the order of the calculation's fields"},
      {"VALUE", "a value in any notation that suits the field"},
      {"NAME=PATTERN", "a name of the answer and what its value is; '*' stands for anything"},
  };
  return look_up(kMeanings, placeholder);
}

std::string_view meaning_of_name(std::string_view name) {
  static constexpr Meaning kMeanings[] = {
      {"priority", "the smallest number wins"},
      {"ttl", "milliseconds without a hit until an entry expires"},
      {"meter", "CIR,CBS,PIR,PBS of the entry's own meter"},
      {"as", "a name that remembers the handle, for $NAME"},
      {"entry", "the handle of an entry"},
      {"member", "the handle of a member"},
      {"group", "the handle of a group"},
      {"members", "the members of the group"},
      {"inactive", "those of them that are inactive"},
      {"action", "what is done on a hit"},
      {"index", "the number of a cell"},
      {"source", "hardware brings the value up to date, software does not"},
      {"cir", "committed rate"},
      {"cbs", "committed burst"},
      {"pir", "peak rate"},
      {"pbs", "peak burst"},
      {"first", "the first cell or stage"},
      {"last", "the last stage, without it the first"},
      {"count", "how many cells, rounds of watch, or events"},
      {"size", "the most members that the group may have"},
      {"capacity", "the most entries that the table may have"},
      {"pipe", "the number of a pipe"},
      {"parser", "the number of a parser"},
      {"mask", "the bits of the value that count"},
      {"packets", "the number of packets"},
      {"bytes", "the number of bytes"},
      {"mode", "1, as without it: entries expire; 0: their hit states are read"},
      {"values", "the values of a cell, one a pipe"},
      {"message", "the number of a message"},
      {"hash", "the hash that a packet has"},
      {"input", "the number of a set of input fields"},
      {"algorithm", "the number of an algorithm"},
      {"handle", "the handle of a WRED table, any of 0x07000001 to 0x07ffffff"},
      {"probability", "the greatest probability of a drop, 0 to 1"},
      {"time", "the time constant in nanoseconds, kept in some 7 digits"},
      {"seed", "what the calculation begins with"},
      {"vrf", "the VRF of the routes"},
      {"nexthop", "that of routes which name none"},
      {"rows", "the most rows of a list"},
      {"note", "a text that stands on the page"},
  };
  return look_up(kMeanings, name);
}

std::span<const NotationHelp> notations() {
  static constexpr NotationHelp kNotations[] = {
      {"4094, 0xffe, 65_536", "every field"},
      {"tcp, https", "fields of protocols, and of TCP and UDP ports"},
      {"10.0.0.1", "fields of 32 bits"},
      {"2001:db8::1", "fields of 128 bits"},
      {"00:11:22:33:44:55", "MAC addresses; also 00-11-22-33-44-55 and 0011.2233.4455"},
      {"10.0.0.0/8", "prefix and ternary fields: the leading bits"},
      {"0x1f90&0xfff0", "ternary fields: the bits of the mask take part"},
      {"*", "prefix and ternary fields: anything"},
      {"1000..2000", "fields of entries: from one value to the other"},
      {"10M, 1.5k, 64Ki", "rates, bursts, packets and bytes"},
      {"500ms, 30s, 5min, 1h", "times"},
  };
  return kNotations;
}

}  // namespace tesselctl

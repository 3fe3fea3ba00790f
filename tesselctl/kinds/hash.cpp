// Hash calculations.
#include <fmt/format.h>

#include <deque>

#include "tesselctl/command/options.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

const soft_hash_t &hash_of(const Invocation &invocation) {
  return resolve_object<soft_hash_t>(need_argument(invocation, 0, "the name of a hash calculation"),
                                     "hash calculation");
}

void set(Context &context, const Invocation &invocation) {
  const soft_hash_t &hash = hash_of(invocation);
  const Options options(invocation, 1, {"input", "algorithm", "seed"});
  const char *names[] = {"input", "algorithm", "seed"};
  const uint64_t limits[] = {0xffffffffu, 0xffffffffu, ~uint64_t{0}};
  bool any = false;
  for (size_t i = 0; i < std::size(names); ++i) {
    if (!options.has(names[i])) continue;
    any = true;
    Call call = context.device.prepare("hash_calc_" + std::string(names[i]) + "_set", hash.name);
    check(call.set(names[i], options.number(names[i], limits[i])).run(), invocation.arguments[0]);
  }
  if (!any) throw Fault(invocation.arguments[0], "input=, algorithm= or seed= is missing");
  Row row;
  context.results.done(row.object("hash", hash.name), "set");
}

void get(Context &context, const Invocation &invocation) {
  const soft_hash_t &hash = hash_of(invocation);
  refuse_arguments_from(invocation, 1);
  uint32_t input = 0;
  uint32_t algorithm = 0;
  uint64_t seed = 0;
  const Device &device = context.device;
  const Word word = invocation.arguments[0];
  check(device.prepare("hash_calc_input_get", hash.name).set("input", &input).run(), word);
  check(device.prepare("hash_calc_algorithm_get", hash.name).set("algorithm", &algorithm).run(),
        word);
  check(device.prepare("hash_calc_seed_get", hash.name).set("seed", &seed).run(), word);
  Row row;
  row.object("hash", hash.name).number("input", input).number("algorithm", algorithm);
  context.results.row(row.text("seed", hexadecimal(seed)));
}

// "VALUE/BITS" words in the order of the calculation's fields.
class HashInput {
 public:
  void add(Word word) {
    const size_t slash = word.text.find('/');
    if (slash == std::string_view::npos) throw Fault(word, "this should be VALUE/BITS");
    const auto bits =
        static_cast<unsigned>(parse_limited(word.from(slash + 1), 128, "the number of bits"));
    if (bits == 0) throw Fault(word.from(slash + 1), "a value has at least 1 bit");
    Field field = {};
    field.label = "the value";
    field.width = bits;
    const Number value = parse_value(field, word.first(slash)).value;
    p4_pd_hash_calc_attr_t attribute = {};
    attribute.field = static_cast<uint32_t>(attributes_.size());
    attribute.value = static_cast<uintptr_t>(value.low);
    if (bits > 32) {
      wide_.push_back(to_bytes(value));
      attribute.value = reinterpret_cast<uintptr_t>(wide_.back().data() + 16 - (bits + 7) / 8);
    }
    attributes_.push_back(attribute);
    sizes_.push_back(bits);
  }
  void bind(Call &call) const {
    call.set("attribute_count", uint64_t{attributes_.size()});
    call.set("attributes", attributes_.data()).set("attribute_sizes", sizes_.data());
  }

 private:
  std::vector<p4_pd_hash_calc_attr_t> attributes_;
  std::vector<uint32_t> sizes_;
  std::deque<std::array<uint8_t, 16>> wide_;
};

void compute(Context &context, const Invocation &invocation) {
  const soft_hash_t &hash = hash_of(invocation);
  HashInput input;
  for (const Word &word : invocation.arguments.subspan(1)) input.add(word);
  uint8_t bytes[8] = {};
  Call call = context.device.prepare("hash_calc_calculate_hash_value", hash.name);
  input.bind(call);
  call.set("hash", bytes).set("hash_length", uint64_t{sizeof bytes});
  check(call.run(), invocation.arguments[0]);
  Row row;
  row.object("calculation", hash.name);
  context.results.row(
      row.text("hash", fmt::format("{:#018x}", from_bytes(bytes, sizeof bytes).low)));
}

void offer_hashes(Offers &offers, const Command &, Words) {
  offer_objects<soft_hash_t>(
      offers, [](const soft_hash_t &row) { return std::to_string(row.field_count) + " fields"; });
}

constexpr ObjectWord kWords[] = {{"HASH", offer_hashes}};

constexpr Command kCommands[] = {
    {"hash set", "HASH [input=N] [algorithm=N] [seed=N]", "configures a hash calculation", set,
     Kind::changes},
    {"hash get", "HASH", "prints how a hash calculation is configured", get},
    {"hash compute", "HASH VALUE/BITS...",
     "computes the hash of values, in the order of the fields", compute},
};

// ---- In images ----

// "seed 0x1": one that was set.
class HashSeed : public CellItems<NoIdentity, uint64_t> {
 public:
  explicit HashSeed(const char *hash) : hash_(hash) {}

 protected:
  void parse_cell(ValueScanner &line, NoIdentity &, uint64_t &seed) const override {
    seed = line.hexadecimal();
    LineWords(line, {});
  }
  void print_cell(std::string &text, const NoIdentity &, const uint64_t &seed) const override {
    text += hexadecimal(seed);
  }
  void add_cell(Row &row, const NoIdentity &, const uint64_t &seed) const override {
    row.text("seed", hexadecimal(seed));
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    uint64_t seed = 0;
    check(from.device.prepare("hash_calc_seed_get", hash_).set("seed", &seed).run(), {});
    if (seed != 0) visit({}, seed);
  }
  void write_cell(Target &to, Edit edit, const NoIdentity &, const uint64_t &seed,
                  Word word) const override {
    Call call = to.device.prepare("hash_calc_seed_set", hash_);
    check(call.set("seed", edit == Edit::remove ? 0 : seed).run(), word);
  }

 private:
  const char *hash_;
};

constexpr ObjectKind kHashObjects = {"hash", "hash calculation",
                                     row_name<&program_rows<soft_hash_t>>};

}  // namespace

extern const ItemKind kHashKind = {kHashObjects, "seed", kCellSteps,
                                   [](const char *hash) -> std::unique_ptr<ObjectItems> {
                                     return std::make_unique<HashSeed>(hash);
                                   }};

std::span<const Command> hash_commands() { return kCommands; }
std::span<const ObjectWord> hash_words() { return kWords; }

}  // namespace tesselctl

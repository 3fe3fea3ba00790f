// Hash calculations.
#include <deque>

#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

using HashLine = ObjectLine<soft_hash_t>;

// ---- Items ----

// "seed 0x1": one that was set.
class HashSeed : public NumberItems {
 public:
  explicit HashSeed(const soft_hash_t &hash)
      : NumberItems({.columns = {{.name = "seed",
                                  .limit = ~uint64_t{0},
                                  .notation = Notation::hexadecimal}},
                     .identity = 0,
                     .nameless = 1}),
        hash_(hash) {}

 protected:
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    uint64_t seed = 0;
    check(from.device.prepare("hash_calc_seed_get", hash_.name).set("seed", &seed).run(), {});
    if (seed != 0) visit({seed});
  }
  void write_numbers(Target &to, Edit edit, const Numbers &seed, Word word) const override {
    Call call = to.device.prepare("hash_calc_seed_set", hash_.name);
    check(call.set("seed", edit == Edit::remove ? 0 : seed[0]).run(), word);
  }

 private:
  const soft_hash_t &hash_;
};

// ---- Commands ----

struct Setting {
  const char *name;
  const char *set;
  const char *get;
  uint64_t limit;
};
constexpr Setting kSettings[] = {
    {"input", "hash_calc_input_set", "hash_calc_input_get", 0xffffffffu},
    {"algorithm", "hash_calc_algorithm_set", "hash_calc_algorithm_get", 0xffffffffu},
    {"seed", "hash_calc_seed_set", "hash_calc_seed_get", ~uint64_t{0}},
};

void set(Context &context, const Invocation &invocation) {
  const HashLine line(context, invocation, {"input", "algorithm", "seed"});
  bool any = false;
  for (const Setting &setting : kSettings) {
    if (!line.options.has(setting.name)) continue;
    any = true;
    Call call = line.call(setting.set);
    line.run(call.set(setting.name, line.options.number(setting.name, setting.limit)));
  }
  if (!any) throw Fault(line.word, "input=, algorithm= or seed= is missing");
  line.done("set");
}

void get(Context &context, const Invocation &invocation) {
  const HashLine line(context, invocation);
  Row row = line.row();
  for (const Setting &setting : kSettings) {
    uint64_t value = 0;  // those of 32 bits are its first bytes
    line.run(line.call(setting.get).set(setting.name, &value));
    if (setting.limit == ~uint64_t{0}) {
      row.text(setting.name, hexadecimal(value));
    } else {
      row.number(setting.name, value);
    }
  }
  context.results.row(row);
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
  const HashLine line(context, {invocation.command, invocation.arguments.first(std::min<size_t>(
                                                        1, invocation.arguments.size()))});
  HashInput input;
  for (const Word &word : invocation.arguments.subspan(1)) input.add(word);
  uint8_t bytes[8] = {};
  Call call = line.call("hash_calc_calculate_hash_value");
  input.bind(call);
  line.run(call.set("hash", bytes).set("hash_length", uint64_t{sizeof bytes}));
  Row row;
  row.object("calculation", line.object.name);
  context.results.row(
      row.text("hash", fmt::format("{:#018x}", from_bytes(bytes, sizeof bytes).low)));
}

std::string help_of(const soft_hash_t &hash) { return fmt::format("{} fields", hash.field_count); }

constexpr ObjectWord kWords[] = {{"HASH", offer_objects<soft_hash_t, help_of>}};

constexpr Command kCommands[] = {
    {"hash set", "HASH [input=N] [algorithm=N] [seed=N]", "configures a hash calculation", set,
     Kind::changes},
    {"hash get", "HASH", "prints how a hash calculation is configured", get},
    {"hash compute", "HASH VALUE/BITS...",
     "computes the hash of values, in the order of the fields", compute},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_hash_t>,
                                "seed",
                                60,
                                kCellSteps,
                                {"hash set"},
                                open_items<HashSeed, soft_hash_t>}};

}  // namespace

extern const Topic kHashTopic = {"Hash calculations", kCommands, kWords, kKinds};

}  // namespace tesselctl

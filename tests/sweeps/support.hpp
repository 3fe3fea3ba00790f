// What all tests of a library share: its binding and its catalogue, the exports as data, a process
// in which the library is initialised, devices, and calls whose arguments are given by name.
// Nothing here knows the program, nor includes its header.
#pragma once

#include <cjson/cJSON.h>
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "bindings/export_table.hpp"
#include "p4_pd_types.h"
#include "pdgen/model.hpp"
#include "soft_journal.hpp"
#include "soft_sdk.h"

namespace pd_test {

using bindings::Export;
using Bytes = soft::journal::Bytes;
using soft::journal::Call;

// The device that tests run on. Its id and pipe differ from each other and from every default.
inline constexpr bf_device_id_t kDevice = 5;
inline constexpr uint16_t kPipe = 2;
inline constexpr uint32_t kPipes = 4;
inline constexpr p4_pd_device_target_t kTarget = {kDevice, kPipe};

// ---- The program ----

// Says which program the tests are about, before anything else here is asked.
void choose_program(const bindings::Binding &binding, std::string catalogue);

const bindings::Binding &binding();
// The catalogue, loaded anew: nothing of the built library goes into it.
const pdgen::Program &program();
// What names of the program begin with: "p4_pd_NAME_".
std::string prefix();
const pdgen::Table &table_named(std::string_view name);
const pdgen::Action &action_named(std::string_view name);
// The pair of a table; null when the table does not have the action.
const pdgen::Pair *pair_of(const pdgen::Table &table, std::string_view action);
// The pair of a profile.
const pdgen::ProfileAction *pair_of(const pdgen::Profile &profile, std::string_view action);

// The records of a table's match spec and of an action's spec, as the compiler laid them out.
const bindings::Record &record_of(const pdgen::Table &table);
const bindings::Record &record_of(const pdgen::Action &action);

// ---- The exports ----

const std::vector<const Export *> &all_exports();
std::vector<const Export *> exports_of(std::string_view family);
// Fails the test and returns null when there is none.
const Export *find_export(std::string_view family, std::string_view object = "",
                          std::string_view action = "");

// ---- The process ----

// The session of all tests, open while the program runs.
p4_pd_session_handle_t session();

// The first initialisation of the library in this process: one for which the state of the last
// profile could not be made, and the one after it.
struct FirstInit {
  p4_pd_status_t failed_status;
  std::vector<Call> failed_calls;
  p4_pd_status_t status;
  std::vector<Call> calls;
};
const FirstInit &first_init();

p4_pd_status_t initialise();
p4_pd_status_t clean_up();
// The handle under which the driver framework knows the library, or knew it last.
uint32_t client();

// A device that runs the program, for as long as the object lives.
class Device {
 public:
  explicit Device(bf_device_id_t id = kDevice, bool is_virtual = false);
  Device(const Device &) = delete;
  Device &operator=(const Device &) = delete;
  ~Device();

 private:
  bf_device_id_t id_;
};

// Tables and profiles of the device take any number of objects from now on.
void lift_limits(bf_device_id_t device);

// A test with a device, an empty journal and an empty fault plan. Nothing that the library has
// allocated may be left in the end.
class LibraryTest : public testing::Test {
 protected:
  LibraryTest();
  ~LibraryTest() override;

 private:
  uint64_t allocations_before_;
  Device device_;
};

// Runs body with the journal on and returns what was called.
template <class Body>
std::vector<Call> recorded(Body &&body) {
  soft::journal::start();
  body();
  soft::journal::stop();
  return soft::journal::calls();
}

// The only call of a body; fails the test, and returns an empty call, when there is another number.
template <class Body>
Call only_call(Body &&body) {
  const std::vector<Call> calls = recorded(body);
  EXPECT_EQ(calls.size(), 1u);
  return calls.size() == 1 ? calls.front() : Call{};
}

// The functions of calls, in order.
std::vector<std::string> names_of(const std::vector<Call> &calls);

// A function of the soft SDK for which the test program has one of its own: the library calls that
// one, which hands on to this one where it has nothing to change.
template <class Function>
Function *soft_function(Function *, const char *name) {
  return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// ---- Calls through data ----

// An argument as a word.
inline uint64_t word(const void *object) { return reinterpret_cast<uintptr_t>(object); }
inline uint64_t word(uint64_t number) { return number; }

// Arguments by name, of which an export may take only some: with("entry", entry, "count", &count).
using Given = std::vector<std::pair<std::string_view, uint64_t>>;
inline void append(Given &) {}
template <class Value, class... Rest>
void append(Given &given, std::string_view name, Value value, Rest... rest) {
  if constexpr (std::is_pointer_v<Value>) {
    given.emplace_back(name, word(value));
  } else {
    given.emplace_back(name, static_cast<uint64_t>(value));
  }
  append(given, rest...);
}
template <class... Argument>
Given with(Argument... argument) {
  Given given;
  given.reserve(sizeof...(argument) / 2);
  append(given, argument...);
  return given;
}

// The arguments of one export, by parameter name. session, device and target are there already.
class Arguments {
 public:
  explicit Arguments(const Export &exported);

  // Fails the test when there is no such parameter; std::out_of_range leaves it.
  Arguments &set(std::string_view name, uint64_t word);
  Arguments &set(std::string_view name, const void *object);
  // Sets those that the export takes.
  Arguments &give(const Given &given);
  bool takes(std::string_view name) const;
  bool has(std::string_view name) const { return given_[index_of(name)]; }
  uint64_t get(std::string_view name) const;
  const Export &exported() const { return *exported_; }

  // Fails the test when an argument is missing.
  uint64_t call() const;
  const std::vector<uint64_t> &words() const { return words_; }
  p4_pd_status_t status() const { return static_cast<p4_pd_status_t>(call()); }

 private:
  size_t index_of(std::string_view name) const;

  const Export *exported_;
  std::vector<uint64_t> words_;
  std::vector<bool> given_;
};

// Calls the export of that family with what it takes of the arguments.
p4_pd_status_t run(std::string_view family, std::string_view object, const Given &given);
// The same for one that makes an object, and must: returns the handle, which is what the last
// parameter yields. A time to live and a colour-unaware meter are given to whoever takes them.
uint32_t make(std::string_view family, std::string_view object, std::string_view action,
              const Given &given);

// ---- Records ----

using Random = std::mt19937_64;

// A generator that depends on the text alone.
Random random_for(std::string_view text);

// A record with all bits random, also those above the widths of its fields; prefix lengths reach
// one beyond the width of the address. Empty for a record without members.
Bytes random_record(const bindings::Record &record, Random &random);

// A colour-unaware meter spec; bytes and packets specs have one layout.
p4_pd_bytes_meter_spec_t random_meter_spec(Random &random);

// guess: where it may stand.
const bindings::Member &member_of(const bindings::Record &record, std::string_view name,
                                  size_t guess = 0);

std::string hex(const Bytes &bytes);

// ---- Documents ----

struct JsonDelete {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
};
using Json = std::unique_ptr<cJSON, JsonDelete>;

std::string text_of(const cJSON *item);

}  // namespace pd_test

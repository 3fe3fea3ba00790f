// A device of four pipes that runs the program, an open session, and the journal of what the
// library called. Every test must give back what it allocated and use up the faults it planned.
#pragma once

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bindings/export_table.hpp"
#include "p4_pd_tessel_switch.h"
#include "soft_journal.hpp"
#include "soft_program.h"
#include "soft_sdk.h"

extern "C" const soft_program_t soft_program_tessel_switch;

namespace stateful_test {

using soft::journal::Bytes;
using soft::journal::Call;

constexpr uint8_t kDevice = 3;
constexpr uint16_t kPipes = 4;

class StatefulTest : public ::testing::Test {
 protected:
  void SetUp() override {
    allocations_ = soft_allocations_live();
    ASSERT_EQ(soft_device_create(kDevice, kPipes, &soft_program_tessel_switch, false), BF_SUCCESS);
    ASSERT_EQ(soft_session_open(&session), BF_SUCCESS);
    soft::journal::start();
  }
  void TearDown() override {
    soft::journal::stop();
    EXPECT_EQ(soft::faults::pending(), 0u) << "a planned fault did not strike";
    soft::faults::clear();
    EXPECT_EQ(soft_allocations_live(), allocations_);
    EXPECT_EQ(soft_session_close(session), BF_SUCCESS);
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
  }

  // The calls since the last take.
  static std::vector<Call> take() {
    std::vector<Call> calls = soft::journal::calls();
    soft::journal::clear();
    return calls;
  }
  static std::vector<std::string> names(const std::vector<Call> &calls) {
    std::vector<std::string> made;
    for (const Call &call : calls) made.push_back(call.function);
    return made;
  }
  // The one call since the last take.
  static Call take_one() {
    std::vector<Call> calls = take();
    EXPECT_EQ(calls.size(), 1u) << ::testing::PrintToString(names(calls));
    return calls.empty() ? Call{} : calls.front();
  }

  p4_pd_session_handle_t session = 0;
  p4_pd_device_target_t target = {kDevice, BF_ALL_PIPES};

 private:
  uint64_t allocations_ = 0;
};

// The call has exactly these scalar arguments, among others of other types.
inline void expect_scalars(const Call &call,
                           std::initializer_list<std::pair<const char *, uint64_t>> expected) {
  size_t scalars = 0;
  for (const soft::journal::Argument &argument : call.arguments) {
    scalars += std::holds_alternative<uint64_t>(argument.value);
  }
  EXPECT_EQ(scalars, expected.size()) << call.function;
  for (const auto &[name, value] : expected) {
    EXPECT_EQ(call.scalar(name), value) << call.function << " " << name;
  }
}

// A function of the soft SDK for which the test program has one of its own: the library calls that
// one, which hands on to this one where it has nothing to change.
template <class Function>
Function *soft_function(Function *, const char *name) {
  return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// While on, a range read of a register leaves the records behind the last cell that it read as they
// were given.
extern bool leaves_unread_records;

// ---- Exports by family and object ----

template <class Visit>
void for_each_export(Visit visit) {
  for (size_t list = 0; list < bindings::binding.list_count; ++list) {
    const bindings::ExportList &exports = *bindings::binding.lists[list];
    for (size_t i = 0; i < exports.count; ++i) visit(exports.rows[i]);
  }
}

inline size_t count_exports(std::string_view family) {
  size_t count = 0;
  for_each_export([&](const bindings::Export &row) { count += row.family == family; });
  return count;
}

template <class T>
uint64_t word(const T *object) {
  return reinterpret_cast<uintptr_t>(object);
}

// Calls an export with a word for each of its parameters, in order.
inline uint64_t call_export(std::string_view family, std::string_view object,
                            const std::vector<uint64_t> &words) {
  const bindings::Export *found = nullptr;
  for_each_export([&](const bindings::Export &row) {
    if (row.family == family && row.object == object) found = &row;
  });
  if (found == nullptr || found->parameter_count != words.size()) {
    ADD_FAILURE() << "no export of family " << family << " and object " << object << " with "
                  << words.size() << " parameters";
    return ~uint64_t{0};
  }
  return found->call(words.data());
}

}  // namespace stateful_test

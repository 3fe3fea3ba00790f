// The small program of the entry tests with stateful and auxiliary objects added: registers of
// every width, hash calculations, digests, value sets and snapshots.
#pragma once

#include "bf_snapshot.h"
#include "entries_program.hpp"
#include "soft_learning.h"
#include "soft_placement.h"
#include "soft_snapshot.h"
#include "soft_state.h"

namespace soft_test {

using Bytes = std::vector<uint8_t>;

constexpr uint32_t kBitRegister = 0x06000011;
constexpr uint32_t kByteRegister = 0x06000012;
constexpr uint32_t kHalfRegister = 0x06000013;
constexpr uint32_t kWordRegister = 0x06000014;

constexpr uint32_t kIpHash = 0x22000001;
constexpr uint32_t kIpFields = 0x21000001;  // 3 fields
constexpr uint32_t kEthHash = 0x22000002;
constexpr uint32_t kEthFields = 0x21000002;
constexpr uint32_t kCrc = 0x23000001;
constexpr uint32_t kOtherCrc = 0x23000002;  // of kEthHash

constexpr uint32_t kMacDigest = 0x21000011;   // entries of 3 bytes
constexpr uint32_t kFlowDigest = 0x21000012;  // of 2 bytes

constexpr uint32_t kPortSet = 0x1ff;
constexpr uint32_t kTypeSet = 0x200;

constexpr uint32_t kSnapshotBytes = 4;

inline const soft_program_t &small_program() {
  static const soft_register_t registers[] = {{"seen", kBitRegister, 1},
                                              {"state", kByteRegister, 8},
                                              {"sequence", kHalfRegister, 16},
                                              {"total", kWordRegister, 32}};
  static const soft_hash_t hashes[] = {{"ip", kIpHash, kIpFields, kCrc, 3},
                                       {"eth", kEthHash, kEthFields, kOtherCrc, 5}};
  static const soft_digest_field_t mac_fields[] = {{"mac", 0, 2}, {"port", 2, 1}};
  static const soft_digest_t digests[] = {{"mac", kMacDigest, 3, mac_fields, 2},
                                          {"flow", kFlowDigest, 2, nullptr, 0}};
  static const soft_value_set_t value_sets[] = {{"ports", kPortSet}, {"types", kTypeSet}};
  static const soft_program_t whole = [] {
    soft_program_t p = program();
    p.registers = registers;
    p.register_count = 4;
    p.hashes = hashes;
    p.hash_count = 2;
    p.digests = digests;
    p.digest_count = 2;
    p.value_sets = value_sets;
    p.value_set_count = 2;
    p.snapshot_bytes = kSnapshotBytes;
    return p;
  }();
  return whole;
}

// Device kDevice with two pipes.
class SmallTest : public testing::Test {
 protected:
  static constexpr bf_device_id_t kDevice = 4;
  static constexpr uint32_t kNowhere = 0xdeadbeef;  // what out-parameters hold before a call

  void SetUp() override {
    ASSERT_EQ(soft_session_open(&session), BF_SUCCESS);
    ASSERT_EQ(soft_device_create(kDevice, 2, &small_program(), false), BF_SUCCESS);
  }
  void TearDown() override {
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(session), BF_SUCCESS);
  }

  pipe_session_handle_t session = 0;
};

}  // namespace soft_test

// A second library, of another program, from the same generator and core: the code knows no
// program.
#include <gtest/gtest.h>

#include <cstring>

#include "bindings/export_table.hpp"
#include "p4_pd_tiny.h"
#include "soft_journal.hpp"
#include "soft_sdk.h"

extern "C" {
extern const soft_program_t soft_program_tiny;
}

namespace {

using soft::journal::ActionSpec;
using soft::journal::Bytes;
using soft::journal::Call;
using soft::journal::MatchSpec;

constexpr bf_device_id_t kDevice = 3;
constexpr p4_pd_device_target_t kTarget = {kDevice, BF_ALL_PIPES};

class Tiny : public testing::Test {
 protected:
  Tiny() {
    EXPECT_EQ(soft_session_open(&session_), BF_SUCCESS);
    EXPECT_EQ(p4_pd_tiny_init(), BF_SUCCESS);
    EXPECT_EQ(soft_device_create(kDevice, 2, &soft_program_tiny, false), BF_SUCCESS);
  }
  ~Tiny() override {
    soft::journal::stop();
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
    EXPECT_EQ(p4_pd_tiny_cleanup(), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(session_), BF_SUCCESS);
    EXPECT_EQ(soft_allocations_live(), 0u);
  }

  // The last call of a body that is to succeed.
  template <class Body>
  static Call last_call(Body &&body) {
    soft::journal::start();
    EXPECT_EQ(body(), BF_SUCCESS);
    soft::journal::stop();
    const auto calls = soft::journal::calls();
    EXPECT_FALSE(calls.empty());
    return calls.empty() ? Call{} : calls.back();
  }

  p4_pd_session_handle_t session_ = 0;
  p4_pd_entry_handle_t entry_ = 0;
};

TEST_F(Tiny, RegistersUnderItsOwnName) {
  uint32_t client = 0;
  EXPECT_EQ(soft_client_get("p4_pd_tiny_pd", &client, nullptr, nullptr), BF_SUCCESS);
  EXPECT_EQ(client, bf_drv_hdl);
}

// Key order, cut masks, and a counter of its own.
TEST_F(Tiny, AFilter) {
  p4_pd_tiny_filter_match_spec_t key = {};
  key.ig_intr_md_in_port = 0x1fe;
  key.eth_dstOui = 0xff123456;
  key.eth_dstOui_mask = 0xffffffff;
  key.meta_bits = 0xff;
  key.meta_bits_mask = 0x1c;
  key.ip6_dst[0] = 0xfe;
  key.ip6_dst_mask[0] = 0xf0;
  const p4_pd_tiny_sendTo_action_spec_t send = {0x1ff, 0x1f};
  const Call call = last_call([&] {
    return p4_pd_tiny_filter_table_add_with_sendTo(session_, kTarget, &key, 6, &send, &entry_);
  });
  const auto &match = call.get<MatchSpec>("match");
  Bytes value(36);
  Bytes mask(36);
  value[0] = 0x01;  // in_port, then dead, dead, valid, tagId, bits
  value[1] = 0xfe;
  mask[0] = 0x01;
  mask[1] = 0xff;
  value[7] = 0x1c;
  mask[7] = 0x0c;
  value[14] = 0x12;  // behind layer4 and the source address
  value[15] = 0x34;
  value[16] = 0x56;
  mask[14] = mask[15] = mask[16] = 0xff;
  value[20] = 0xf0;
  mask[20] = 0xf0;
  EXPECT_EQ(match.value, value);
  EXPECT_EQ(match.mask, mask);
  EXPECT_EQ(match.valid_bit_count, 9 + 24 + 24 + 32 + 128 + 16 + 4 + 1 + 12 + 1 + 1);
  EXPECT_EQ(match.priority, 6u);
  const auto &spec = call.get<ActionSpec>("action_spec");
  EXPECT_EQ(spec.data.bytes, (Bytes{0x01, 0xff, 0x1f}));
  ASSERT_EQ(spec.resources.size(), 1u);
  EXPECT_EQ(spec.resources[0].handle, 0x04000001u);

  // A label whose text reads like a trigraph.
  p4_pd_tiny_filter_match_spec_t any = {};
  any.tag_0__tagId = any.tag_0__tagId_mask = 0xfff;
  char label[P4_PD_TINY_LABEL_MAX];
  EXPECT_EQ(p4_pd_tiny_filter_match_spec_stringify_for_counter(&any, label), 18);
  EXPECT_STREQ(label, "Port 0x000 any?\?) ");

  p4_pd_tiny_filter_match_spec_t read = {};
  p4_pd_tiny_sendTo_action_spec_t read_send = {};
  uint32_t priority = 0;
  char name[61];
  bool no_key = true;
  ASSERT_EQ(p4_pd_tiny_filter_get_entry(session_, kDevice, entry_, false, &read, &priority, name,
                                        &read_send, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(read.eth_dstOui, 0x123456u);
  EXPECT_EQ(read.meta_bits, 0x1c);
  EXPECT_EQ(read.meta_bits_mask, 0x0c);
  EXPECT_STREQ(name, "p4_pd_tiny_sendTo");
  EXPECT_EQ(read_send.action_queue, 0x1f);
}

TEST_F(Tiny, PrefixesAgeAndHopsAreWide) {
  const p4_pd_tiny_fib4_match_spec_t route = {1, 0x0a0b0c0d, 9};
  const p4_pd_tiny_setHop_action_spec_t hop = {0xffff3fff};
  Call call = last_call([&] {
    return p4_pd_tiny_fib4_table_add_with_setHop(session_, kTarget, &route, &hop, 1234, &entry_);
  });
  EXPECT_EQ(call.get<MatchSpec>("match").value, (Bytes{1, 0x0a, 0x00, 0, 0}));
  EXPECT_EQ(call.get<MatchSpec>("match").mask, (Bytes{0xff, 0xff, 0x80, 0, 0}));
  EXPECT_EQ(call.get<MatchSpec>("match").priority, 23u);
  EXPECT_EQ(call.scalar("ttl"), 1234u);
  EXPECT_EQ(call.get<ActionSpec>("action_spec").data.bytes, (Bytes{0x3f, 0xff}));

  const p4_pd_tiny_hops_match_spec_t key = {0x12345678};
  const p4_pd_tiny_setRouter_action_spec_t router = {0x01020304, 0x0a0b0c, 0x0d0e0f};
  call = last_call([&] {
    return p4_pd_tiny_hops_table_add_with_setRouter(session_, kTarget, &key, &router, 0, &entry_);
  });
  EXPECT_EQ(call.get<MatchSpec>("match").value, (Bytes{0x56, 0x78}));
  EXPECT_EQ(call.get<ActionSpec>("action_spec").data.bytes,
            (Bytes{1, 2, 3, 4, 0x0a, 0x0b, 0x0c, 0x0d, 0x0e, 0x0f}));
}

TEST_F(Tiny, ItsExportsAreThereAsData) {
  EXPECT_STREQ(bindings::pd_binding.program, "tiny");
  EXPECT_EQ(bindings::pd_binding.tables.count, 12u);
  EXPECT_EQ(bindings::pd_binding.actions.count, 10u);
  const bindings::Record &router = bindings::pd_binding.actions.rows[4];
  ASSERT_EQ(router.shown_count, 2u);
  EXPECT_EQ(router.fields[0].notation, bindings::Notation::ipv4);
  EXPECT_EQ(router.fields[1].label, "hw");  // of hwOui and hwStation
  EXPECT_EQ(router.fields[1].notation, bindings::Notation::mac);
  EXPECT_EQ(router.fields[1].parts[0]->name, std::string("hwOui"));
  EXPECT_EQ(bindings::pd_binding.actions.rows[6].fields[0].cells[1], std::string("flowRate"));
  EXPECT_EQ(bindings::pd_binding.routes.tables[1], std::string("fib6"));
}

}  // namespace

// Learning digests: registration, messages, acknowledgement, and where the fields of an entry lie.
#include "soft_learning.h"
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

class Digests : public StatefulTest {};

constexpr uint32_t kMac = 0x21000011;

struct Heard {
  pipe_mgr_digest_message_t *message = nullptr;
  p4_pd_session_handle_t session = 0;
  int messages = 0;
};

bf_status_t hear(p4_pd_session_handle_t session, pipe_mgr_digest_message_t *message, void *cookie) {
  auto &heard = *static_cast<Heard *>(cookie);
  heard.message = message;
  heard.session = session;
  ++heard.messages;
  return BF_SUCCESS;
}

TEST_F(Digests, GoFromTheDeviceToTheCallerAndBack) {
  Heard heard;
  ASSERT_EQ(p4_pd_tessel_switch_macLearningDigest_register(session, kDevice, hear, &heard),
            BF_SUCCESS);
  EXPECT_EQ(p4_pd_tessel_switch_set_learning_timeout(session, kDevice, 3000), BF_SUCCESS);
  // Station 00 04 05 06, domain 0x0abc, interface 0x00012345, OUI 00 01 02 03.
  const Bytes entry = {0, 4, 5, 6, 0x0a, 0xbc, 0, 1, 0x23, 0x45, 0, 1, 2, 3};
  ASSERT_EQ(soft_digest_inject(kDevice, 1, kMac, entry.data(), 1, 14, nullptr), BF_SUCCESS);
  EXPECT_EQ(heard.messages, 0) << "the device collects";
  soft_clock_advance(3);
  ASSERT_EQ(heard.messages, 1);
  EXPECT_EQ(heard.session, session);
  ASSERT_EQ(heard.message->entry_size,
            p4_pd_tessel_switch_get_digest_entry_size("macLearningDigest"));

  const auto field = [&](const char *name) {
    uint32_t size = 99;
    const uint8_t *bytes = p4_pd_tessel_switch_get_digest_entry_field(
        heard.message->entries, "macLearningDigest", name, &size);
    return Bytes(bytes, bytes + size);
  };
  EXPECT_EQ(field("ingMd_smacStation"), (Bytes{0, 4, 5, 6}));
  EXPECT_EQ(field("ingMd_ingL2Domain"), (Bytes{0x0a, 0xbc}));
  EXPECT_EQ(field("ingMd_ingL2Aintf"), (Bytes{0, 1, 0x23, 0x45}));
  EXPECT_EQ(field("ingMd_smacOui"), (Bytes{0, 1, 2, 3}));

  uint32_t waiting = 99;
  EXPECT_EQ(p4_pd_tessel_switch_macLearningDigest_notify_ack(session, heard.message), BF_SUCCESS);
  EXPECT_EQ(soft_digest_pending(kDevice, kMac, nullptr, &waiting), BF_SUCCESS);
  EXPECT_EQ(waiting, 0u);
  EXPECT_EQ(p4_pd_tessel_switch_macLearningDigest_deregister(session, kDevice), BF_SUCCESS);
}

// In the order of the entry: each field begins where the one before it ends.
TEST_F(Digests, FieldsFillTheEntry) {
  const std::vector<std::pair<const char *, uint32_t>> flow = {
      {"ingMd_protocol", 1},
      {"ingMd_srcPort", 2},
      {"flowMgmt_hash2", 4},
      {"flowMgmt_hash1", 4},
      {"ingIpv4_sip", 4},
      {"ig_intr_md_from_parser_aux_ingress_global_tstamp", 6},
      {"ig_intr_md_ingress_port", 2},
      {"ingIpv4_dip", 4},
      {"ingMd_dstPort", 2},
      {"flowMgmt_response", 1},
      {"flowMgmt_flowDigestCount", 4},
      {"flowMgmt_presentSecond", 1},
      {"ingMd_tcpFlags", 1},
      {"l3Info_vrfId", 1},
      {"flowMgmt_presentFirst", 1},
  };
  const std::vector<std::pair<const char *, uint32_t>> mac = {{"ingMd_smacStation", 4},
                                                              {"ingMd_ingL2Domain", 2},
                                                              {"ingMd_ingL2Aintf", 4},
                                                              {"ingMd_smacOui", 4}};
  uint8_t entry[64] = {};
  const auto expect_fields = [&](const char *digest, const auto &fields, uint32_t entry_size) {
    const uint8_t *next = entry;
    for (const auto &[name, bytes] : fields) {
      uint32_t size = 99;
      EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_field(entry, digest, name, &size), next)
          << name;
      EXPECT_EQ(size, bytes) << name;
      EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_field(entry, digest, name, nullptr), next);
      next += bytes;
    }
    EXPECT_EQ(next, entry + entry_size);
    EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_size(digest), entry_size);
  };
  expect_fields("flowLearningDigest", flow, 38);
  expect_fields("macLearningDigest", mac, 14);
}

TEST_F(Digests, UnknownNamesLeadNowhere) {
  for (const char *name : {"", "MacLearningDigest", "macLearningDigest ", "macLearning"}) {
    EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_size(name), 0u) << name;
  }
  EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_size(nullptr), 0u);
  const uint8_t entry[64] = {};
  const struct {
    const uint8_t *entry;
    const char *digest;
    const char *field;
  } rows[] = {
      {entry, "macLearningDigest", "ingMd_protocol"},  // a field of the other digest
      {entry, "macLearningDigest", "IngMd_smacOui"},
      {entry, "macLearningDigest", ""},
      {entry, "macLearningDigest ", "ingMd_smacOui"},
      {entry, "macLearningDigest", nullptr},
      {entry, nullptr, "ingMd_smacOui"},
      {nullptr, "macLearningDigest", "ingMd_smacOui"},
  };
  for (const auto &row : rows) {
    uint32_t size = 99;
    EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_field(row.entry, row.digest, row.field, &size),
              nullptr);
    EXPECT_EQ(size, 0u);
    EXPECT_EQ(p4_pd_tessel_switch_get_digest_entry_field(row.entry, row.digest, row.field, nullptr),
              nullptr);
  }
}

}  // namespace

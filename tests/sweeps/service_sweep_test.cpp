// Objects beside tables and profiles: what their rows say of fields, widths and names.
#include <algorithm>

#include "pipe_mgr_types.h"
#include "soft_snapshot.h"
#include "support.hpp"

namespace pd_test {
namespace {

class ServiceSweep : public LibraryTest {};

TEST_F(ServiceSweep, FieldsOfDigestsLieWhereTheirRowsSay) {
  const Bytes entry(1 << 16);
  for (const pdgen::Digest &digest : program().digests) {
    const char *name = digest.name.c_str();
    const Export &size_of = *find_export("get_digest_entry_size");
    EXPECT_EQ(Arguments(size_of).set("digest_name", name).call(), digest.size);
    for (const pdgen::PacketField &field : digest.fields) {
      uint32_t size = 0;
      Arguments find(*find_export("get_digest_entry_field"));
      find.give(with("entry", entry.data(), "digest_name", name, "field_name", field.name.c_str(),
                     "size", &size));
      EXPECT_EQ(find.call(), word(&entry[field.offset])) << field.name;
      EXPECT_EQ(size, field.bytes) << field.name;
    }
  }
}

TEST_F(ServiceSweep, HashCalculationsAreFoundByNameAndNumberTheirFields) {
  for (const pdgen::Hash &hash : program().hashes) {
    const Call call = only_call([&] {
      EXPECT_EQ(run("hash_calc_input_set_by_name", "", with("name", hash.name.c_str())),
                BF_SUCCESS);
    });
    EXPECT_EQ(call.scalar("calculation"), hash.handle);
    EXPECT_EQ(call.scalar("field_list"), hash.field_list_handle);
    for (const char *family : {"p4_field_enum", "cmn_field_enum"}) {
      const Export &map = *find_export(family, hash.name);
      for (uint64_t field = 0; field <= hash.field_count; ++field) {
        const bool known = field < hash.field_count;
        EXPECT_EQ(static_cast<uint32_t>(map.call(&field)), known ? field : 0xffffffff);
      }
    }
  }
}

// The bytes of a trigger as the device gets them: every field of its layout in network order.
TEST_F(ServiceSweep, TriggersReachTheDeviceInNetworkOrder) {
  if (!program().snapshots) GTEST_SKIP() << "the program has no snapshots";
  for (const pdgen::SnapshotLayout &layout : program().snapshots->layouts) {
    Bytes value(program().snapshots->record_bytes);
    for (size_t i = 0; i < value.size(); ++i) value[i] = static_cast<uint8_t>(i % 251);
    const Bytes mask(value.rbegin(), value.rend()), given = value;
    Bytes wanted = value, wanted_mask = mask, sent(value.size()), sent_mask = sent;
    for (const pdgen::PacketField &field : layout.fields) {
      for (Bytes *record : {&wanted, &wanted_mask}) {
        std::reverse(record->begin() + field.offset, record->begin() + field.offset + field.bytes);
      }
    }
    const uint32_t snapshot = make("snapshot_create", "", "",
                                   with("pipe", kPipe, "first_stage", 0, "last_stage", 3,
                                        "direction", layout.name == "ingress" ? 0 : 1));
    EXPECT_EQ(run("snapshot_capture_trigger_set", "",
                  with("snapshot", snapshot, "value", value.data(), "mask", mask.data())),
              BF_SUCCESS);
    EXPECT_EQ(soft_snapshot_trigger_get(snapshot, sent.data(), sent_mask.data()), BF_SUCCESS);
    EXPECT_EQ(hex(sent), hex(wanted));
    EXPECT_EQ(hex(sent_mask), hex(wanted_mask));
    EXPECT_EQ(value, given);
  }
}

}  // namespace
}  // namespace pd_test

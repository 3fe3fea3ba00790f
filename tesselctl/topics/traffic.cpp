// What a packet would meet: look-ups and traffic.
#include <algorithm>

#include "soft_sdk.h"
#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

namespace {

// "TABLE FIELD=VALUE... [NAME=VALUE...]": a key with the values of a packet, and options.
class PacketLine {
 public:
  PacketLine(Context &context, const Invocation &invocation,
             std::initializer_list<std::string_view> names)
      : word_(need_argument(invocation, 0, "the name of a table")),
        table_(resolve_table(word_)),
        words_(invocation, 1, names, table_.record),
        fields_(words_.record(*table_.record, table_.name())),
        options(words_.options(), 1, names),
        pipe(pipe_of(context, options, 0)) {
    fields_.finish(word_);
    key_ = packet_key(table_, fields_.data());
  }

  Word word() const { return word_; }
  const TableInfo &table() const { return table_; }
  const uint8_t *key() const { return key_.empty() ? nullptr : key_.data(); }
  uint32_t length() const { return static_cast<uint32_t>(key_.size()); }

 private:
  Word word_;
  TableInfo table_;
  FieldWords words_;
  RecordWriter fields_;
  std::vector<uint8_t> key_;

 public:
  const Options options;
  const bf_pipe_id_t pipe;
};

Row hit_row(const Context &context, const PacketLine &line, p4_pd_entry_handle_t entry,
            bool is_default) {
  return is_default ? default_entry_row(context.device, line.table(), line.word())
                    : entry_row(context.device, line.table(), entry, line.word());
}

// A packet that hits nothing in a table without a default entry.
Row miss_row(const PacketLine &line) {
  return Row().object("table", line.table().name()).object("result", "hits no entry");
}

void lookup(Context &context, const Invocation &invocation) {
  const PacketLine line(context, invocation, {"pipe"});
  pipe_entry_handle_t entry = 0;
  bool is_default = false;
  const bf_status_t status =
      soft_lookup(context.device.id(), line.pipe, line.table().record->number, line.key(),
                  line.length(), &entry, &is_default);
  if (status == BF_TABLE_MISS) return context.results.row(miss_row(line));
  check(status, line.word());
  context.results.row(hit_row(context, line, entry, is_default));
}

void traffic(Context &context, const Invocation &invocation) {
  const PacketLine line(context, invocation, {"pipe", "packets", "bytes", "hash"});
  const Options &options = line.options;
  const auto hash = to_bytes(options.number_or("hash", 0xffffffffu, 0));
  soft_traffic_t packets = {};
  packets.key = line.key();
  packets.key_length = line.length();
  packets.hash = hash.data() + 12;
  packets.hash_length = 4;
  packets.packets = options.quantity_or("packets", kPackets, 1, 1ull << 48);
  packets.bytes = options.quantity_or("bytes", kBytes, 64 * packets.packets, 1ull << 56);
  soft_hit_t hit = {};
  const bf_status_t status =
      soft_traffic_hit(context.device.id(), line.pipe, line.table().record->number, &packets, &hit);
  if (status == BF_TABLE_MISS) return context.results.row(miss_row(line));
  check(status, line.word());
  const char *colors[] = {"green", "yellow", "red"};
  Row row = hit_row(context, line, hit.entry, hit.is_default);
  if (line.table().indirect() && hit.member != 0) row.number("chose", hit.member);
  context.results.row(row.text("color", colors[hit.color % std::size(colors)]));
}

constexpr Command kCommands[] = {
    {"lookup", "TABLE FIELD=VALUE... [pipe=N]", "shows the entry that a packet would hit", lookup},
    {"traffic", "TABLE FIELD=VALUE... [pipe=N] [packets=N] [bytes=N] [hash=N]",
     "sends packets through a table: counters, meters and idle time follow", traffic,
     Kind::changes},
};

}  // namespace

extern const Topic kTrafficTopic = {"Packets", kCommands};

}  // namespace tesselctl

// Several threads, each on tables of its own, against one on all of them.
#include <memory>
#include <thread>

#include "device_rows.hpp"
#include "soft_device.hpp"

namespace bench {

namespace {

constexpr uint64_t operations_of_all = 800'000;

struct Column {
  const char *table;
  const char *field;
};

constexpr Column columns[] = {{"l2Lookup", "egrMd_dmacStation"},
                              {"l2Multicast", "egrMd_dmacStation"},
                              {"l2StaticMacSrcAddrDrop", "ingMd_smacStation"},
                              {"vrrpMacCheck", "ingMd_dmacStation"}};

void add_and_look_up(Table &table, const soft_key_field_t &field, uint64_t operations) {
  Key mask;
  for (uint8_t &byte : mask.bytes) byte = 0xff;
  Key key;
  for (uint64_t i = 0; i < operations; ++i) {
    put(key, field, mixed(i, 0xffffffu));
    table.add(key, mask, 0);
    expect(table.lookup(key) != 0, "look up what was added");
  }
}

// Every table gets as much, so operations is what the threads do together.
void run_threads(const SoftDevice &device, unsigned count, uint64_t operations) {
  std::vector<std::thread> threads;
  for (unsigned first = 0; first < count; ++first) {
    threads.emplace_back([&device, first, count, share = operations / std::size(columns)] {
      for (unsigned i = first; i < std::size(columns); i += count) {
        Table table(device, columns[i].table);
        add_and_look_up(table, table.field(columns[i].field), share);
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
}

Side on_threads(const char *name, unsigned count) {
  return {name,
          [count] {
            return [device = std::make_shared<SoftDevice>(), count](uint64_t operations) {
              run_threads(*device, count, operations);
            };
          },
          operations_of_all};
}

Row threads_row(const char *name, unsigned count, Goal goal) {
  Row row = {"threads",
             "add and look up, a table each",
             on_threads(name, count),
             {on_threads("one thread", 1)},
             goal};
  row.is_parallel = true;
  row.counted = 0;
  return row;
}

}  // namespace

std::vector<Row> thread_rows() {
  return {threads_row("two threads", 2, at_least(1.9)), threads_row("four threads", 4, {})};
}

}  // namespace bench

// Time and state: ageing on the virtual clock, and the state that the library keeps of a device.
#include <cjson/cJSON.h>

#include <algorithm>
#include <memory>

#include "soft_sdk.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/output_file.hpp"
#include "tesselctl/device/entry_line.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/kinds/digest_commands.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

// ---- Ageing ----

TableInfo ageing_table(const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a table");
  const TableInfo table = resolve_table(word);
  if (!table.ages()) throw Fault(word, std::string(table.name()) + " does not age its entries");
  return table;
}

void note_expired(bf_device_id_t, pipe_object_handle_t table, pipe_entry_handle_t entry,
                  void *events) {
  static_cast<Events *>(events)->expired.push_back({table, entry});
}

void age_enable(Context &context, const Invocation &invocation) {
  const TableInfo table = ageing_table(invocation);
  const Options options(invocation, 1, {"sweep", "min", "max", "ttl"});
  pipe_mgr_idle_params_t parameters = {};
  parameters.mode = PIPE_IDLE_NOTIFY;
  const auto milliseconds = [&](const char *name, uint64_t otherwise) {
    return static_cast<uint32_t>(options.number_or(name, 0xffffffffu, otherwise));
  };
  parameters.sweep_interval_ms = milliseconds("sweep", 1000);
  parameters.min_ttl_ms = milliseconds("min", 0);
  parameters.max_ttl_ms = milliseconds("max", 0);
  parameters.default_ttl_ms = milliseconds("ttl", 0);
  Call listen = context.device.prepare("idle_register_tmo_cb", table.name());
  listen.set("callback", reinterpret_cast<const void *>(&note_expired));
  listen.set("client_data", &context.device.events());
  check(listen.run(), invocation.arguments[0]);
  Call enable = context.device.prepare("idle_tmo_enable", table.name());
  check(enable.set("params", &parameters).run(), invocation.arguments[0]);
  Row row;
  context.results.done(row.object("table", table.name()), "ages its entries");
}

void age_disable(Context &context, const Invocation &invocation) {
  const TableInfo table = ageing_table(invocation);
  refuse_arguments_from(invocation, 1);
  check(context.device.prepare("idle_tmo_disable", table.name()).run(), invocation.arguments[0]);
  Row row;
  context.results.done(row.object("table", table.name()), "no longer ages its entries");
}

void age_advance(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "a number of milliseconds");
  refuse_arguments_from(invocation, 1);
  constexpr uint64_t kYear = 366ull * 24 * 3600 * 1000;
  std::vector<ExpiredEntry> &all_expired = context.device.events().expired;
  all_expired.clear();
  soft_clock_advance(parse_limited(word, kYear, "the time"));
  for (const ExpiredEntry &expired : all_expired) {
    const TableInfo table = table_of_handle(expired.table);
    EntryReader reader(context.device, table, EntryReader::Resources::settings);
    ItemBytes item;
    check(reader.read(expired.entry, item), word);
    Row row;
    row.object("table", table.name()).number("entry", expired.entry).object("event", "expired");
    add_entry(row, table, item.view(), Naming::handles);
    context.results.row(row);
  }
  tell_messages(context);
}

// ---- State ----

struct DeleteJson {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
  void operator()(char *text) const { cJSON_free(text); }
};

void state_log(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  const std::unique_ptr<cJSON, DeleteJson> document(cJSON_CreateObject());
  check(soft_device_log(context.device.id(), document.get()), word);
  const std::unique_ptr<char, DeleteJson> text(cJSON_Print(document.get()));
  if (!text) throw Fault(word, "there is no memory for the text");
  OutputFile file(context, word);
  file.write(text.get());
  file.write("\n");
  file.finish(Row().text("file", word.text), "written");
}

// The document of a file. A fault names the place in the file where it ends to be JSON.
std::unique_ptr<cJSON, DeleteJson> parse_document(Word file, const std::string &text) {
  const char *end = text.c_str();
  std::unique_ptr<cJSON, DeleteJson> document(
      cJSON_ParseWithLengthOpts(text.c_str(), text.size() + 1, &end, 1));
  if (document) return document;
  const std::string_view before(text.data(), static_cast<size_t>(end - text.c_str()));
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const size_t start = before.rfind('\n') + 1;  // 0 in the first line
  throw Fault(
      file, fmt::format("{}:{}:{}: this is not JSON", file.text, line, before.size() - start + 1));
}

void state_restore(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  const std::string text = read_input(context.path(word));
  const auto document = parse_document(word, text);
  check(soft_device_restore(context.device.id(), document.get()), word);
  Row row;
  context.results.done(row.text("file", word.text), "read");
}

constexpr Command kCommands[] = {
    {"age enable", "TABLE [sweep=MS] [ttl=MS] [min=MS] [max=MS]",
     "starts ageing; ttl is that of entries added without one", age_enable, Kind::changes},
    {"age disable", "TABLE", "ends ageing", age_disable, Kind::changes},
    {"age advance",
     "MS",
     "lets time pass and lists the entries that expire and the messages that arrive",
     age_advance,
     Kind::changes,
     {},
     false,
     true},
    {"state log", "FILE", "writes the member and group state of the library", state_log},
    {"state restore", "FILE", "reads it back", state_restore, Kind::changes},
};

}  // namespace

std::span<const Command> state_commands() { return kCommands; }

}  // namespace tesselctl

#include "tesselctl/device/entry_texts.hpp"

#include <fmt/format.h>

#include "tesselctl/device/read_back.hpp"

namespace tesselctl {

ValueStrings::ValueStrings(const Device &device, const TableInfo &table)
    : call_(device.prepare("table_value", table.name())), buffer_(binding().sizes.value, '\0') {
  call_.set("read_from_hardware", uint64_t{0}).set("buffer", buffer_.data());
}

std::string_view ValueStrings::line(p4_pd_entry_handle_t entry, Word word) {
  const auto length = static_cast<size_t>(call_.set("entry", uint64_t{entry}).run());
  if (length == 0) throw Fault(word, fmt::format("it has no entry {} that can be read", entry));
  buffer_[length] = '\n';  // in place of the NUL
  return std::string_view(buffer_).substr(0, length + 1);
}

namespace {

class Dump {
 public:
  Dump(Context &context, const TableInfo &table, Word word)
      : context_(context), table_(table), word_(word), values_(context.device, table) {
    const Settings &settings = context.settings;
    rows_ = settings.json || settings.count || context.results.asks_for_names();
    context.results.expect(row(0, {}));
  }

  void add(p4_pd_entry_handle_t entry) {
    std::string_view line = values_.line(entry, word_);
    if (!rows_) return context_.out.write(line);
    line.remove_suffix(1);
    context_.results.row(row(entry, line));
  }

 private:
  Row row(p4_pd_entry_handle_t entry, std::string_view line) const {
    return Row().object("table", table_.name()).number("entry", entry).text("value", line);
  }

  Context &context_;
  const TableInfo &table_;
  Word word_;
  ValueStrings values_;
  bool rows_;
};

}  // namespace

void dump_values(Context &context, const TableInfo &table, Word word) {
  Dump dump(context, table, word);
  for_each_entry(context.device, table, word, [&](p4_pd_entry_handle_t entry) { dump.add(entry); });
}

void dump_value(Context &context, const TableInfo &table, p4_pd_entry_handle_t entry, Word word) {
  Dump(context, table, word).add(entry);
}

std::string counter_label(const Device &device, uint32_t table, p4_pd_entry_handle_t entry) {
  std::string label(binding().sizes.label, '\0');
  Call call = device.prepare("stringify_counter_matchspec", "");
  call.set("table_handle", uint64_t{table})
      .set("entry", uint64_t{entry})
      .set("buffer", label.data());
  label.resize(static_cast<size_t>(call.run()));
  label.erase(label.find_last_not_of(' ') + 1);
  return label;
}

}  // namespace tesselctl

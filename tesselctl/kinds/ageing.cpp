// Ageing of tables in images.
#include <fmt/format.h>

#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

namespace {

class Ageing : public CellItems<NoIdentity, p4_pd_idle_time_params_t> {
 public:
  explicit Ageing(const char *table) : table_(table) {}

 protected:
  using Params = p4_pd_idle_time_params_t;

  void parse_cell(ValueScanner &line, NoIdentity &, Params &params) const override {
    const LineWords words(line, {"mode", "sweep", "max", "min", "ttl"});
    params.mode = words.number32("mode");
    params.sweep_interval_ms = words.number32("sweep");
    params.max_ttl_ms = words.number32("max");
    params.min_ttl_ms = words.number32("min");
    params.default_ttl_ms = words.number32("ttl");
  }
  void print_cell(std::string &text, const NoIdentity &, const Params &params) const override {
    fmt::format_to(std::back_inserter(text), "mode={} sweep={} max={} min={} ttl={}", params.mode,
                   params.sweep_interval_ms, params.max_ttl_ms, params.min_ttl_ms,
                   params.default_ttl_ms);
  }
  void add_cell(Row &row, const NoIdentity &, const Params &params) const override {
    row.object("what", "ageing").number("mode", params.mode);
    row.number("sweep", params.sweep_interval_ms).number("max", params.max_ttl_ms);
    row.number("min", params.min_ttl_ms).number("ttl", params.default_ttl_ms);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    Params params = {};
    Call call = from.device.prepare("idle_params_get", table_);
    if (call.set("params", &params).run() == BF_SUCCESS) visit({}, params);
  }
  void write_cell(Target &to, Edit edit, const NoIdentity &, const Params &params,
                  Word word) const override {
    const bool off = edit == Edit::remove;
    Call call = to.device.prepare(off ? "idle_tmo_disable" : "idle_tmo_enable", table_);
    check(call.set_if_taken("params", static_cast<const void *>(&params)).run(), word);
  }

 private:
  const char *table_;
};

constexpr Step kSteps[] = {{Phase::ageing_off, Edit::remove},
                           {Phase::ageing_off, Edit::modify, Edit::remove},
                           {Phase::ageing, Edit::modify},
                           {Phase::ageing, Edit::add}};

}  // namespace

extern const ItemKind kAgeingKind = {kTableObjects, "ageing", kSteps, [](const char *table) {
                                       std::unique_ptr<ObjectItems> items;
                                       if (resolve_table({table, 0}).ages()) {
                                         items = std::make_unique<Ageing>(table);
                                       }
                                       return items;
                                     }};

}  // namespace tesselctl

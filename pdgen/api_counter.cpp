// Counters: read, write and synchronise.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Counters";

// A direct counter goes by the handle of its table.
std::string handle_of(const Resource &counter) {
  return hex32(counter.direct() ? counter.table->handle : counter.handle);
}

void add_for_counter(Api &api, const Resource &counter) {
  const Parameter cell = counter.direct() ? entry() : Parameter{"uint32_t", "index"};
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const std::string &arguments) {
    const std::string verb = operation == "hw_sync" ? "sync" : operation;
    parameters.insert(parameters.begin(), {session(), target()});
    api.add(kGroup,
            {resource_function(api.program(), counter, operation), "p4_pd_status_t",
             std::move(parameters),
             expand("return pd::$0_$1counter($2, session, target, $3)",
                    {verb, counter.direct() ? "direct_" : "", handle_of(counter), arguments}),
             "counter_" + operation, counter.name, ""});
  };
  add("read", {cell, {"uint32_t", "flags"}, {"p4_pd_counter_values_t *", "values"}},
      cell.name + ", flags, values");
  add("write", {cell, {"p4_pd_counter_values_t", "values"}}, cell.name + ", values");
  add("hw_sync", {sync_callback(), cookie()}, "callback, cookie");
}

}  // namespace

void add_counter_functions(Api &api) {
  api.add_note(
      "Counters",
      "counter_read_ and counter_write_ name the cell by entry handle for the counter of "
      "a table, else by index. A read with P4_PD_READ_FROM_HARDWARE in flags brings the "
      "cell up to date first; other flags mean nothing. counter_hw_sync_ does so for the "
      "whole counter and has the pipeline manager call the caller when it is done. "
      "For the counter of a table the pipe of the target matters to synchronisation only.");
  api.begin_unit("counter", {"counter.hpp"});
  for (const Resource &counter : api.program().counters) add_for_counter(api, counter);
}

}  // namespace pdgen

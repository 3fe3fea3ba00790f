// Registers: typed access by name, and access with the pipeline manager's records by handle.
#include <fmt/format.h>

#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

constexpr const char *kGroup = "Registers";

Parameter index() { return {"uint32_t", "index"}; }
Parameter flags() { return {"uint32_t", "flags"}; }
Parameter first() { return {"uint32_t", "first"}; }
Parameter index_count() { return {"uint32_t", "index_count"}; }

// The type of a value: the smallest integer that holds the cell.
std::string value_type(const Resource &reg) {
  return fmt::format("uint{}_t", reg.width <= 8 ? 8 : reg.width);
}

void add_for_register(Api &api, const Resource &reg) {
  const Parameter value = {"const " + value_type(reg) + " *", "value"};
  const Parameter values = {value_type(reg) + " *", "values"};
  const Parameter value_count = {"uint32_t *", "value_count"};
  const std::string shape = fmt::format("{{{}, {}}}", hex32(reg.handle), reg.width);
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const char *statement) {
    parameters.insert(parameters.begin(), {session(), target()});
    api.add(kGroup, {resource_function(api.program(), reg, operation), "p4_pd_status_t",
                     std::move(parameters), expand(statement, {shape, hex32(reg.handle)}),
                     "register_" + operation, reg.name, ""});
  };
  add("read", {index(), flags(), values, value_count},
      "return pd::read_register($0, session, target, index, flags, values, value_count)");
  add("write", {index(), value}, "return pd::write_register($0, session, target, index, value)");
  add("write_all", {value}, "return pd::write_all_cells($0, session, target, value)");
  add("reset_all", {}, "return pd::reset_register($1, session, target)");
  add("range_read",
      {first(), index_count(), flags(), {"uint32_t *", "indexes_read"}, values, value_count},
      "return pd::read_register_range($0, session, target, first, index_count, flags, "
      "indexes_read, values, value_count)");
  add("range_reset", {first(), index_count()},
      "return pd::reset_register_range($1, session, target, first, index_count)");
  add("hw_sync", {sync_callback(), cookie()},
      "return pd::sync_register($1, session, target, callback, cookie)");
}

class GenericFunctions {
 public:
  explicit GenericFunctions(Api &api) : api_(api) {}

  void add(const std::string &operation, std::vector<Parameter> parameters,
           const std::string &call) {
    parameters.insert(parameters.begin(), session());
    api_.add(kGroup, {program_function(api_.program(), operation), "p4_pd_status_t",
                      std::move(parameters), "return pd::" + call, operation, "", ""});
  }

 private:
  Api &api_;
};

void add_generic(Api &api) {
  const Parameter reg = {"uint32_t", "reg"};
  const Parameter table = {"uint32_t", "table"};
  const Parameter query = {"pipe_stful_query_t *", "query"};
  const Parameter cell = {"const pipe_stful_cell_t *", "cell"};
  GenericFunctions functions(api);
  functions.add("register_read_direct", {target(), table, entry(), flags(), query},
                "query_entry_register(table, session, target, entry, flags, query)");
  functions.add("register_write_direct", {device(), table, entry(), cell},
                "set_entry_register(table, session, device, entry, cell)");
  functions.add("register_hw_sync_direct", {target(), table, sync_callback(), cookie()},
                "sync_entry_register(table, session, target, callback, cookie)");
  functions.add("register_read_indirect", {target(), reg, index(), flags(), query},
                "query_register(reg, session, target, index, flags, query)");
  functions.add("register_write_indirect", {target(), reg, index(), cell},
                "set_register_cell(reg, session, target, index, cell)");
  functions.add("register_hw_sync_indirect", {target(), reg, sync_callback(), cookie()},
                "sync_register(reg, session, target, callback, cookie)");
  functions.add("register_reset_all_indirect", {target(), reg},
                "reset_register(reg, session, target)");
  functions.add("register_range_reset_indirect", {target(), reg, first(), index_count()},
                "reset_register_range(reg, session, target, first, index_count)");
  functions.add("register_write_all_indirect", {target(), reg, cell},
                "set_all_register_cells(reg, session, target, cell)");
}

}  // namespace

void add_register_functions(Api &api) {
  api.add_note("Registers",
               "One index of a register yields a value for each of its instances, one a pipe as "
               "the pipeline manager counts them. register_read_ and register_range_read_ write "
               "them one after another, those of an index behind those of the index before it, "
               "and how many they are; values must have room for all. P4_PD_READ_FROM_HARDWARE in "
               "flags asks for the values in the device; other flags mean nothing. A range may "
               "end early: indexes_read says how far it came. A range of no indexes yields no "
               "values; the register and the first index are looked at all the same. "
               "A 1-bit register stores 1 for any value but 0. P4_PD_NO_MEMORY when the cells "
               "could not be allocated. The functions whose names end in _direct or _indirect "
               "take a table's or register's handle and the pipeline manager's own records; "
               "register_write_direct gives the table's handle for the register's too.");
  api.begin_unit("register", {"register.hpp"});
  for (const Resource &reg : api.program().registers) add_for_register(api, reg);
  add_generic(api);
}

}  // namespace pdgen

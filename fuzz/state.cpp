// Any text as a document of state: it is refused, or what the library then keeps is a document that
// restores the same.
#include <memory>

#include "fuzz/tool.hpp"
#include "soft_sdk.h"

using namespace tesselctl;

namespace {

struct DeleteJson {
  void operator()(cJSON *json) const { cJSON_Delete(json); }
};
using Json = std::unique_ptr<cJSON, DeleteJson>;

Json log_of(const Device &device) {
  Json document(cJSON_CreateObject());
  require(soft_device_log(device.id(), document.get()) == BF_SUCCESS, "state can be logged");
  return document;
}

}  // namespace

void try_input(std::string_view input) {
  if (input.starts_with("\xfd"
                        "7zXZ"))
    return;  // goes to a program of its own
  const MemoryFile file(input);
  Tool tool;
  if (!tool.run("state restore @", file)) return;
  const Json first = log_of(tool.device);
  const Device other({.id = 1, .pipes = 2});
  require(soft_device_restore(other.id(), first.get()) == BF_SUCCESS, "logged state restores");
  require(cJSON_Compare(first.get(), log_of(other).get(), 1) != 0, "restored state is the same");
}

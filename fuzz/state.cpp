// Any text as a document of state: it is refused, or what the library then keeps is a document that
// restores the same.
#include "fuzz/target.hpp"

#include <cjson/cJSON.h>

#include <memory>

#include "fuzz/memory_file.hpp"
#include "soft_sdk.h"
#include "tesselctl/command/local_runner.hpp"

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

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  const std::string_view text = text_of(data, size);
  if (text.starts_with("\xfd"
                       "7zXZ"))
    return 0;  // goes to a program of its own
  const MemoryFile file(text);
  Device device(DeviceOptions{.id = 0, .pipes = 2});
  Output out;
  Output errors;
  LocalRunner runner(device, out, errors, {});
  const std::string line = "state restore " + file.path();
  if (runner.run({"input", 1, line}) != LineOutcome::done) return 0;

  const Json first = log_of(device);
  const Device other(DeviceOptions{.id = 1, .pipes = 2});
  require(soft_device_restore(other.id(), first.get()) == BF_SUCCESS, "logged state restores");
  require(cJSON_Compare(first.get(), log_of(other).get(), 1) != 0, "restored state is the same");
  return 0;
}

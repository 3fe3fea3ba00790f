// Any text as an image, and any bytes as messages between client and server.
#include "fuzz/target.hpp"

#include "fuzz/memory_file.hpp"
#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/server/protocol.hpp"
#include "tesselctl/state/image.hpp"

using namespace tesselctl;

namespace {

std::string image_of(const Device &device) {
  std::string text;
  save_image(device, [&](std::string_view piece) { text += piece; });
  return text;
}

LineOutcome run(Device &device, const std::string &command, const MemoryFile &file) {
  Output out;
  Output errors;
  LocalRunner runner(device, out, errors, {.terse = true});
  return runner.run({"input", 1, command + " " + file.path()});
}

// What a device holds after a load is an image that makes another device the same, by load and by
// apply; also after one that failed half way.
void try_image(std::string_view text) {
  const MemoryFile file(text);
  Device device(DeviceOptions{.id = 0, .pipes = 2});
  run(device, "load", file);
  const std::string saved = image_of(device);
  const MemoryFile saved_file(saved);
  require(run(device, "diff", saved_file) == LineOutcome::done, "a device equals its image");
  {
    Device other(DeviceOptions{.id = 1, .pipes = 2});
    require(run(other, "load", saved_file) == LineOutcome::done, "a saved image loads");
    require(image_of(other) == saved, "a loaded image is saved again");
  }
  {
    Device other(DeviceOptions{.id = 1, .pipes = 2});
    require(run(other, "apply", saved_file) == LineOutcome::done, "a saved image applies");
    require(run(other, "diff", saved_file) == LineOutcome::done, "an applied image is there");
  }
  run(device, "apply --atomic", file);
}

void try_message(const Message &message) {
  switch (message.type) {
    case MessageType::request: {
      const std::string bytes = encode_request(decode_request(message.payload));
      require(bytes.substr(kMessageHeader) == message.payload,
              "a request is written as it is read");
      break;
    }
    case MessageType::end:
      decode_end(message.payload);
      break;
    default:
      break;
  }
}

// The bytes come in pieces of sizes that are in themselves.
void try_messages(std::string_view bytes) {
  MessageReader reader;
  while (!bytes.empty()) {
    const size_t piece = 1 + static_cast<uint8_t>(bytes[0]) % 32;
    reader.add(bytes.substr(0, piece));
    bytes.remove_prefix(std::min(piece, bytes.size()));
    try {
      while (const auto message = reader.front()) {
        try_message(*message);
        reader.pop();
      }
    } catch (const Fault &) {
      return;
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  const std::string_view text = text_of(data, size);
  if (text.starts_with("tesselctl")) {
    try_image(text);
  } else {
    try_messages(text);
  }
  return 0;
}

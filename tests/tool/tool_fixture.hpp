// A device, and the command layer on it with its output captured.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/command/script.hpp"
#include "tesselctl/program/library.hpp"
#include "tesselctl/state/image.hpp"

namespace tesselctl {

inline const bool has_used_program = (use_program(bindings::pd_binding), true);

struct TemporaryDirectory {
  TemporaryDirectory() : name(mkdtemp(std::string("/tmp/tesselctl.XXXXXX").data())) {}
  ~TemporaryDirectory() { std::filesystem::remove_all(name); }
  std::string name;
};

inline std::string fault_of(const std::function<void()> &body) {
  try {
    body();
  } catch (const Fault &fault) {
    return fault.sentence();
  }
  return "no fault";
}

class ToolTest : public ::testing::Test {
 protected:
  // What the line prints; a fault comes as "COLUMN: sentence".
  std::string run(std::string_view line) {
    try {
      run_line(context_, line);
    } catch (const Fault &fault) {
      return out_.take() + std::to_string(fault.column()) + ": " + fault.sentence();
    }
    return out_.take();
  }

  Device device_{DeviceOptions{.id = 0, .pipes = 2}};
  Output out_;
  Output errors_;
  LocalRunner runner_{device_, out_, errors_, Settings{.terse = true}};
  Context &context_ = runner_.context();
};

}  // namespace tesselctl

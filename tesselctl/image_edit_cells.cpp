// Editing by lines of images: counters, meters, registers, hash calculations and value sets.
#include <fmt/format.h>

#include "soft_state.h"
#include "tesselctl/image_edit.hpp"
#include "tesselctl/read_back.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

constexpr uint64_t kMost32 = 0xffffffffu;

}  // namespace

void ImageEditor::edit_cell(ValueScanner &rest) {
  const Word word = rest.word();
  const int64_t cell = rest.decimal();
  if (cell < 0) throw Fault(word, "cells are numbered from 0");
  rest.expect(" ");
  const auto index = static_cast<uint64_t>(cell);
  if (section_ == Section::counter) return edit_counter_cell(index, rest);
  if (section_ == Section::meter) return edit_meter_cell(index, rest);
  write_register("register_write", rest, index);
}

void ImageEditor::edit_counter_cell(uint64_t cell, const ValueScanner &rest) const {
  const Attributes words(rest);
  words.refuse_others({"pipe", "packets", "bytes"});
  p4_pd_counter_values_t values = {};
  if (edit_ != Edit::remove) {
    values.packets = words.number("packets", ~uint64_t{0}, 0);
    values.bytes = words.number("bytes", ~uint64_t{0}, 0);
  }
  const p4_pd_device_target_t target =
      device_.target_of(static_cast<uint32_t>(words.number("pipe", device_.pipes() - 1, 0)));
  Call call = device_.prepare("counter_write", object_);
  refused(call.set("target", &target).set("index", cell).set("values", &values).run());
}

void ImageEditor::edit_meter_cell(uint64_t cell, const ValueScanner &rest) const {
  const Attributes words(rest);
  words.refuse_others({"meter", "type"});
  std::optional<p4_pd_bytes_meter_spec_t> spec = words.meter();
  if (!spec) throw Fault(keyword_, "meter= is missing");
  spec->meter_type =
      static_cast<uint32_t>(words.number("type", kMost32, PD_METER_TYPE_COLOR_UNAWARE));
  if (edit_ == Edit::remove) {
    *spec = {};
    spec->meter_type = PD_METER_TYPE_COLOR_UNAWARE;
  }
  Call call = device_.prepare("meter_set", object_);
  refused(call.set("index", cell).set("meter_spec", &*spec).run());
}

// One value for every pipe. Removed values become zero.
void ImageEditor::write_register(const char *family, const ValueScanner &rest,
                                 std::optional<uint64_t> cell) {
  const Word word = rest.word();
  const std::vector<uint64_t> values = number_list(&word);
  if (values.size() != device_.pipes()) {
    throw Fault(word, fmt::format("there should be {} values, one a pipe", device_.pipes()));
  }
  for (uint32_t pipe = 0; pipe < device_.pipes(); ++pipe) {
    const auto value = edit_ == Edit::remove ? 0 : static_cast<uint32_t>(values[pipe]);
    if (register_->width < 32 && value >> register_->width != 0) {
      throw Fault(word, fmt::format("the cells have {} bits", register_->width));
    }
    const p4_pd_device_target_t target = device_.target_of(pipe);
    Call call = device_.prepare(family, register_->name);
    call.set("target", &target).set("value", &value);
    if (cell) call.set("index", *cell);
    refused(call.run());
  }
}

void ImageEditor::edit_seed(ValueScanner &rest) {
  const uint64_t seed = rest.hexadecimal();
  Call call = device_.prepare("hash_calc_seed_set", object_);
  refused(call.set("seed", edit_ == Edit::remove ? 0 : seed).run());
}

void ImageEditor::edit_set_value(ValueScanner &rest) {
  const Word word = rest.word();
  const uint64_t value = rest.hexadecimal();
  if (value > kMost32) throw Fault(word, "values have 32 bits");
  const Attributes words(rest);
  words.refuse_others({"mask", "direction", "pipe", "parser"});
  p4_pd_parser_target_t target = {};
  target.device_id = device_.id();
  target.direction = static_cast<uint32_t>(words.number("direction", 1, 0));
  target.pipe_id = static_cast<uint16_t>(words.number("pipe", 0xffff, BF_ALL_PIPES));
  target.parser_id = static_cast<uint8_t>(words.number("parser", 0xff, SOFT_ALL_PARSERS));
  p4_pd_entry_handle_t entry = 0;
  const bool remove = edit_ == Edit::remove;
  Call call = device_.prepare(remove ? "pvs_entry_handle_get" : "pvs_entry_add", object_);
  call.set("target", &target).set("value", value).set("entry", &entry);
  refused(call.set("mask", words.number("mask", kMost32, kMost32)).run());
  if (!remove) return;
  Call erase = device_.prepare("pvs_entry_delete", object_);
  refused(erase.set("entry", uint64_t{entry}).run());
}

}  // namespace tesselctl

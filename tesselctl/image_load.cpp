#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/command.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/image.hpp"
#include "tesselctl/image_edit.hpp"
#include "tesselctl/value.hpp"

namespace tesselctl {

namespace {

constexpr std::string_view kFirst = "tesselctl image ";

// "KEYWORD REST"
struct ImageLine {
  explicit ImageLine(std::string_view text) {
    const size_t blank = std::min(text.find(' '), text.size());
    const size_t behind = std::min(blank + 1, text.size());
    keyword = {text.substr(0, blank), 1};
    rest = {text.substr(behind), behind + 1};
  }
  Word keyword;
  Word rest;
};

void check_first(std::string_view text) {
  if (!text.starts_with(kFirst)) throw Fault({text, 1}, "this is no image of tesselctl");
  ValueScanner rest(text.substr(kFirst.size()), kFirst.size() + 1);
  const Word version = rest.word();
  if (rest.decimal() != kImageVersion) {
    throw Fault(version, fmt::format("this tool reads images of version {}", kImageVersion));
  }
  rest.expect(" ");
  if (rest.rest() != program().name) {
    throw Fault(rest.word(), std::string("the device runs ") + program().name);
  }
}

}  // namespace

bool ImageFrame::takes(std::string_view text) {
  ++lines_;
  if (lines_ == 1) {
    check_first(text);
    return true;
  }
  const ImageLine line(text);
  if (ended_) throw Fault(line.keyword, "nothing should follow the line 'end'");
  if (line.keyword.text == "end") {
    if (parse_limited(line.rest, ~uint64_t{0}, "the number of lines") != lines_ - 1) {
      throw Fault(line.rest, fmt::format("there are {} lines before this one", lines_ - 1));
    }
    ended_ = true;
    return true;
  }
  if (line.keyword.text != "pipes") return false;
  pipes_ = static_cast<uint32_t>(parse_limited(line.rest, 8, "pipes"));
  if (wanted_pipes_ != 0 && pipes_ != wanted_pipes_) {
    throw Fault(line.rest, fmt::format("the device has {} pipes", wanted_pipes_));
  }
  return true;
}

void ImageFrame::finish() const {
  if (ended_) return;
  throw Fault({"end of file", 1}, "the image is not whole: the line 'end' is missing");
}

Fault fault_in(std::string_view file, uint64_t line, const Fault &fault) {
  return Fault(fmt::format("{}:{}:{}: {}", file, line, fault.column(), fault.sentence()));
}

LoadCounts load_image(const Device &device, std::string_view file, const LineSource &lines) {
  ImageFrame frame(device.pipes());
  ImageEditor editor(device);
  std::string_view text;
  while (lines(text)) {
    if (frame.lines() % 4096 == 0) check_interrupt();
    try {
      if (frame.takes(text)) continue;
      const ImageLine line(text);
      if (!editor.open(line.keyword, line.rest)) editor.edit(Edit::add, text);
    } catch (const Fault &fault) {
      throw fault_in(file, frame.lines(), fault);
    }
  }
  try {
    frame.finish();
  } catch (const Fault &fault) {
    throw fault_in(file, frame.lines() + 1, fault);
  }
  editor.counts.lines = frame.lines();
  return editor.counts;
}

}  // namespace tesselctl

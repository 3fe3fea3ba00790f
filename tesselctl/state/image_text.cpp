// The text of images: printer and reader.
#include <fmt/format.h>

#include <algorithm>
#include <optional>

#include "tesselctl/program/value.hpp"
#include "tesselctl/state/checksum.hpp"
#include "tesselctl/state/image.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

constexpr size_t kPiece = 1u << 18;
constexpr std::string_view kFirst = "tesselctl image ";
constexpr std::string_view kChecksum = " checksum=";

// ---- Printer ----

class ImagePrinter {
 public:
  explicit ImagePrinter(const TextSink &sink) : sink_(&sink) {}

  std::string &text() { return text_; }
  void end_line() {
    checksum_.add_line(std::string_view(text_).substr(line_start_));
    text_ += '\n';
    line_start_ = text_.size();
    ++lines_;
    if (text_.size() < kPiece) return;
    (*sink_)(text_);
    text_.clear();
    line_start_ = 0;
  }
  void line(std::string_view text) {
    text_ += text;
    end_line();
  }
  void finish() {
    text_ += fmt::format("end {}{}{:016x}\n", lines_, kChecksum, checksum_.value());
    (*sink_)(text_);
  }

 private:
  const TextSink *sink_;
  std::string text_;
  size_t line_start_ = 0;
  uint64_t lines_ = 0;
  Checksum checksum_;
};

// The items of all kinds of an object, behind a heading when there are any.
void print_object(ImagePrinter &printer, Source &from, std::span<const ItemKind *const> of_object,
                  const char *name) {
  bool is_open = false;
  for (const ItemKind *kind : of_object) {
    const auto items = kind->open(name);
    if (!items) continue;
    items->read(from, [&](const ItemView &item) {
      if (!is_open) printer.line(fmt::format("{} {}", kind->object.keyword, name));
      is_open = true;
      printer.text() += kind->keyword;
      printer.text() += ' ';
      items->print(printer.text(), item);
      printer.end_line();
    });
  }
}

}  // namespace

void save_image(const Device &device, const TextSink &sink) {
  Numbering numbering = Numbering::of_device(device);
  save_image(Source{device, numbering}, sink);
}

std::string image_of(const Device &device) {
  std::string text;
  save_image(device, [&](std::string_view piece) { text += piece; });
  return text;
}

void save_image(Source from, const TextSink &sink) {
  ImagePrinter printer(sink);
  printer.line(fmt::format("{}{} {}", kFirst, kImageVersion, program().name));
  printer.line(fmt::format("pipes {}", from.device.pipes()));
  for (size_t at = 0; at < kinds().size();) {
    const auto of_object = kinds_of_same_objects(at);
    at += of_object.size();
    const ObjectKind &object = of_object.front()->object;
    for (size_t i = 0; const char *name = object.name(i); ++i) {
      print_object(printer, from, of_object, name);
    }
  }
  printer.finish();
}

// ---- Reader ----

namespace {

// The first two lines and the last one, by which version, program and wholeness are known.
class ImageFrame {
 public:
  explicit ImageFrame(uint32_t pipes) : wanted_pipes_(pipes) {}

  // Whether the next line is one of the frame, which is checked then. Throws Fault.
  bool takes(std::string_view text) {
    ++lines_;
    if (ended_) throw Fault(KeywordLine(text).keyword, "nothing should follow the line 'end'");
    const bool is_frame = lines_ <= 2 || text.starts_with("end ");
    if (lines_ == 1) {
      check_first(text);
    } else if (lines_ == 2) {
      check_pipes(KeywordLine(text));
    } else if (is_frame) {
      check_end(KeywordLine(text).rest);
    }
    if (!ended_) checksum_.add_line(text);
    return is_frame;
  }
  // Behind the last line. Throws Fault when the image is not whole.
  void finish() {
    ++lines_;
    if (ended_) return;
    throw Fault({"end of file", 1}, "the image is not whole: the line 'end' is missing");
  }
  uint64_t lines() const { return lines_; }
  uint32_t pipes() const { return pipes_; }

 private:
  static void check_first(std::string_view text) {
    if (!text.starts_with(kFirst)) throw Fault({text, 1}, "this is no image of tesselctl");
    ValueScanner rest(text.substr(kFirst.size()), kFirst.size() + 1);
    const Word version = rest.here();
    if (rest.decimal() != kImageVersion) {
      throw Fault(version, fmt::format("this tool reads images of version {}", kImageVersion));
    }
    rest.expect(" ");
    if (rest.rest() != program().name) {
      throw Fault(rest.word(), std::string("the device runs ") + program().name);
    }
  }
  void check_pipes(const KeywordLine &line) {
    if (line.keyword.text != "pipes")
      throw Fault(line.keyword, "the line 'pipes' should come here");
    pipes_ = static_cast<uint32_t>(parse_limited(line.rest, 8, "pipes"));
    if (pipes_ == 0 || (wanted_pipes_ != 0 && pipes_ != wanted_pipes_)) {
      throw Fault(line.rest, wanted_pipes_ == 0
                                 ? "a device has 1 to 8 pipes"
                                 : fmt::format("the device has {} pipes", wanted_pipes_));
    }
  }
  // "14", from before there were checksums, or "14 checksum=9f86d081884c7d65".
  void check_end(Word rest) {
    const std::string count = fmt::format("{}", lines_ - 1);
    const size_t digits = std::min(rest.text.find(' '), rest.text.size());
    if (rest.text.substr(0, digits) != count) {
      throw Fault(rest.first(digits), fmt::format("there are {} lines before this one", count));
    }
    const std::string checksum = fmt::format("{}{:016x}", kChecksum, checksum_.value());
    if (rest.text.size() != digits && rest.text.substr(digits) != checksum) {
      throw Fault(rest.from(digits + 1),
                  fmt::format("the image is damaged: its lines have{}", checksum));
    }
    ended_ = true;
  }

  uint32_t wanted_pipes_;
  uint32_t pipes_ = 0;
  uint64_t lines_ = 0;
  bool ended_ = false;
  Checksum checksum_;
};

// Throws the fault of a line as one of the whole file.
template <class Body>
void in_line(std::string_view file, const ImageFrame &frame, Body body) {
  try {
    body();
  } catch (const Fault &fault) {
    throw Fault(fmt::format("{}:{}:{}: {}", file, frame.lines(), fault.column(), fault.sentence()));
  }
}

}  // namespace

uint32_t read_image(std::string_view file, const LineSource &lines, uint32_t pipes,
                    const std::function<void(const ItemLine &)> &visit) {
  ImageFrame frame(pipes);
  ItemLines objects;
  std::string_view text;
  while (lines(text)) {
    if (frame.lines() % 4096 == 0) check_interrupt();
    in_line(file, frame, [&] {
      if (frame.takes(text)) return;
      if (const auto line = objects.read(KeywordLine(text))) visit(*line);
    });
  }
  in_line(file, frame, [&] { frame.finish(); });
  return frame.pipes();
}

ImageSource::ImageSource(const std::string &path, std::string_view shown)
    : lines_(path), shown_(shown) {
  ImageFrame frame(0);
  std::string_view text;
  while (frame.pipes() == 0) {
    const bool is_there = lines_.next(text);
    in_line(shown, frame,
            [&] { is_there ? static_cast<void>(frame.takes(text)) : frame.finish(); });
    first_.emplace_back(text);
  }
  pipes_ = frame.pipes();
}

LoadCounts ImageSource::load(const Device &device) {
  size_t given = 0;
  return load_image(device, shown_, [&](std::string_view &line) {
    if (given == first_.size()) return lines_.next(line);
    line = first_[given++];
    return true;
  });
}

LoadCounts load_image(const Device &device, std::string_view file, const LineSource &lines) {
  Numbering numbering;
  Target to = {device, numbering};
  read_image(file, lines, device.pipes(), [&](const ItemLine &line) {
    line.items.write(to, Edit::add, line.item, line.keyword);
  });
  return to.counts;
}

}  // namespace tesselctl

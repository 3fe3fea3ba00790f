// Images: everything that a device holds, as text.
//
//   tesselctl image 1 tessel_switch         the first line: version and program
//   pipes 4
//   profile ecmpMemberActionProfile         what follows belongs to the profile
//   member 1 ('setEcmpNextHop',(0x0009,)),
//   group 1 size=4 members=1,2 inactive=2
//   fallback 1
//   table ipv4ShortMaskLpm
//   default (((),('onMiss',()),),(0,True))
//   entry ((( 0x01,0x0a000000,0x0008,),('setNextHop',(0x000c,)),),(0,True)) ttl=0
//   ageing mode=1 sweep=1000 max=0 min=0 ttl=0
//   counter pdpClassCount                   cells that have counted
//   cell 3 pipe=0 packets=10 bytes=640
//   meter pdpMeter                          cells that were set
//   cell 3 meter=1000,128,2000,256 type=0
//   register ingVlanCheckData               cells by their values, one a pipe
//   all 1,1,1,1                             of those that have no line
//   cell 8 0,0,0,0
//   hash hashOuterEthHdr
//   seed 0x1
//   valueset recirc_ports
//   value 0x40 mask=0xf0 direction=0 pipe=65535 parser=255
//   end 14                                  the lines before it: the image is whole
//
// Values are the value strings of the library. Members and groups are numbered from 1 in each
// profile, and entries of bound tables name those numbers, so that equal devices have equal images
// whatever their handles. Entries, defaults and members may be followed by what they carry: ttl=MS,
// meter=CIR,CBS,PIR,PBS and packets=N bytes=N of direct counters.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tesselctl/device.hpp"

namespace tesselctl {

inline constexpr int kImageVersion = 1;

using TextSink = std::function<void(std::string_view)>;

// Writes the image in pieces of some size. Throws Fault. Counters are brought up to date first.
enum class ImagePart : uint8_t { all, profiles };
void save_image(const Device &device, const TextSink &sink, ImagePart part = ImagePart::all);

struct LoadCounts {
  uint64_t lines = 0;
  uint64_t entries = 0;
  uint64_t members = 0;
  uint64_t groups = 0;
};

// Gives lines one by one, without their ends; false behind the last one.
using LineSource = std::function<bool(std::string_view &line)>;

// Adds what the image holds to the device. Throws Fault "FILE:LINE:COLUMN: ..." for the first line
// that is no image or that the device refuses; the lines before it stay loaded.
LoadCounts load_image(const Device &device, std::string_view file, const LineSource &lines);

// The first and last lines of an image, by which its version, program and wholeness are known.
class ImageFrame {
 public:
  // 0 takes an image of any number of pipes.
  explicit ImageFrame(uint32_t pipes) : wanted_pipes_(pipes) {}
  // Whether the next line is one of the frame, which is checked then. Throws Fault.
  bool takes(std::string_view line);
  // Behind the last line. Throws Fault when the image is not whole.
  void finish() const;
  uint64_t lines() const { return lines_; }
  uint32_t pipes() const { return pipes_; }

 private:
  uint32_t wanted_pipes_;
  uint32_t pipes_ = 0;
  uint64_t lines_ = 0;
  bool ended_ = false;
};

// "FILE:LINE:COLUMN: ...": the fault of a line as one of the whole file.
Fault fault_in(std::string_view file, uint64_t line, const Fault &fault);

}  // namespace tesselctl

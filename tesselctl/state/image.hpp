// Images: everything that a device holds, as text.
//
//   tesselctl image 1 leaf_switch           the first line: version and program
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
//   wred profiles                           by the handles of their tables
//   cell 0x7000001 index=6 pipe=1 min=100 max=900 probability=0.25 time=12.5
//   end 14 checksum=9f86d081884c7d65        the lines before it and their checksum
//
// Values are the value strings of the library. Members and groups are numbered from 1 in each
// profile, and entries of bound tables name those numbers, so that equal devices have equal images
// whatever their handles. Entries, defaults and members may be followed by what they carry: ttl=MS,
// meter=CIR,CBS,PIR,PBS and packets=N bytes=N of direct counters.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "tesselctl/device/device.hpp"
#include "tesselctl/state/item_lines.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

inline constexpr int kImageVersion = 1;

using TextSink = std::function<void(std::string_view)>;

// Writes the image in pieces of some size. Throws Fault. Counters are brought up to date first.
void save_image(const Device &device, const TextSink &sink);
// The same with these numbers of members and groups.
void save_image(Source from, const TextSink &sink);
// The whole of it.
std::string image_of(const Device &device);

// Adds what the image holds to the device. Throws Fault "FILE:LINE:COLUMN: ..." for the first line
// that is no image or that the device refuses; the lines before it stay loaded.
LoadCounts load_image(const Device &device, std::string_view file, const LineSource &lines);

// Gives the visitor every item of an image for a device of that many pipes; 0 takes any number.
// Throws Fault as above, also for what the visitor throws. The number of pipes.
uint32_t read_image(std::string_view file, const LineSource &lines, uint32_t pipes,
                    const std::function<void(const ItemLine &)> &visit);

// An image in a file, of which the pipes are known before there is a device for it.
class ImageSource {
 public:
  // Faults name the file as shown. All throw Fault.
  ImageSource(const std::string &path, std::string_view shown);

  uint32_t pipes() const { return pipes_; }
  // Once. See load_image.
  LoadCounts load(const Device &device);

 private:
  FileLines lines_;
  std::string shown_;
  std::vector<std::string> first_;  // the lines that say the pipes
  uint32_t pipes_ = 0;
};

}  // namespace tesselctl

// Images as files, and the device whose contents are in one.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tesselctl/state/image.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

// Adds what the file holds to the device; faults name it as shown. See load_image.
LoadCounts load_image_file(const Device &device, const std::string &path, std::string_view shown);

// What a process does with its image: one that may change the device keeps the lock of the file
// for its life, one that reads sees a whole image and takes no lock. One that tries changes, which
// do not stay, takes no lock either, but wants an image that could be changed.
enum class ImageUse : uint8_t { reads, tries, changes };

struct ImageOptions {
  std::string path = {};    // empty for a device that comes from nowhere
  bool keep_pipes = false;  // of the device, whatever the image says
};

// A device that comes from an image and goes back to it.
class DeviceOfImage {
 public:
  // errors outlives it. Throws Fault: another process has the lock, or an image that is to be read
  // is not there or not whole.
  DeviceOfImage(const DeviceOptions &device, const ImageOptions &image, ImageUse use,
                Output &errors);

  Device &device() { return *device_; }
  // Whether others may change the image meanwhile, and the device as the image is now.
  bool may_be_old() const { return !image_.path.empty() && use_ == ImageUse::reads; }
  void read_again();
  // False where there was no image and the device is as a new one.
  bool is_worth_saving() const;
  // The device as the image from now on, whole or not at all, with a note on errors when there was
  // none before. Nothing where there is no image.
  void save();

 private:
  DeviceOptions options_;
  ImageOptions image_;
  ImageUse use_;
  Output &errors_;
  bool is_new_ = false;
  FilePlace place_ = {};
  std::optional<FileLock> lock_;
  std::optional<Device> device_;
};

}  // namespace tesselctl

#include "tesselctl/state/image_file.hpp"

#include <filesystem>

#include "tesselctl/device/device_copy.hpp"

namespace tesselctl {

LoadCounts load_image_file(const Device &device, const std::string &path, std::string_view shown) {
  return ImageSource(path, shown).load(device);
}

DeviceOfImage::DeviceOfImage(const DeviceOptions &device, const ImageOptions &image, ImageUse use,
                             Output &errors)
    : options_(device), image_(image), use_(use), errors_(errors) {
  if (image_.path.empty()) {
    device_.emplace(options_);
    return;
  }
  if (use_ != ImageUse::reads) {
    place_ = FilePlace::of_file(image_.path);
    if (place_.folder.is_open() && use_ == ImageUse::changes) lock_.emplace(place_);
    if (place_.exists && is_compressed(image_.path)) {
      throw Fault(image_.path +
                  ": a compressed image can be read only; decompress it with xz -d first");
    }
    if (place_.folder.is_open()) refuse_compressed_name(image_.path);
  }
  // Only now: whoever had the lock may have made the image.
  is_new_ = use_ != ImageUse::reads && !std::filesystem::exists(image_.path);
  if (is_new_) {
    device_.emplace(options_);
  } else {
    read_again();
  }
}

void DeviceOfImage::read_again() {
  ImageSource image(image_.path, image_.path);
  if (!image_.keep_pipes) options_.pipes = image.pipes();
  device_.emplace(options_);
  image.load(*device_);
}

bool DeviceOfImage::is_worth_saving() const {
  if (!is_new_) return true;
  DeviceOptions options = options_;
  options.id = free_device_id();
  const std::string empty = image_of(Device(options));
  std::string_view rest = empty;
  bool is_equal = true;
  save_image(*device_, [&](std::string_view piece) {
    is_equal = is_equal && rest.starts_with(piece);
    if (is_equal) rest.remove_prefix(piece.size());
  });
  return !is_equal || !rest.empty();
}

void DeviceOfImage::save() {
  if (image_.path.empty()) return;
  FileWriter file{image_.path};
  save_image(*device_, [&](std::string_view text) { file.write(text); });
  file.commit();
  if (!is_new_) return;
  is_new_ = false;
  errors_.line("new image {}", image_.path);
  errors_.flush();
}

}  // namespace tesselctl

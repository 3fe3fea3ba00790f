#include "tesselctl/journal/journal.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "common/folder.hpp"
#include "tesselctl/state/image.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

namespace fs = std::filesystem;

// Files that are kept beside the one that is written.
constexpr size_t kKept = 9;
constexpr auto kInterval = std::chrono::seconds(1);

constexpr std::string_view kImageEnd = ".image";

std::string checkpoint_path(const std::string &journal, uint64_t number) {
  return fmt::format("{}.{}{}", journal, number, kImageEnd);
}

// Of the file that gets the number 1, until the others have made room.
fs::path kept_path(const fs::path &journal) {
  return journal.parent_path() / ("." + journal.filename().string() + ".old");
}

}  // namespace

std::string checkpoint_of(const std::string &journal) {
  if (!fs::exists(journal)) return {};
  // Without its changes: only the number at its head.
  FileLines lines(journal);
  std::string_view line;
  for (int i = 0; i < 2; ++i) {
    if (!lines.next(line) || (i == 0 && !line.starts_with(kJournalFirst))) {
      throw Fault(journal + ":1:1: this is no journal of tesselctl");
    }
  }
  const Word number = Word{line, 1}.from(std::min(line.size(), size_t{6}));
  return fmt::format("{}.{}.image", journal, number.text);
}

std::string Journal::old_path(size_t at) const {
  return at == 0 ? options_.path : fmt::format("{}.{}", options_.path, at);
}

Journal::Journal(const JournalOptions &options, DeviceOptions device, bool pipes_are_given,
                 Output &errors)
    : options_(options),
      errors_(errors),
      place_(FilePlace::of_file(options.path)),
      lock_(place_, 0),
      rotate_at_(options.most_bytes) {
  if (fs::exists(options_.path)) {
    go_on(device, pipes_are_given);
  } else {
    if (fs::exists(old_path(1))) {
      throw Fault(fmt::format("{}: the file is missing, and older ones like {} are there",
                              options_.path, old_path(1)));
    }
    device_.emplace(device);
    write_checkpoint();
    begin_file();
  }
  if (options_.sync == JournalSync::interval)
    syncing_ = std::thread([this] { sync_each_second(); });
}

Journal::~Journal() {
  if (!syncing_.joinable()) return;
  {
    const std::lock_guard guard(mutex_);
    ends_ = true;
  }
  wake_.notify_one();
  syncing_.join();
}

void Journal::finish() {
  if (extent_.last != extent_.after) return rotate();
  write_checkpoint();
  remove_leftovers();
}

// ---- Start ----

// A file of the changes to come behind a checkpoint, in the place of the one before.
void Journal::begin_file() {
  FileWriter file(options_.path);
  const std::string head = journal_head(extent_.last);
  file.write(head);
  if (fs::exists(options_.path)) keep_file();
  const auto go_on_there = [&] {
    extent_ = {extent_.last, extent_.last, head.size()};
    is_head_durable_ = false;
    const std::lock_guard guard(mutex_);
    file_ = file.take();
  };
  try {
    file.commit();
  } catch (...) {
    if (file.is_in_place()) go_on_there();
    throw;
  }
  go_on_there();
  is_head_durable_ = true;
}

// Gives the file the number 1 beside its name. What may find no room comes first, so that a full
// disk pushes no old file out.
void Journal::keep_file() {
  const fs::path kept = kept_path(options_.path);
  std::error_code failed;
  if (fs::equivalent(options_.path, old_path(1), failed)) return;  // a try before came so far
  fs::remove(kept);
  fs::create_hard_link(fs::canonical(options_.path), kept, failed);
  if (failed) fs::copy_file(options_.path, kept);
  for (size_t at = kKept; at-- > 1;) {
    if (fs::exists(old_path(at))) fs::rename(old_path(at), old_path(at + 1));
  }
  fs::rename(kept, old_path(1));
}

// What tries that failed and killed servers left: the checkpoints of no file, and a file's second
// name. What cannot be removed now is removed by the next new file.
void Journal::remove_leftovers() {
  // The head that a loss of power would bring back names a checkpoint from before.
  if (!is_head_durable_) return;
  const fs::path journal = options_.path;
  const fs::path folder = journal.has_parent_path() ? journal.parent_path() : ".";
  const std::string first = journal.filename().string() + ".";
  const std::string checkpoint = fs::path(checkpoint_path(options_.path, extent_.after)).filename();
  unlink(kept_path(journal).c_str());
  std::error_code none;
  for (const std::string &name : common::names_in(folder, none)) {
    std::string_view number = name;
    if (number == checkpoint || !number.starts_with(first) || !number.ends_with(kImageEnd))
      continue;
    number.remove_prefix(first.size());
    number.remove_suffix(std::min(number.size(), kImageEnd.size()));
    const bool is_number = number.find_first_not_of("0123456789") == number.npos;
    if (is_number && !number.empty()) unlink((folder / name).c_str());
  }
}

void Journal::go_on(DeviceOptions device, bool pipes_are_given) {
  const std::string image = checkpoint_of(options_.path);
  const uint32_t pipes = ImageSource(image, image).pipes();
  if (pipes_are_given && pipes != device.pipes) {
    throw Fault(fmt::format("{}: the device of this journal has {} pipes", options_.path, pipes));
  }
  device.pipes = pipes;
  DeviceState state = DeviceState::of_file(image, image);
  JournalReader reader;
  extent_ = reader.read(
      options_.path, [](uint64_t) { return true; },
      [&](const Journaled &journaled) {
        for (const Change &change : journaled.changes) {
          state.edit(*change.part->kind, change.part->object, change.edit(), change.item().view());
        }
        reader.forget();
      });
  device_.emplace(device);
  load_by_number(*device_, state);
  const uint64_t size = fs::file_size(options_.path);
  if (size != extent_.bytes) {
    errors_.line("{}: change {} is the last whole one; {} bytes behind it are dropped",
                 options_.path, extent_.last, size - extent_.bytes);
    errors_.flush();
  }
  open_file(extent_.bytes);
}

void Journal::open_file(uint64_t bytes) {
  Descriptor file(open(options_.path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
  if (!file.is_open() || ftruncate(file.get(), static_cast<off_t>(bytes)) != 0) {
    throw_system(options_.path);
  }
  extent_.bytes = bytes;
  const std::lock_guard guard(mutex_);
  file_ = std::move(file);
}

void Journal::write_checkpoint() {
  const UninterruptedScope scope;
  auto *const recorder = dynamic_cast<Recorder *>(device_->listener());
  Numbering numbering = recorder != nullptr ? recorder->numbering() : Numbering::lasting(*device_);
  FileWriter file{checkpoint_path(options_.path, extent_.last)};
  save_image({*device_, numbering}, [&](std::string_view text) { file.write(text); });
  file.commit();
}

// ---- Changes ----

void Journal::note(const LineChanges &line) {
  const uint64_t undone = std::exchange(undone_, 0);
  uint64_t bytes = extent_.bytes;
  if (needs_cut_) cut();
  if (needs_cut_) throw_system(options_.path);
  try {
    print_journaled(line, undone, [&](std::string_view text) {
      append(text);
      bytes += text.size();
      if (bytes <= kMostFile) return;
      throw Fault(fmt::format("{}: the change is too large, a file has at most {} MiB",
                              options_.path, kMostFile >> 20));
    });
    sync_if_always();
  } catch (...) {
    cut();
    throw;
  }
  extent_.bytes = bytes;
  extent_.last = line.number;
  if (bytes > rotate_at_) rotate();
}

// What was written of a change that failed is no change.
void Journal::cut() { needs_cut_ = ftruncate(file_.get(), static_cast<off_t>(extent_.bytes)) != 0; }

void Journal::append(std::string_view text) {
  while (!text.empty()) {
    const ssize_t wrote = write(file_.get(), text.data(), text.size());
    if (wrote < 0 && errno == EINTR) continue;
    if (wrote < 0) throw_system(options_.path);
    text.remove_prefix(static_cast<size_t>(wrote));
  }
}

void Journal::sync_if_always() {
  const std::lock_guard guard(mutex_);
  if (options_.sync == JournalSync::always && fdatasync(file_.get()) != 0) sync_error_ = errno;
  unsynced_ = true;
  if (sync_error_ == 0) return;
  errno = std::exchange(sync_error_, 0);
  throw_system(options_.path);
}

void Journal::sync_each_second() {
  std::unique_lock guard(mutex_);
  while (!ends_) {
    wake_.wait_for(guard, kInterval, [&] { return ends_; });
    if (!std::exchange(unsynced_, false)) continue;
    // A copy, so that changes go on meanwhile.
    const Descriptor file(fcntl(file_.get(), F_DUPFD_CLOEXEC, 3));
    guard.unlock();
    const int error = fdatasync(file.get()) == 0 ? 0 : errno;
    guard.lock();
    if (error != 0) sync_error_ = error;
  }
}

// Where it fails, the file goes on and grows. Throws nothing, as the change before it is kept.
void Journal::rotate() {
  try {
    try_to_rotate();
    remove_leftovers();
  } catch (const std::exception &) {
    // Nothing can be said. The next one removes what this one left.
  }
}

void Journal::try_to_rotate() {
  rotate_at_ = extent_.bytes + options_.most_bytes;
  try {
    write_checkpoint();
    begin_file();
    rotate_at_ = options_.most_bytes;
  } catch (const std::exception &error) {
    errors_.line("{}: {}: {}", options_.path,
                 extent_.after == extent_.last ? "the new file may not be on the disk yet"
                                               : "no new file could be begun",
                 error.what());
    errors_.flush();
  }
}

// ---- Reading ----

void Journal::read(JournalReader &reader, const JournalReader::Wanted &is_wanted,
                   const JournalReader::Visitor &visit) const {
  uint64_t last = 0;
  for (size_t at = kKept + 1; at-- > 0;) {
    if (!fs::exists(old_path(at))) continue;
    reader.read(old_path(at), is_wanted, [&](const Journaled &change) {
      // A file that is there under two names is read once.
      if (change.number > last) visit(change);
      last = std::max(last, change.number);
    });
  }
}

std::vector<uint64_t> Journal::standing() const {
  std::vector<uint64_t> numbers;
  JournalReader reader;
  read(reader, {}, [&](const Journaled &change) {
    if (change.undone == 0) numbers.push_back(change.number);
    // Of files that are gone it may have taken back more.
    numbers.resize(numbers.size() -
                   static_cast<size_t>(std::min<uint64_t>(numbers.size(), change.undone)));
  });
  return numbers;
}

}  // namespace tesselctl

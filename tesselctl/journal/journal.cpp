#include "tesselctl/journal/journal.hpp"

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "tesselctl/state/image.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

namespace fs = std::filesystem;

// Files that are kept beside the one that is written.
constexpr size_t kKept = 9;
constexpr auto kInterval = std::chrono::seconds(1);

std::string checkpoint_path(const std::string &journal, uint64_t number) {
  return fmt::format("{}.{}.image", journal, number);
}

}  // namespace

std::string checkpoint_of(const std::string &journal) {
  if (access(journal.c_str(), F_OK) != 0) return {};
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
  if (access(options_.path.c_str(), F_OK) == 0) {
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
}

// ---- Start ----

// A file of the changes to come behind a checkpoint.
void Journal::begin_file() {
  const std::string head = journal_head(extent_.last);
  write_file(options_.path, head);
  open_file(head.size());
  extent_.after = extent_.last;
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
    // What was written of the change is no change.
    [[maybe_unused]] const int cut = ftruncate(file_.get(), static_cast<off_t>(extent_.bytes));
    throw;
  }
  extent_.bytes = bytes;
  extent_.last = line.number;
  if (bytes > rotate_at_) rotate();
}

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

// Where it fails, the file goes on and grows.
void Journal::rotate() {
  const uint64_t before = extent_.after;
  try {
    // First what may not fit, so that a full disk pushes no old file out.
    write_checkpoint();
    for (size_t at = kKept; at-- > 1;) {
      if (fs::exists(old_path(at))) fs::rename(old_path(at), old_path(at + 1));
    }
    // Under both names, until the new file takes the first.
    fs::create_hard_link(old_path(0), old_path(1));
    begin_file();
    if (before != extent_.last) fs::remove(checkpoint_path(options_.path, before));
    rotate_at_ = options_.most_bytes;
  } catch (const std::exception &error) {
    rotate_at_ = extent_.bytes + options_.most_bytes;
    errors_.line("{}: no new file could be begun: {}", options_.path, error.what());
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

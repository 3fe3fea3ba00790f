// The journal of a served device: from a checkpoint and the changes behind it the device is as it
// was when its server was killed.
//
//   FILE            the changes since the checkpoint
//   FILE.41.image   the checkpoint, with the changes up to 41
//   FILE.1 ...      the files before, the newest first
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

#include "tesselctl/journal/journal_file.hpp"
#include "tesselctl/journal/options.hpp"
#include "tesselctl/text/file_writer.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

class Journal : public LineListener {
 public:
  // Makes the device that the journal is of; a new journal begins with an empty one. Throws Fault:
  // another process has the journal, or it is damaged.
  Journal(const JournalOptions &options, DeviceOptions device, bool pipes_are_given,
          Output &errors);
  ~Journal() override;
  Journal(const Journal &) = delete;
  Journal &operator=(const Journal &) = delete;

  Device &device() { return *device_; }
  // The number of the last change.
  uint64_t last() const { return extent_.last; }

  void note(const LineChanges &line) override;
  // Makes what packets changed a part of the checkpoint, before an orderly end.
  void finish();
  // The next change takes back so many others.
  void set_undone(uint64_t count) { undone_ = count; }

  // Visits the changes of all files that are kept, the oldest first. Throws Fault.
  void read(JournalReader &reader, const JournalReader::Wanted &is_wanted,
            const JournalReader::Visitor &visit) const;
  // The numbers of those that were not taken back, the oldest first.
  std::vector<uint64_t> standing() const;

 private:
  void begin_file();
  void keep_file();
  void remove_leftovers();
  void go_on(DeviceOptions device, bool pipes_are_given);
  void open_file(uint64_t bytes);
  void write_checkpoint();
  void append(std::string_view text);
  void cut();
  void sync_if_always();
  void sync_each_second();
  void rotate();
  void try_to_rotate();
  std::string old_path(size_t at) const;

  JournalOptions options_;
  Output &errors_;
  FilePlace place_;
  FileLock lock_;
  std::optional<Device> device_;
  JournalExtent extent_;
  uint64_t undone_ = 0;
  uint64_t rotate_at_ = 0;
  bool needs_cut_ = false;
  bool is_head_durable_ = true;  // the file's name is on the disk with its folder

  std::mutex mutex_;  // of what the thread that syncs shares
  std::condition_variable wake_;
  Descriptor file_;
  bool unsynced_ = false;
  bool ends_ = false;
  int sync_error_ = 0;
  std::thread syncing_;
};

// The path of its checkpoint; empty without a journal. Throws Fault.
std::string checkpoint_of(const std::string &journal);

}  // namespace tesselctl

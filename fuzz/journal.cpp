// Any text as a journal: it is refused, or a server goes on with it, writes a change, and the next
// one has the same device. "end 7 checksum=" without a number has the right one.
#include <filesystem>

#include "fuzz/tool.hpp"
#include "tesselctl/journal/change_log.hpp"
#include "tesselctl/journal/journal.hpp"
#include "tesselctl/state/checksum.hpp"
#include "tesselctl/text/file_writer.hpp"

using namespace tesselctl;

namespace {

const std::string path = "/dev/shm/fuzz_journal." + std::to_string(getpid()) + "/j";

std::string with_checksums(std::string_view text) {
  std::string whole;
  Checksum checksum;
  const LineSource lines = lines_of(text);
  for (std::string_view line; lines(line);) {
    if (line.starts_with("change ") || line.starts_with("undo ")) checksum = {};
    checksum.add_line(line);
    if (!line.starts_with("end ")) continue;
    whole += text.substr(0, static_cast<size_t>(line.end() - text.begin()));
    text.remove_prefix(static_cast<size_t>(line.end() - text.begin()));
    if (line.ends_with(" checksum=")) whole += fmt::format("{:016x}", checksum.value());
  }
  return whole.append(text);
}

std::string go_on(std::string_view change) {
  Output out;
  Output errors;
  Journal journal({.path = path, .sync = JournalSync::always}, {.id = 0, .pipes = 2}, false,
                  errors);
  JournalReader reader;
  journal.read(
      reader, [](uint64_t) { return true; }, [](const Journaled &) {});
  journal.standing();
  ChangeLog log(journal.device());
  log.add(journal);
  log.count_from(journal.last());
  LocalRunner runner(journal.device(), out, errors, {});
  runner.run({"input", 1, change});
  log.end_line("anna[7]", change);
  return image_of(journal.device());
}

}  // namespace

void try_input(std::string_view input) {
  if (!std::filesystem::exists(path + ".0.image")) {
    std::filesystem::create_directory(std::filesystem::path(path).parent_path());
    write_file(path + ".0.image", Tool().image());
  }
  std::filesystem::remove(path);
  const MemoryFile file(with_checksums(input));
  std::filesystem::copy_file(file.path(), path);
  std::string image;
  try {
    image = go_on("register write ingVlanCheckData index=3 value=7");
  } catch (const Fault &) {
    return;
  }
  require(go_on("count") == image, "a journal makes the device again");
}

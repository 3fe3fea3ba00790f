#include "tesselctl/completion/offers.hpp"

#include <algorithm>
#include <filesystem>

#include "common/folder.hpp"
#include "tesselctl/command/grammar.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

constexpr size_t kMostFiles = 1000;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// The names in a folder that begin so, folders with a '/' behind them. Hidden ones are for who asks
// for them, and no word can hold a quote.
std::vector<std::string> names_in(const std::string &folder, std::string_view beginning) {
  std::vector<std::string> names;
  std::error_code error;
  for (std::string &name : common::names_in(folder, error)) {
    const bool hidden = name.starts_with('.') && !beginning.starts_with('.');
    const bool fits = name.find_first_of("\"\n") == std::string::npos;
    if (hidden || !fits || !name.starts_with(beginning)) continue;
    if (std::filesystem::is_directory(std::filesystem::path(folder) / name, error)) name += '/';
    names.push_back(std::move(name));
    if (names.size() == kMostFiles) break;
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

std::string common_beginning(const std::vector<Candidate> &candidates) {
  if (candidates.empty()) return {};
  std::string common = candidates[0].word;
  for (const Candidate &candidate : candidates) {
    const auto end =
        std::mismatch(common.begin(), common.end(), candidate.word.begin(), candidate.word.end());
    common.erase(end.first, common.end());
  }
  return common;
}

bool Offers::begins(std::string_view word) const {
  return word.size() >= typed_.size() &&
         std::equal(typed_.begin(), typed_.end(), word.begin(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

void Offers::offer(std::string_view word, std::string_view help) {
  if (begins(word)) completion_.candidates.push_back({std::string(word), std::string(help)});
}

void Offers::hint(std::string_view text) {
  if (has_hint()) completion_.hint += "; or ";
  completion_.hint += text;
}

void Offers::offer_files(const std::string &directory, bool quoted) {
  const size_t slash = typed_.rfind('/');
  const std::string before(typed_.substr(0, slash == std::string_view::npos ? 0 : slash + 1));
  const std::vector<std::string> names =
      names_in(path_in(directory.empty() ? "." : directory, before), typed_.substr(before.size()));
  const auto has_blank = [](const std::string &text) {
    return text.find_first_of(" \t#") != std::string::npos;
  };
  const bool needs_quote = has_blank(before) || std::any_of(names.begin(), names.end(), has_blank);
  for (const std::string &name : names) {
    // The quote stays open behind a folder, where more is to come.
    const bool ends = (quoted || needs_quote) && !name.ends_with('/');
    const char *begin = needs_quote && !quoted ? "\"" : "";
    completion_.candidates.push_back({begin + before + name + (ends ? "\"" : ""), ""});
  }
  if (names.empty()) hint(meaning_of_value("FILE"));
}

bool is_file_placeholder(std::string_view placeholder) {
  return placeholder == "FILE" || placeholder.ends_with(".html") || placeholder.ends_with(".json");
}

}  // namespace tesselctl

// Objects that a caller addresses by name: hash calculations, digests and their entry fields.
#include <fmt/format.h>

#include "pdgen/emit/emit.hpp"

namespace pdgen {

namespace {

// The array of rows, or nothing; and what stands for it and its length in a list.
std::string list(const std::string &type, const std::string &array, const std::string &rows,
                 std::size_t count, const std::string &list_declaration) {
  const std::string definition =
      rows.empty() ? "" : expand("inline constexpr $0 $1[] = {\n$2};\n", {type, array, rows});
  return definition +
         expand("inline constexpr $0 = {$1, $2};\n",
                {list_declaration, rows.empty() ? "nullptr" : array, std::to_string(count)});
}

std::string hash_names(const Program &program) {
  std::string rows;
  for (const Hash &hash : program.hashes) {
    rows += expand("    {\"$0\", &$0},\n", {hash.name});
  }
  return list("NamedHash", "named", rows, program.hashes.size(), "HashNames names");
}

std::string digest_entries(const Program &program) {
  std::string fields;
  std::string digests;
  for (const Digest &digest : program.digests) {
    std::string rows;
    for (const DigestField &field : digest.fields) {
      rows += fmt::format("    {{\"{}\", {}, {}}},\n", field.name, field.offset, field.bytes);
    }
    if (!rows.empty()) {
      fields += expand("inline constexpr DigestField $0[] = {\n$1};\n", {digest.name, rows});
    }
    digests += fmt::format("    {{\"{}\", {}, {}, {}}},\n", digest.name, digest.size,
                           digest.fields.size(), rows.empty() ? "nullptr" : digest.name);
  }
  return fields + list("Digest", "rows", digests, program.digests.size(), "Digests entries");
}

}  // namespace

std::string emit_object_names(const Program &program) {
  return origin(program, "// ") +
         expand(
             "#pragma once\n\n#include \"descriptors.hpp\"\n#include \"digest_entry.hpp\"\n"
             "#include \"hash_names.hpp\"\n\nnamespace pd {\n\nnamespace hash {\n\n$0\n"
             "}  // namespace hash\n\nnamespace digest {\n\n$1\n}  // namespace digest\n\n"
             "}  // namespace pd\n",
             {hash_names(program), digest_entries(program)});
}

}  // namespace pdgen

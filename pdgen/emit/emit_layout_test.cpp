// A C file that pins the layout of every record. The sizes and offsets are worked out here from the
// rules of C for unsigned integers, so compiler, header and generator must agree.
#include <fmt/format.h>

#include "pdgen/emit/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

class RecordLayout {
 public:
  // A packed record is padded to its size; that of any other is worked out.
  explicit RecordLayout(std::string type, unsigned packed_size = 0)
      : type_(std::move(type)), packed_size_(packed_size) {}

  void add(const std::string &member, unsigned storage) {
    const unsigned alignment = storage == 16 || packed_size_ != 0 ? 1 : storage;
    size_ = (size_ + alignment - 1) / alignment * alignment;
    text_ += fmt::format("_Static_assert(offsetof({}, {}) == {}, \"{}\");\n", type_, member, size_,
                         member);
    size_ += storage;
    alignment_ = std::max(alignment_, alignment);
  }

  std::string text() const {
    const unsigned natural = (size_ + alignment_ - 1) / alignment_ * alignment_;
    const unsigned size = packed_size_ != 0 ? packed_size_ : natural;
    return text_ + fmt::format("_Static_assert(sizeof({0}) == {1}, \"{0}\");\n", type_, size);
  }

 private:
  std::string type_;
  unsigned packed_size_;
  std::string text_;
  unsigned size_ = 0;
  unsigned alignment_ = 1;
};

std::string packed_record(const std::string &type, const std::vector<SnapshotField> &fields,
                          unsigned size) {
  RecordLayout layout(type, size);
  for (const SnapshotField &field : fields) layout.add(field.name, field.bytes);
  return layout.text();
}

std::string snapshot_records(const Program &program) {
  if (!program.snapshots) return "";
  const Snapshots &snapshots = *program.snapshots;
  std::string out =
      packed_record(snapshot_capture_type(program), snapshots.capture, snapshots.record_bytes);
  for (const SnapshotLayout &layout : snapshots.layouts) {
    out += packed_record(snapshot_trigger_type(program, layout), layout.fields,
                         snapshots.record_bytes);
  }
  return out;
}

// An attribute is handed to the pipeline manager word for word: three words, the last as wide as a
// pointer. The one of the by-name functions is three 32-bit words everywhere.
std::string hash_records(const Program &program) {
  const std::string by_name = hash_field_attr_type(program);
  return expand(
      "_Static_assert(offsetof(p4_pd_hash_calc_attr_t, type) == 4, \"type\");\n"
      "_Static_assert(offsetof(p4_pd_hash_calc_attr_t, value) == 8, \"value\");\n"
      "_Static_assert(sizeof(p4_pd_hash_calc_attr_t) == (sizeof(void *) == 4 ? 12 : 16), "
      "\"p4_pd_hash_calc_attr_t\");\n"
      "_Static_assert(offsetof($0, value) == 4, \"value\");\n"
      "_Static_assert(sizeof($0) == 12, \"$0\");\n",
      {by_name});
}

}  // namespace

std::string emit_layout_test(const Program &program) {
  std::string out = origin(program, "// ") + "#include <stddef.h>\n\n#include \"p4_pd_" +
                    program.name + ".h\"\n\n";
  for (const Table &table : program.tables) {
    if (!table.keyed()) continue;
    RecordLayout layout(match_spec_type(program, table));
    for (const RecordField &field : table.record) layout.add(field.name, field.storage_bytes);
    out += layout.text();
  }
  for (const Action &action : program.actions) {
    if (!action.has_params()) continue;
    RecordLayout layout(action_spec_type(program, action));
    for (const Param &param : action.params) layout.add(param_member(param), param.storage_bytes);
    out += layout.text();
  }
  return out + hash_records(program) + snapshot_records(program);
}

}  // namespace pdgen

// A C file that pins the layout of every record. The sizes and offsets are worked out here from the
// rules of C for unsigned integers, so compiler, header and generator must agree.
#include <fmt/format.h>

#include "pdgen/emit.hpp"
#include "pdgen/names.hpp"

namespace pdgen {

namespace {

class RecordLayout {
 public:
  explicit RecordLayout(std::string type) : type_(std::move(type)) {}

  void add(const std::string &member, unsigned storage) {
    const unsigned alignment = storage == 16 ? 1 : storage;
    size_ = (size_ + alignment - 1) / alignment * alignment;
    text_ += fmt::format("_Static_assert(offsetof({}, {}) == {}, \"{}\");\n", type_, member, size_,
                         member);
    size_ += storage;
    alignment_ = std::max(alignment_, alignment);
  }

  std::string text() const {
    const unsigned size = (size_ + alignment_ - 1) / alignment_ * alignment_;
    return text_ + fmt::format("_Static_assert(sizeof({0}) == {1}, \"{0}\");\n", type_, size);
  }

 private:
  std::string type_;
  std::string text_;
  unsigned size_ = 0;
  unsigned alignment_ = 1;
};

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
  return out;
}

}  // namespace pdgen

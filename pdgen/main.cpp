// pdgen: reads the catalogue of a P4 program and writes its control-plane library's generated
// files. Usage errors and faults of the catalogue end with exit status 1 and write nothing.
#include <fmt/format.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "pdgen/check/check.hpp"
#include "pdgen/emit/emit.hpp"
#include "pdgen/load/load.hpp"

namespace {

constexpr const char *kUsage =
    "usage: pdgen --catalogue DIR [--header FILE] [--exports FILE] [--handles FILE]\n"
    "             [--build DIR] [--soname N] [--families DIR]\n"
    "  --catalogue DIR  folder of the program's .toml files\n"
    "  --header FILE    write the public header\n"
    "  --exports FILE   write the list of exported names\n"
    "  --handles FILE   write the list of handles with their objects\n"
    "  --build DIR      write all that is compiled: descriptors, wrappers, version script,\n"
    "                   layout test, soft SDK description, call table\n"
    "  --soname N       version of the shared object (1)\n"
    "  --families DIR   folder of the .family files that state the interface, if not those\n"
    "                   that pdgen was built with\n";

struct Options {
  std::string catalogue;
  std::string header;
  std::string exports;
  std::string handles;
  std::string build;
  std::string families;
  unsigned soname = 1;
};

bool parse(int argc, char **argv, Options &options) {
  const std::map<std::string, std::string *> texts = {
      {"--catalogue", &options.catalogue}, {"--header", &options.header},
      {"--exports", &options.exports},     {"--handles", &options.handles},
      {"--build", &options.build},         {"--families", &options.families}};
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string option = argv[i];
    if (const auto found = texts.find(option); found != texts.end()) {
      *found->second = argv[i + 1];
    } else if (option == "--soname") {
      options.soname = static_cast<unsigned>(std::strtoul(argv[i + 1], nullptr, 10));
    } else {
      return false;
    }
  }
  return argc % 2 == 1 && !options.catalogue.empty() && options.soname > 0;
}

pdgen::Families load_families(const std::string &directory, pdgen::Diagnostics &diagnostics) {
  if (directory.empty()) return pdgen::load_families(pdgen::embedded_families(), diagnostics);
  std::vector<pdgen::CatalogueFile> files = pdgen::read_files(directory, ".family", diagnostics);
  for (pdgen::CatalogueFile &file : pdgen::read_files(directory, ".output", diagnostics)) {
    files.push_back(std::move(file));
  }
  return pdgen::load_families(files, diagnostics);
}

// Two exports of one name are a fault of the catalogue that shows only here.
pdgen::Diagnostics check(const pdgen::Api &api) {
  std::vector<pdgen::ExportedFunction> functions;
  for (const pdgen::Function *function : api.functions()) {
    functions.push_back({function->name, function->object});
  }
  pdgen::Diagnostics diagnostics;
  pdgen::check_exports(api.program(), functions, diagnostics);
  return diagnostics;
}

void add_build_files(const pdgen::Api &api, const pdgen::Families &families, const Options &options,
                     pdgen::OutputFiles &files) {
  const std::filesystem::path folder = options.build;
  const pdgen::Program &program = api.program();
  for (const pdgen::Family &output : families.outputs) {
    files.add(folder / output.unit, pdgen::origin(program, "// ") + fill_in(output, program));
  }
  files.add(folder / "limits.hpp", pdgen::emit_limits(program));
  files.add(folder / "object_names.hpp", pdgen::emit_object_names(program));
  files.add(folder / "records.hpp", pdgen::emit_records(program));
  files.add(folder / "texts.hpp", pdgen::emit_texts(program));
  files.add(folder / "schemas.hpp", pdgen::emit_schemas(program));
  files.add(folder / "labels.hpp", pdgen::emit_labels(program));
  files.add(folder / "program_data.cpp", pdgen::emit_program_data(api));
  files.add(folder / "exports.map", pdgen::emit_version_script(api, options.soname));
  files.add(folder / "layout_test.c", pdgen::emit_layout_test(program));
  files.add(folder / "export_index.cpp", pdgen::emit_export_index(api));
  for (const pdgen::Unit &unit : api.units()) {
    files.add(folder / ("wrappers_" + unit.name + ".cpp"), pdgen::emit_wrappers(api, unit));
    files.add(folder / ("export_table_" + unit.name + ".cpp"), pdgen::emit_export_table(api, unit));
  }
}

}  // namespace

int main(int argc, char **argv) {
  Options options;
  if (!parse(argc, argv, options)) {
    fmt::print(stderr, "{}", kUsage);
    return 1;
  }
  const auto loaded = pdgen::load_program(options.catalogue);
  if (!loaded.program) {
    fmt::print(stderr, "{}", loaded.diagnostics.text());
    return 1;
  }
  pdgen::Diagnostics diagnostics;
  const pdgen::Families families = load_families(options.families, diagnostics);
  if (!diagnostics.empty()) {
    fmt::print(stderr, "{}", diagnostics.text());
    return 1;
  }
  const pdgen::Api api = pdgen::build_api(*loaded.program, families);
  if (const pdgen::Diagnostics faults = check(api); !faults.empty()) {
    fmt::print(stderr, "{}", faults.text());
    return 1;
  }
  pdgen::OutputFiles files;
  if (!options.header.empty()) files.add(options.header, pdgen::emit_header(api));
  if (!options.exports.empty()) files.add(options.exports, pdgen::emit_exports(api));
  if (!options.handles.empty()) files.add(options.handles, pdgen::emit_handles(api.program()));
  if (!options.build.empty()) add_build_files(api, families, options, files);
  std::string message;
  if (!files.write(message)) {
    fmt::print(stderr, "pdgen: {}\n", message);
    return 1;
  }
  return 0;
}

// pd_sweeps MODULE CATALOGUE_DIR [OPTION...]: every sweep over the library of a program, with
// GoogleTest's options. The module is the program's binding as a shared object, which brings the
// library with it; the catalogue says what the library should do.
#include <dlfcn.h>

#include <cstdio>

#include "pdgen/load/load.hpp"
#include "support.hpp"
#include "tesselctl/program/library.hpp"

namespace {

const bindings::Binding *load(const char *file) {
  // A name without a folder would be looked for where libraries are.
  const std::string path = std::string(file).find('/') == std::string::npos ? "./" : "";
  void *const module = dlopen((path + file).c_str(), RTLD_NOW | RTLD_LOCAL);
  const void *const symbol = module == nullptr ? nullptr : dlsym(module, "pd_binding");
  if (symbol == nullptr) {
    std::fprintf(stderr, "pd_sweeps: %s\n", dlerror());
    return nullptr;
  }
  const auto *binding = static_cast<const bindings::Binding *>(symbol);
  if (binding->layout == bindings::kLayout) return binding;
  std::fprintf(stderr, "pd_sweeps: %s was built with another version of the generator\n", file);
  return nullptr;
}

}  // namespace

int main(int argc, char **argv) {
  std::vector<const char *> arguments;
  for (int i = 1; i < argc; ++i) {
    if (argv[i][0] != '-') arguments.push_back(argv[i]);
  }
  if (arguments.size() != 2) {
    std::fprintf(stderr, "usage: pd_sweeps MODULE CATALOGUE_DIR [GoogleTest's options]\n");
    return 2;
  }
  const bindings::Binding *const binding = load(arguments[0]);
  if (binding == nullptr) return 2;
  pd_test::choose_program(*binding, arguments[1]);
  tesselctl::use_program(*binding);
  if (const auto loaded = pdgen::load_program(arguments[1]); !loaded.program) {
    std::fprintf(stderr, "%s", loaded.diagnostics.text().c_str());
    return 2;
  }
  if (pd_test::program().name != binding->program) {
    std::fprintf(stderr, "pd_sweeps: %s is of %s, %s of %s\n", arguments[0], binding->program,
                 arguments[1], pd_test::program().name.c_str());
    return 2;
  }
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

#!/usr/bin/env python3
"""Installs a build, moves what was installed, and uses it there.

usage: install_test.py BUILD SOURCE LIBDIR CMAKE TOOLCHAIN COMPILER [FLAG...]
TOOLCHAIN may be empty.
"""
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

BY_NAME = r"""
#include <dlfcn.h>
#include <stdio.h>
static void *load(const char *name, int scope) {
  void *library = dlopen(name, RTLD_NOW | scope);
  if (!library) fprintf(stderr, "%s\n", dlerror());
  return library;
}
int main(void) {
  void *sdk = load("libsoft_sdk.so.1", RTLD_GLOBAL);
  void *pd = load("libp4_pd_tessel_switch.so.1", RTLD_LOCAL);
  void *program = load("libsoft_program_tessel_switch.so.1", RTLD_LOCAL);
  if (!sdk || !pd || !program) return 1;
  unsigned (*create)(unsigned, unsigned, const void *, _Bool) = dlsym(sdk, "soft_device_create");
  unsigned (*init)(void) = dlsym(pd, "p4_pd_tessel_switch_init");
  return init() || create(0, 4, dlsym(program, "soft_program_tessel_switch"), 0);
}
"""

# Of docs, those whose examples need what is installed.
PAGES = ["new-program", "abi", "porting", "soft-sdk", "statuses"]


def run(*command, **options):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)
    if done.returncode:
        sys.exit(f"{shlex.join(map(str, command))}: exit code {done.returncode}\n{done.stdout}")
    return done.stdout


def check(what, wanted, got):
    if wanted != got:
        sys.exit(f"{what}\nwanted:\n{wanted}\ngot:\n{got}")


def check_hosts(prefix, libdir, source, folder, settings, cmake, compiler):
    loaded = dict(os.environ, LD_LIBRARY_PATH=str(prefix / libdir),
                  PKG_CONFIG_LIBDIR=str(prefix / libdir / "pkgconfig"))
    flags = run("pkg-config", "--cflags", "--libs", "tessel_switch", "tessel_switch_soft_sdk",
                env=loaded).split()
    for flag in flags:
        if flag[:2] in ("-I", "-L"):
            check("folder of pkg-config", True, pathlib.Path(flag[2:]).is_dir())
    run(*compiler, source / "examples/host.c", "-o", folder / "host", *flags)
    wanted = "entry 1: ((( 0x03,0x0a010200,0x0018,),('setNextHop',(0x0011,)),),(0,True))\n"
    check("host by pkg-config", wanted, run(folder / "host", env=loaded))

    run(cmake, "-S", source / "examples", "-B", folder / "b", *settings)
    run(cmake, "--build", folder / "b")
    check("host by find_package", wanted, run(folder / "b/host"))

    (folder / "by_name.c").write_text(BY_NAME)
    run(*compiler, folder / "by_name.c", "-o", folder / "by_name", "-ldl")
    run(folder / "by_name", env=loaded)


def check_module_version(prefix, folder, compiler):
    tool = prefix / "bin/tesselctl"
    (folder / "old.c").write_text("const unsigned pd_binding = 0;")
    run(*compiler, "-shared", folder / "old.c", "-o", folder / "old.so")
    check("module of another version", f"tesselctl: {folder}/old.so was built with another "
          "version of the generator than this tool: build the program again\n",
          run("sh", "-c", f"{tool} --program {folder}/old.so count 2>&1; exit $(($? - 1))"))


def check_pages(prefix, source, cmake, toolchain, compiler):
    env = dict(os.environ, ROOT=str(source), PREFIX=str(prefix), CC=compiler[0],
               CFLAGS=" ".join(compiler[1:]), CXXFLAGS=" ".join(compiler[1:]),
               PATH=f"{pathlib.Path(cmake).parent}:{os.environ['PATH']}")
    if toolchain:
        env["CMAKE_TOOLCHAIN_FILE"] = toolchain
    run(sys.executable, source / "tests/tool/transcript.py", prefix / "bin/tesselctl",
        source / "README.md", *(source / f"docs/{page}.md" for page in PAGES), env=env)


def main():
    build, source, libdir, cmake, toolchain, *compiler = sys.argv[1:]
    source = pathlib.Path(source)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        run(cmake, "--install", build, "--prefix", folder / "installed")
        prefix = (folder / "installed").rename(folder / "moved")
        own = [line.split() for file in ("bin/tesselctl", f"{libdir}/tesselctl/tessel_switch.so")
               for line in run("ldd", prefix / file).splitlines()
               if re.search("libp4_pd_|libsoft_", line)]
        check("libraries of the tool and its program", [True] * 3,
              [os.path.realpath(words[2]).startswith(str(prefix)) for words in own])
        check_pages(prefix, source, cmake, toolchain, compiler)
        settings = [f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_C_COMPILER={compiler[0]}",
                    "-DCMAKE_C_FLAGS=" + " ".join(compiler[1:]),
                    "-DCMAKE_CXX_FLAGS=" + " ".join(compiler[1:]), f"-DCMAKE_INSTALL_LIBDIR={libdir}",
                    f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"]
        check_hosts(prefix, libdir, source, folder, settings, cmake, compiler)
        check_module_version(prefix, folder, compiler)


main()

#!/usr/bin/env python3
"""Installs a build, moves what was installed, and uses it there.

usage: install_test.py BUILD SOURCE LIBDIR CMAKE TOOLCHAIN COMPILER [FLAG...]
TOOLCHAIN may be empty.
"""
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

# What the first ten calls of examples/leaf.tessel leave in two tables.
LEAF = """\
((( 0x001,),('setPhase0',(0x0065,0x00a,0x1,0x0,)),),(0,True))
((( 0x002,),('setPhase0',(0x0066,0x00a,0x1,0x0,)),),(0,True))
((( 0x003,),('setPhase0',(0x0067,0x014,0x1,0x0,)),),(0,True))
((( 0x004,),('setPhase0',(0x0068,0x014,0x1,0x0,)),),(0,True))
((( 0x031,),('setPhase0',(0x0095,0x000,0x0,0x1,)),),(0,True))
((( 0x032,),('setPhase0',(0x0096,0x000,0x0,0x1,)),),(0,True))
((( 0x1,0x0065,0x0,0x000,0x000,),('setL2DomainUntagged',(0x0000a,)),),(20,True))
((( 0x1,0x0066,0x0,0x000,0x000,),('setL2DomainUntagged',(0x0000a,)),),(20,True))
((( 0x1,0x0067,0x0,0x000,0x000,),('setL2DomainUntagged',(0x00014,)),),(20,True))
((( 0x1,0x0068,0x0,0x000,0x000,),('setL2DomainUntagged',(0x00014,)),),(20,True))
"""

# A user of the library with headers of its own.
OWN_SDK = """cmake_minimum_required(VERSION 3.25)
project(own LANGUAGES C)
find_package(tessel_switch REQUIRED)
add_library(own OBJECT own.c)
target_include_directories(own PRIVATE own_sdk)
target_link_libraries(own PRIVATE tessel_switch::pd_tessel_switch)
"""

# Of docs, those whose examples need what is installed.
PAGES = ["c-interface", "new-program", "abi", "porting", "soft-sdk", "statuses"]


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


def check_by_name(prefix, libdir, source, folder, compiler):
    script = source / "examples/leaf.tessel"
    blocks = run(prefix / "bin/tesselctl", "--trace", "run", script).split("}\n")[:10]
    (folder / "calls.inc").write_text("".join(f"{block}check(status);\n}}\n" for block in blocks))
    loaded = dict(os.environ, LD_LIBRARY_PATH=str(prefix / libdir))
    include = prefix / "include"
    run(*compiler, "-std=c99", "-pedantic", "-Wall", "-Wextra", "-Werror", f"-I{include}",
        f"-I{include}/pd_sdk", f"-I{folder}", source / "tests/install/by_name.c", "-o",
        folder / "by_name", "-ldl")
    check("host by name", LEAF, run(folder / "by_name", env=loaded))


def check_own_sdk(prefix, libdir, folder, settings, cmake, compiler):
    """The library needs no header, CMake package or pkg-config file of the SDK."""
    (prefix / "include/pd_sdk").rename(folder / "own_sdk")
    for file in (*prefix.glob("include/soft_*"), *(prefix / libdir).glob("*/*soft_sdk*"),
                 *(prefix / libdir).glob("*/pd_sdk*")):
        shutil.rmtree(file) if file.is_dir() else file.unlink()
    flags = run("pkg-config", "--cflags", "tessel_switch",
                env=dict(os.environ, PKG_CONFIG_LIBDIR=str(prefix / libdir / "pkgconfig"))).split()
    (folder / "own.c").write_text('#include "p4_pd_tessel_switch.h"\n')
    run(*compiler, "-fsyntax-only", *flags, f"-I{folder}/own_sdk", folder / "own.c")
    (folder / "CMakeLists.txt").write_text(OWN_SDK)
    run(cmake, "-S", folder, "-B", folder / "own_build", *settings)
    run(cmake, "--build", folder / "own_build")


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


def check_python(prefix):
    packages = prefix / "lib/python3/dist-packages"
    if not (packages / "pd").is_dir():  # on i386
        return
    code = ("import tessel_switch as ts; d = ts.Device(); s = d.session(); "
            "print(len(s.tables), ts.__file__)")
    check("Python package", f"120 {packages}/tessel_switch/__init__.py\n",
          run("/usr/bin/python3", "-c", code, env=dict(os.environ, PYTHONPATH=str(packages))))


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
        check_python(prefix)
        settings = [f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_C_COMPILER={compiler[0]}",
                    "-DCMAKE_C_FLAGS=" + " ".join(compiler[1:]),
                    "-DCMAKE_CXX_FLAGS=" + " ".join(compiler[1:]), f"-DCMAKE_INSTALL_LIBDIR={libdir}",
                    f"-DCMAKE_TOOLCHAIN_FILE={toolchain}"]
        check_hosts(prefix, libdir, source, folder, settings, cmake, compiler)
        check_by_name(prefix, libdir, source, folder, compiler)
        check_module_version(prefix, folder, compiler)
        check_own_sdk(prefix, libdir, folder, settings, cmake, compiler)


main()

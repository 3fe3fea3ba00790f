# pd_add_program(<program> CATALOGUE <dir> [HEADER_DIR <dir>] [VERSION <v>] [SONAME <n>] [NO_INSTALL])
#
# Builds what there is of a P4 program from its catalogue, which has the program's name:
#   pd_<program>            libp4_pd_<program>.so, the control-plane library
# and, where there is a soft SDK,
#   soft_program_<program>  libsoft_program_<program>.so, its description for that: one constant
#   pd_<program>_binding    its exports as data (bindings/export_table.hpp), and that description
#   pd_<program>_module     <program>.so, the same as tesselctl and Python load it
# and the Python package <program>, where the package pd is.
# The library compiles against the header p4_pd_<program>.h in HEADER_DIR, which pdgen writes with
# --header (scripts/generate); where there is none, it is made in the build folder.
# VERSION (1.0.0) and SONAME (its first number) are the library's. All is installed unless NO_INSTALL
# says otherwise, as a package of the program's name for CMake and pkg-config.
#
# It works in this project, in one that has it as a folder, and in one that found the package pdgen.
# CMAKE_CURRENT_FUNCTION_LIST_DIR/.. has the core's sources in all of them.
include(${CMAKE_CURRENT_LIST_DIR}/PdPackage.cmake)

function(pd_add_program program)
  cmake_parse_arguments(arg "NO_INSTALL" "CATALOGUE;HEADER_DIR;VERSION;SONAME" "" ${ARGN})
  if(NOT CMAKE_C_COMPILER_LOADED OR NOT CMAKE_CXX_COMPILER_LOADED)
    message(FATAL_ERROR "pd_add_program needs a project of the languages C and CXX")
  endif()
  if(NOT arg_CATALOGUE OR arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "pd_add_program(${program} CATALOGUE <dir> ...): ${ARGN}")
  endif()
  if(NOT arg_VERSION)
    set(arg_VERSION 1.0.0)
  endif()
  if(NOT DEFINED arg_SONAME)
    string(REGEX MATCH "^[0-9]+" arg_SONAME ${arg_VERSION})
  endif()
  include(GNUInstallDirs)
  find_path(CJSON_INCLUDE_DIR cjson/cJSON.h REQUIRED)
  find_library(CJSON_LIBRARY cjson REQUIRED)
  cmake_path(ABSOLUTE_PATH arg_CATALOGUE BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
  pd_program_name(${arg_CATALOGUE} name)
  if(NOT program STREQUAL name)
    message(FATAL_ERROR "The program of ${arg_CATALOGUE} is ${name}, not ${program}")
  endif()
  cmake_path(GET CMAKE_CURRENT_FUNCTION_LIST_DIR PARENT_PATH root)
  set(dir ${CMAKE_CURRENT_BINARY_DIR}/generated/${program})
  pd_generate()
  pd_add_library()
  if(TARGET soft_sdk::soft_sdk)
    pd_add_soft_program()
    pd_add_module()
  endif()
  if(NOT arg_NO_INSTALL)
    pd_install_program()
  endif()
endfunction()

# The name of a catalogue's program, as its program.toml says.
function(pd_program_name catalogue name)
  set(lines "")
  if(EXISTS ${catalogue}/program.toml)
    file(STRINGS ${catalogue}/program.toml lines REGEX "^[ \t]*name[ \t]*=")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${catalogue}/program.toml)
  endif()
  if(NOT lines MATCHES "=[ \t]*[\"']([A-Za-z0-9_]+)[\"']")
    message(FATAL_ERROR "${catalogue}/program.toml should name the program: name = \"NAME\"")
  endif()
  set(${name} ${CMAKE_MATCH_1} PARENT_SCOPE)
endfunction()

# pd_add_sweeps(<program>): the test sweeps_<program>, every sweep over a program that pd_add_program
# has added, and a target of that name, part of all, that builds what the test needs.
function(pd_add_sweeps program)
  if(NOT TARGET pdgen::pd_sweeps)
    message(FATAL_ERROR "pd_add_sweeps(${program}): there is no pd_sweeps, which needs the library gtest, "
      "and is installed with pdgen where that was built with PD_TESTS")
  endif()
  get_target_property(catalogue pd_${program}_module PD_CATALOGUE)
  add_test(NAME sweeps_${program}
    COMMAND $<TARGET_FILE:pdgen::pd_sweeps> $<TARGET_FILE:pd_${program}_module> ${catalogue})
  add_custom_target(sweeps_${program} ALL DEPENDS pd_${program}_module)
  if(TARGET pd_sweeps)
    add_dependencies(sweeps_${program} pd_sweeps)
  endif()
endfunction()

# The parts of pd_add_program, with its variables.

macro(pd_generate)
  get_property(generated GLOBAL PROPERTY PD_GENERATED)
  list(TRANSFORM generated PREPEND ${dir}/)
  set(header_option "")
  if(arg_HEADER_DIR)
    cmake_path(ABSOLUTE_PATH arg_HEADER_DIR BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR} NORMALIZE)
    set(header ${arg_HEADER_DIR}/p4_pd_${program}.h)
  endif()
  if(NOT arg_HEADER_DIR OR NOT EXISTS ${header})
    set(arg_HEADER_DIR ${dir})
    set(header ${arg_HEADER_DIR}/p4_pd_${program}.h)
    set(header_option --header ${header})
  endif()
  if(PD_GENERATOR)
    set(generator ${PD_GENERATOR})
  else()
    set(generator pdgen::pdgen)
  endif()
  file(GLOB catalogue CONFIGURE_DEPENDS ${arg_CATALOGUE}/*.toml)
  add_custom_command(
    OUTPUT ${dir}/stamp
    BYPRODUCTS ${generated}
    COMMAND ${generator} --catalogue ${arg_CATALOGUE} --build ${dir} --soname ${arg_SONAME} ${header_option}
    COMMAND ${CMAKE_COMMAND} -E touch ${dir}/stamp
    DEPENDS ${generator} ${catalogue}
    COMMENT "Generating the library of ${program}"
    VERBATIM)
  add_custom_target(pd_${program}_generated DEPENDS ${dir}/stamp)
endmacro()

# What each target here is compiled with, in whatever project.
macro(pd_compile target)
  add_dependencies(${target} pd_${program}_generated)
  target_compile_features(${target} PRIVATE cxx_std_20)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF POSITION_INDEPENDENT_CODE ON)
  if(TARGET pd_warnings)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:pd_warnings>)
  endif()
endmacro()

macro(pd_add_library)
  set(sources ${generated})
  list(FILTER sources INCLUDE REGEX "/(wrappers_[a-z_0-9]+|program_data)\\.cpp$")
  file(GLOB core_sources CONFIGURE_DEPENDS ${root}/src/*/*.cpp ${root}/src/*/*/*.cpp)
  add_library(pd_${program} SHARED ${sources} ${core_sources})
  add_library(${program}::pd_${program} ALIAS pd_${program})
  pd_compile(pd_${program})
  # With few registers, pushes that unwind tables describe one by one, and no vectors, wrappers for
  # i386 are half as large again; optimised for size they execute about as many instructions.
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS
      $<$<AND:$<BOOL:$<CONFIG>>,$<NOT:$<CONFIG:Debug>>>:-Os>)
  endif()
  target_include_directories(pd_${program}
    PUBLIC $<BUILD_INTERFACE:${arg_HEADER_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    PRIVATE ${dir} ${root}/src/pd ${root}/src/introspection ${CJSON_INCLUDE_DIR})
  # A C host loads the library: no C++ run time, nothing visible but the exports. Compilers gather
  # stores of single bytes into vectors at more cost than storing them. Calls copy typed structures of
  # known size and format into bounded buffers, so no stack needs the guard that distributions ask for.
  target_compile_options(pd_${program} PRIVATE -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fvisibility=hidden -fno-semantic-interposition -fno-tree-slp-vectorize -fno-stack-protector)
  target_link_options(pd_${program} PRIVATE -Wl,--version-script=${dir}/exports.map
    -Wl,-Bsymbolic-functions)
  target_link_libraries(pd_${program} PUBLIC $<BUILD_INTERFACE:pd_sdk::pd_sdk>
    PRIVATE ${CJSON_LIBRARY})
  set_target_properties(pd_${program} PROPERTIES
    OUTPUT_NAME p4_pd_${program} VERSION ${arg_VERSION} SOVERSION ${arg_SONAME}
    LINKER_LANGUAGE C LINK_DEPENDS ${dir}/stamp GENERATED_DIR ${dir})
endmacro()

macro(pd_add_soft_program)
  add_library(soft_program_${program} SHARED ${dir}/soft_program.cpp)
  add_library(${program}::soft_program_${program} ALIAS soft_program_${program})
  pd_compile(soft_program_${program})
  target_link_libraries(soft_program_${program} PUBLIC pd_sdk::pd_sdk)
  set_target_properties(soft_program_${program} PROPERTIES
    VERSION ${arg_VERSION} SOVERSION ${arg_SONAME} LINKER_LANGUAGE C)
endmacro()

macro(pd_add_module)
  set(tables ${generated})
  list(FILTER tables INCLUDE REGEX "/export_(table_[a-z_0-9]+|index)\\.cpp$")
  add_library(pd_${program}_binding STATIC ${tables})
  pd_compile(pd_${program}_binding)
  target_include_directories(pd_${program}_binding PUBLIC ${root})
  target_compile_definitions(pd_${program}_binding PRIVATE PD_LIBRARY_VERSION="${arg_VERSION}")
  # The call table is data; optimising it only costs time.
  target_compile_options(pd_${program}_binding PRIVATE -O1 -fvisibility=hidden)
  target_link_libraries(pd_${program}_binding PUBLIC pd_${program} soft_program_${program})

  add_library(pd_${program}_module MODULE $<TARGET_OBJECTS:pd_${program}_binding>)
  target_link_libraries(pd_${program}_module PRIVATE pd_${program} soft_program_${program})
  # Where the tool of this build looks for programs; without one, at hand.
  get_property(module_dir GLOBAL PROPERTY PD_MODULE_DIR)
  if(NOT module_dir)
    set(module_dir ${CMAKE_CURRENT_BINARY_DIR})
  endif()
  set_target_properties(pd_${program}_module PROPERTIES PREFIX "" OUTPUT_NAME ${program}
    LINKER_LANGUAGE CXX INSTALL_RPATH "$ORIGIN/.." LIBRARY_OUTPUT_DIRECTORY ${module_dir}
    PD_CATALOGUE ${arg_CATALOGUE})
endmacro()

# All that is installed finds its parts by relative paths, so the prefix may be moved. The library
# requires no headers of an SDK, as a host may have its own.
macro(pd_install_program)
  pd_install_pkg_config(${program} "Control-plane library of the P4 program ${program}"
    VERSION ${arg_VERSION} LIBRARIES p4_pd_${program})
  if(TARGET soft_program_${program})
    pd_install_pkg_config(${program}_soft_sdk
      "In-memory device behind the SDK contract, with the description of ${program}"
      VERSION ${arg_VERSION} LIBRARIES soft_program_${program} REQUIRES soft_sdk)
    install(TARGETS soft_program_${program} EXPORT ${program}_soft_sdk_targets
      LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
    install(EXPORT ${program}_soft_sdk_targets NAMESPACE ${program}::
      DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/${program})
    install(TARGETS pd_${program}_module LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/tesselctl)
    get_property(python_dir GLOBAL PROPERTY PD_PYTHON_DIR)
    if(python_dir)
      set(package ${generated})
      list(FILTER package INCLUDE REGEX "\\.pyi?$|/py\\.typed$")
      install(FILES ${package} DESTINATION ${python_dir}/${program})
    endif()
  endif()
  install(TARGETS pd_${program} EXPORT ${program}_targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  pd_install_package(${program} ProgramConfig.cmake.in ${arg_VERSION})
endmacro()

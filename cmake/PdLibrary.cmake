# pd_add_library(<program> CATALOGUE <dir> HEADER_DIR <dir> VERSION <v> SONAME <n>)
#
# Builds the control-plane library of a program from its catalogue:
#   pd_<program>          libp4_pd_<program>.so, the library
#   soft_program_<program>
#                         libsoft_program_<program>.so, its description for the soft SDK: one constant
#   pd_<program>_binding  its exports as data (bindings/export_table.hpp), and that description
# The library compiles against the header p4_pd_<program>.h in HEADER_DIR, which pdgen writes with
# --header (scripts/generate). With GENERATE_HEADER the header is made in the build folder instead.

# The files that pdgen writes, as the outputs name them: "% file NAME" or, one for each unit of
# wrappers, "% file NAME_<unit>.cpp for each unit". A family says "unit NAME: ..." or, in N parts,
# "unit NAME in N: ...".
file(GLOB pd_families CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/families/*.family)
file(GLOB pd_outputs CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/families/outputs/*.output)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${pd_families} ${pd_outputs})
set(PD_UNITS "")
foreach(family ${pd_families})
  file(STRINGS ${family} unit REGEX "^unit ")
  if(unit MATCHES "^unit ([a-z_]+) in ([0-9]+):")
    foreach(part RANGE 1 ${CMAKE_MATCH_2})
      list(APPEND PD_UNITS ${CMAKE_MATCH_1}_${part})
    endforeach()
  elseif(unit MATCHES "^unit ([a-z_]+):")
    list(APPEND PD_UNITS ${CMAKE_MATCH_1})
  endif()
endforeach()
set(PD_GENERATED "")
foreach(output ${pd_outputs})
  file(STRINGS ${output} line REGEX "^% file ")
  if(line MATCHES "^% file ([a-z_]+)_<unit>.cpp for each unit")
    foreach(unit ${PD_UNITS})
      list(APPEND PD_GENERATED ${CMAKE_MATCH_1}_${unit}.cpp)
    endforeach()
  elseif(line MATCHES "^% file ([a-z_.]+)$")
    list(APPEND PD_GENERATED ${CMAKE_MATCH_1})
  endif()
endforeach()

function(pd_add_library program)
  cmake_parse_arguments(arg "GENERATE_HEADER" "CATALOGUE;HEADER_DIR;VERSION;SONAME" "" ${ARGN})
  set(dir ${CMAKE_CURRENT_BINARY_DIR}/generated/${program})
  list(TRANSFORM PD_GENERATED PREPEND ${dir}/ OUTPUT_VARIABLE generated)
  set(wrappers ${generated})
  list(FILTER wrappers INCLUDE REGEX "/(wrappers_[a-z_0-9]+|program_data)\\.cpp$")
  set(tables ${generated})
  list(FILTER tables INCLUDE REGEX "/export_(table_[a-z_0-9]+|index)\\.cpp$")
  set(header_option "")
  if(arg_GENERATE_HEADER)
    set(arg_HEADER_DIR ${dir})
    set(header_option --header ${dir}/p4_pd_${program}.h)
  endif()
  set(generator pdgen)
  if(PD_GENERATOR)
    set(generator ${PD_GENERATOR})
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

  set(core ${CMAKE_SOURCE_DIR}/src/pd)
  file(GLOB core_sources CONFIGURE_DEPENDS ${core}/*.cpp ${core}/*/*.cpp
       ${CMAKE_SOURCE_DIR}/src/introspection/*.cpp)
  add_library(pd_${program} SHARED ${wrappers} ${core_sources})
  add_dependencies(pd_${program} pd_${program}_generated)
  target_include_directories(pd_${program}
    PUBLIC $<BUILD_INTERFACE:${arg_HEADER_DIR}> $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/include>
           $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/sdk/include>
           $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    PRIVATE ${dir} ${core} ${CMAKE_SOURCE_DIR}/src/introspection ${CJSON_INCLUDE_DIR})
  # A C host loads the library: no C++ run time, nothing visible but the exports.
  target_compile_options(pd_${program} PRIVATE -fno-exceptions -fno-rtti -fno-threadsafe-statics
    -fvisibility=hidden -fno-semantic-interposition)
  target_link_options(pd_${program} PRIVATE -Wl,--version-script=${dir}/exports.map
    -Wl,-Bsymbolic-functions)
  target_link_libraries(pd_${program} PRIVATE ${CJSON_LIBRARY} $<BUILD_INTERFACE:pd_warnings>)
  set_target_properties(pd_${program} PROPERTIES
    OUTPUT_NAME p4_pd_${program} VERSION ${arg_VERSION} SOVERSION ${arg_SONAME}
    LINKER_LANGUAGE C LINK_DEPENDS ${dir}/stamp GENERATED_DIR ${dir})

  add_library(soft_program_${program} SHARED EXCLUDE_FROM_ALL ${dir}/soft_program.cpp)
  add_dependencies(soft_program_${program} pd_${program}_generated)
  target_include_directories(soft_program_${program}
    PUBLIC $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/sdk/include>
           $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/sdk/soft/include>
           $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(soft_program_${program} PRIVATE $<BUILD_INTERFACE:pd_warnings>)
  set_target_properties(soft_program_${program} PROPERTIES
    VERSION ${arg_VERSION} SOVERSION ${arg_SONAME} LINKER_LANGUAGE C)

  add_library(pd_${program}_binding STATIC EXCLUDE_FROM_ALL ${tables})
  add_dependencies(pd_${program}_binding pd_${program}_generated)
  target_include_directories(pd_${program}_binding PUBLIC ${CMAKE_SOURCE_DIR})
  target_compile_definitions(pd_${program}_binding PRIVATE PD_LIBRARY_VERSION="${arg_VERSION}")
  # The call table is data; optimising it only costs time.
  target_compile_options(pd_${program}_binding PRIVATE -O1)
  target_link_libraries(pd_${program}_binding PUBLIC pd_${program} soft_program_${program}
    PRIVATE pd_warnings)
endfunction()

# What others find an installed part by: files for CMake and for pkg-config.
include(CMakePackageConfigHelpers)

# pd_install_pkg_config(<name> <description> VERSION <v> [LIBRARIES <name>...] [REQUIRES <name>...]
#   [INCLUDE <folder of headers>])
# Its folders follow from the file's own place.
function(pd_install_pkg_config name description)
  cmake_parse_arguments(arg "" "VERSION;INCLUDE" "LIBRARIES;REQUIRES" ${ARGN})
  file(RELATIVE_PATH prefix_from_file ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" prefix_from_file ${prefix_from_file})
  cmake_path(APPEND libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
  cmake_path(APPEND includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR} ${arg_INCLUDE})
  list(TRANSFORM arg_LIBRARIES PREPEND -l)
  list(JOIN arg_LIBRARIES " " libraries)
  list(JOIN arg_REQUIRES " " requires)
  configure_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/package.pc.in
    ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

# pd_install_package(<name> <template> <version> [<needed package>...]): the package of the export
# <name>_targets.
function(pd_install_package name template version)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
  set(needed_packages ${ARGN})
  set(PD_SHARE ${CMAKE_INSTALL_DATADIR}/pdgen)
  get_property(PD_GENERATED GLOBAL PROPERTY PD_GENERATED)
  get_property(PD_PYTHON_DIR GLOBAL PROPERTY PD_PYTHON_DIR)
  install(EXPORT ${name}_targets NAMESPACE ${name}:: DESTINATION ${folder})
  configure_package_config_file(${CMAKE_CURRENT_FUNCTION_LIST_DIR}/${template}
    ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake
    INSTALL_DESTINATION ${folder} PATH_VARS PD_SHARE)
  write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake
    VERSION ${version} COMPATIBILITY SameMajorVersion)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake DESTINATION ${folder})
endfunction()

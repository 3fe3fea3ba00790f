# What a control plane needs to link the library: headers, the shared object, CMake and pkg-config
# files. The soft SDK with the program's description, and the tool, come along where they are built.
# All that is installed finds its parts by relative paths, so the prefix may be moved.
include(CMakePackageConfigHelpers)

# A pkg-config file whose folders follow from its own place.
function(pd_install_pkg_config name description libraries)
  file(RELATIVE_PATH prefix_from_file ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" prefix_from_file ${prefix_from_file})
  cmake_path(APPEND libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
  cmake_path(APPEND includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
  configure_file(cmake/package.pc.in ${CMAKE_BINARY_DIR}/${name}.pc @ONLY)
  install(FILES ${CMAKE_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()

pd_install_pkg_config(tessel_switch "Control-plane library of the P4 program tessel_switch"
  "-lp4_pd_tessel_switch")

set(pd_installed pd_tessel_switch)
if(TARGET soft_sdk)
  set_target_properties(soft_program_tessel_switch PROPERTIES EXCLUDE_FROM_ALL FALSE)
  list(APPEND pd_installed soft_sdk soft_program_tessel_switch)
  pd_install_pkg_config(tessel_switch_soft_sdk
    "In-memory device behind the SDK contract, with the description of tessel_switch"
    "-lsoft_sdk -lsoft_program_tessel_switch")
endif()
install(TARGETS ${pd_installed} EXPORT tessel_switch_targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT tessel_switch_targets NAMESPACE tessel_switch::
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/tessel_switch)
install(DIRECTORY include/ sdk/include/ sdk/soft/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
configure_package_config_file(cmake/tessel_switchConfig.cmake.in
  ${CMAKE_BINARY_DIR}/tessel_switchConfig.cmake
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/tessel_switch)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/tessel_switchConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/tessel_switchConfig.cmake
  ${CMAKE_BINARY_DIR}/tessel_switchConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/tessel_switch)

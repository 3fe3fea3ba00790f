# What a control plane needs to link the library: headers, the shared object, CMake and pkg-config
# files. The soft SDK with the program's description, and the tool, come along where they are built.
include(CMakePackageConfigHelpers)

set(pd_installed pd_tessel_switch)
if(TARGET soft_sdk)
  set_target_properties(soft_program_tessel_switch PROPERTIES EXCLUDE_FROM_ALL FALSE)
  list(APPEND pd_installed soft_sdk soft_program_tessel_switch)
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
configure_file(cmake/tessel_switch.pc.in ${CMAKE_BINARY_DIR}/tessel_switch.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/tessel_switchConfig.cmake
  ${CMAKE_BINARY_DIR}/tessel_switchConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/tessel_switch)
install(FILES ${CMAKE_BINARY_DIR}/tessel_switch.pc
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

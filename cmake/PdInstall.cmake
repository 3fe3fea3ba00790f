# The generator, the core's sources and headers, the soft SDK, the tool and the sweeps, for programs to be built
# with (the package pdgen); a program installs itself. All finds its parts by relative paths, so the
# prefix may be moved.
set(installed pdgen pd_headers)
set(requires "")
if(TARGET soft_sdk)
  list(APPEND installed soft_sdk tesselctl)
  pd_install_pkg_config(soft_sdk "In-memory device behind the SDK contract" VERSION ${PROJECT_VERSION}
    LIBRARIES soft_sdk REQUIRES pdgen)
endif()
if(TARGET pd_sweeps AND PD_TESTS)
  list(APPEND installed pd_sweeps)
endif()
pd_install_pkg_config(pdgen "Headers of the SDK contract" VERSION ${PROJECT_VERSION})
install(TARGETS ${installed} EXPORT pdgen_targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES include/p4_pd_types.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY sdk/include/ sdk/soft/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
set(share ${CMAKE_INSTALL_DATADIR}/pdgen)
install(DIRECTORY src bindings DESTINATION ${share})
install(FILES cmake/PdProgram.cmake cmake/PdPackage.cmake cmake/ProgramConfig.cmake.in
  cmake/package.pc.in DESTINATION ${share}/cmake)
pd_install_package(pdgen pdgenConfig.cmake.in ${PROJECT_VERSION})

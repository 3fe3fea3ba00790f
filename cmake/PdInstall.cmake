# What programs are built with: the headers of the SDK contract (the package pd_sdk), the soft SDK
# (soft_sdk), and the generator, the core's sources, the tool and the sweeps (pdgen); a program
# installs itself. All finds its parts by relative paths, so the prefix may be moved.
pd_install_pkg_config(pd_sdk "Headers of the SDK contract" VERSION ${PROJECT_VERSION}
  INCLUDE pd_sdk)
install(TARGETS pd_headers EXPORT pd_sdk_targets)
install(FILES include/p4_pd_types.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY sdk/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/pd_sdk)
pd_install_package(pd_sdk LibraryConfig.cmake.in ${PROJECT_VERSION})

if(TARGET soft_sdk)
  pd_install_pkg_config(soft_sdk "In-memory device behind the SDK contract" VERSION ${PROJECT_VERSION}
    LIBRARIES soft_sdk REQUIRES pd_sdk)
  install(TARGETS soft_sdk EXPORT soft_sdk_targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY sdk/soft/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  pd_install_package(soft_sdk LibraryConfig.cmake.in ${PROJECT_VERSION} pd_sdk)
endif()

set(installed pdgen)
if(TARGET tesselctl)
  list(APPEND installed tesselctl)
endif()
install(TARGETS ${installed} EXPORT pdgen_targets RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET pd_sweeps AND PD_SWEEPS)
  # Run by pd_add_sweeps alone.
  set(sweeps_dir ${CMAKE_INSTALL_LIBEXECDIR}/pdgen)
  file(RELATIVE_PATH libraries ${CMAKE_INSTALL_PREFIX}/${sweeps_dir} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(pd_sweeps PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
  install(TARGETS pd_sweeps EXPORT pdgen_targets RUNTIME DESTINATION ${sweeps_dir})
endif()
set(share ${CMAKE_INSTALL_DATADIR}/pdgen)
install(DIRECTORY src bindings DESTINATION ${share})
install(FILES cmake/PdProgram.cmake cmake/PdPackage.cmake cmake/ProgramConfig.cmake.in
  cmake/package.pc.in DESTINATION ${share}/cmake)
pd_install_package(pdgen pdgenConfig.cmake.in ${PROJECT_VERSION} pd_sdk)

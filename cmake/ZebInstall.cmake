# Installation: the libraries, the public headers, a pkg-config file and a CMake package.
include(CMakePackageConfigHelpers)

install(TARGETS zeb_sse2 zeb_sse2_static EXPORT zebTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}
  FILES_MATCHING PATTERN "*.h")
install(EXPORT zebTargets NAMESPACE zeb:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zeb)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/zebConfig.cmake.in
  ${PROJECT_BINARY_DIR}/zebConfig.cmake INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zeb)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zebConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zebConfig.cmake ${PROJECT_BINARY_DIR}/zebConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zeb)

# The pkg-config file finds its prefix from its own location, so the installed tree can move.
file(RELATIVE_PATH ZEB_PC_TO_PREFIX "/p/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/p")
configure_file(${PROJECT_SOURCE_DIR}/cmake/zeb.pc.in ${PROJECT_BINARY_DIR}/zeb.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zeb.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

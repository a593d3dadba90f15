# What `cmake --install` lays down. The components are the Debian packages that cmake/KorPackages.cmake makes of it.
include(CMakePackageConfigHelpers)

install(TARGETS korc EXPORT korcTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT libkorc6 NAMELINK_COMPONENT libkorc-dev
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" "${PROJECT_BINARY_DIR}/include/"
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT libkorc-dev)

# find_package(korc): the target korc::korc.
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/korc")
install(EXPORT korcTargets NAMESPACE korc:: DESTINATION ${package_dir} COMPONENT libkorc-dev)
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/korcConfig.cmake" @ONLY
  CONTENT "include(\"\${CMAKE_CURRENT_LIST_DIR}/korcTargets.cmake\")\n")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/korcConfigVersion.cmake" COMPATIBILITY SameMajorVersion)
install(FILES "${PROJECT_BINARY_DIR}/korcConfig.cmake" "${PROJECT_BINARY_DIR}/korcConfigVersion.cmake"
  DESTINATION ${package_dir} COMPONENT libkorc-dev)

# pkg-config korc. The library names BLAS and LAPACK itself, so a program links to nothing else. The prefix is told from
# the place of the file, so that an installed tree can be moved; in /usr it is named, and pkg-config then leaves it out.
set(KOR_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
if(NOT KOR_PC_PREFIX STREQUAL "/usr")
  file(RELATIVE_PATH up "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
  set(KOR_PC_PREFIX "\${pcfiledir}/${up}")
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/korc.pc.in" "${PROJECT_BINARY_DIR}/korc.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/korc.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT libkorc-dev)

if(KOR_BUILD_DOCS)
  install(DIRECTORY "${PROJECT_BINARY_DIR}/docs/man/man3" DESTINATION ${CMAKE_INSTALL_MANDIR} COMPONENT libkorc-dev)
  install(DIRECTORY "${PROJECT_BINARY_DIR}/docs/html" DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT korc-doc)
endif()

install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT korc-doc
  PATTERN expected EXCLUDE PATTERN check_output.py EXCLUDE)

if(KOR_PACKAGES)
  include(KorPackages)
else()
  install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()

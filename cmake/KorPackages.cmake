# The Debian packages, one an install component: libkorc6 (the library), libkorc-dev (headers, links, manual pages) and
# korc-doc (the site). `script/package` makes and checks them.
set(work "${PROJECT_BINARY_DIR}/debian")
set(release 1)
set(contact "The KOR authors <kor@example.org>")

# What Debian expects in the folder of documents of each package.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" license)
string(REGEX MATCH "Copyright[^\n]*" copyright "${license}")
string(REPLACE "Copyright (c)" "Copyright:" copyright_line "${copyright}")
string(REGEX REPLACE "^[^\n]*\n\n[^\n]*\n\n" "" license "${license}")
string(REGEX REPLACE "\n\n" "\n.\n" license "${license}")
string(REGEX REPLACE "\n([^\n])" "\n \\1" license "${license}")
file(WRITE "${work}/copyright"
  "Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n\n"
  "Files: *\n${copyright_line}\nLicense: BSD-3-Clause\n ${license}")
file(GENERATE OUTPUT "${work}/changelog.Debian" CONTENT
"korc (${PROJECT_VERSION}-${release}) unstable; urgency=medium

  * See CHANGELOG.md of the sources.

 -- ${contact}  Thu, 01 Jan 2026 00:00:00 +0000
")
set(compress "${work}/compress.cmake")
file(WRITE "${compress}" "
file(GLOB_RECURSE pages \"\${ROOT}/share/man/*.3\")
file(GLOB changelogs \"\${ROOT}/share/doc/*/changelog.Debian\")
foreach(file IN LISTS pages changelogs)
  execute_process(COMMAND gzip -9nf \"\${file}\" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
")
foreach(package IN ITEMS libkorc6 libkorc-dev korc-doc)
  install(FILES "${work}/copyright" "${work}/changelog.Debian" DESTINATION share/doc/${package} COMPONENT ${package})
  install(CODE "set(ROOT \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")\ninclude(\"${compress}\")" COMPONENT ${package})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "${contact}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_COMPONENTS_ALL libkorc6 libkorc-dev korc-doc)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE korc)
set(CPACK_DEBIAN_PACKAGE_RELEASE ${release})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(about "KOR finds zeros, integrates, solves differential equations, interpolates,
minimises, solves linear systems and eigenproblems, transforms, sorts, draws
random numbers, and computes statistics and special functions.")

set(CPACK_DEBIAN_LIBKORC6_PACKAGE_NAME libkorc6)
set(CPACK_DEBIAN_LIBKORC6_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBKORC6_PACKAGE_SHLIBDEPS ON)
file(WRITE "${work}/triggers" "activate-noawait ldconfig\n")
file(WRITE "${work}/shlibs"
  "libkorc ${PROJECT_VERSION_MAJOR} libkorc6 (>= ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})\n")
set(CPACK_DEBIAN_LIBKORC6_PACKAGE_CONTROL_EXTRA "${work}/triggers" "${work}/shlibs")
set(CPACK_COMPONENT_LIBKORC6_DESCRIPTION "${about}\n.\nThis package holds the shared library.")

set(CPACK_DEBIAN_LIBKORC-DEV_PACKAGE_NAME libkorc-dev)
set(CPACK_DEBIAN_LIBKORC-DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_LIBKORC-DEV_PACKAGE_DEPENDS "libkorc6 (= ${PROJECT_VERSION}-${release})")
set(CPACK_COMPONENT_LIBKORC-DEV_DESCRIPTION "${about}\n.\nThis package holds the headers and the manual pages.")

set(CPACK_DEBIAN_KORC-DOC_PACKAGE_NAME korc-doc)
set(CPACK_DEBIAN_KORC-DOC_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_KORC-DOC_PACKAGE_ARCHITECTURE all)
set(CPACK_COMPONENT_KORC-DOC_DESCRIPTION "${about}\n.\nThis package holds the guides and the reference, as HTML.")
include(CPack)

# One object library a folder. A folder's include path holds nothing but a view of the folders that it may see, so that a
# forbidden include does not compile.
set(KOR_FOLDERS "")

function(kor_folder name)
  cmake_parse_arguments(arg "" "" "SEES" ${ARGN})
  set(view "${PROJECT_BINARY_DIR}/view/${name}")
  file(REMOVE_RECURSE "${view}")
  file(MAKE_DIRECTORY "${view}")
  foreach(seen IN ITEMS ${name} ${arg_SEES})
    file(CREATE_LINK "${PROJECT_SOURCE_DIR}/src/${seen}" "${view}/${seen}" SYMBOLIC)
  endforeach()

  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${name}/*.cpp")
  if(sources)
    add_library(kor_${name} OBJECT ${sources})
    target_include_directories(kor_${name} PRIVATE "${PROJECT_SOURCE_DIR}/include" "${view}")
    target_link_libraries(kor_${name} PRIVATE kor_flags)
    target_compile_options(kor_${name} PRIVATE -fvisibility=hidden -fvisibility-inlines-hidden -fno-semantic-interposition)
    set(KOR_FOLDERS ${KOR_FOLDERS} ${name} PARENT_SCOPE)
  endif()
endfunction()

# The shared object of all folders, and, for the tests of kernels and for the harnesses, an archive of the same objects.
function(kor_library)
  set(objects "")
  foreach(folder IN LISTS KOR_FOLDERS)
    list(APPEND objects $<TARGET_OBJECTS:kor_${folder}>)
  endforeach()
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/include/kor/*.h")

  # kor/all.h takes every chapter.
  set(includes "")
  foreach(header IN LISTS headers)
    get_filename_component(name "${header}" NAME)
    string(APPEND includes "#include <kor/${name}>\n")
  endforeach()
  file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/include/kor/all.h" @ONLY CONTENT
    "/// \\file all.h\n/// Every chapter of the library.\n#ifndef KOR_ALL_H\n#define KOR_ALL_H\n\n@includes@\n#endif\n")

  # The export list holds the names that the public headers declare, and nothing else.
  set(exports "${PROJECT_BINARY_DIR}/korc.map")
  add_custom_command(
    OUTPUT "${exports}" "${PROJECT_BINARY_DIR}/routines.inc"
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/tools/export_list.py"
            --map "${exports}" --list "${PROJECT_BINARY_DIR}/routines.inc" ${headers}
    DEPENDS "${PROJECT_SOURCE_DIR}/tools/export_list.py" ${headers}
    COMMENT "Export list from the public headers")
  add_custom_target(kor_exports DEPENDS "${exports}")

  add_library(korc SHARED ${objects})
  add_library(korc::korc ALIAS korc)
  add_dependencies(korc kor_exports)
  set_target_properties(korc PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} LINKER_LANGUAGE CXX LINK_DEPENDS "${exports}")
  target_include_directories(korc PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include> $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_options(korc PRIVATE
    "LINKER:--version-script=${exports}" LINKER:-Bsymbolic-functions LINKER:--as-needed)
  target_link_libraries(korc PRIVATE LAPACK::LAPACK BLAS::BLAS Threads::Threads)
  if(KOR_SANITIZE)
    # The run-time library of a sanitizer may come with the program alone.
    set_property(TARGET korc APPEND PROPERTY LINK_OPTIONS LINKER:--undefined-version)
  else()
    set_property(TARGET korc APPEND PROPERTY LINK_OPTIONS LINKER:--no-undefined)
  endif()

  add_library(korc_internal STATIC EXCLUDE_FROM_ALL ${objects})
  set_target_properties(korc_internal PROPERTIES LINKER_LANGUAGE CXX)
  target_include_directories(korc_internal PUBLIC "${PROJECT_SOURCE_DIR}/include" "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(korc_internal PUBLIC LAPACK::LAPACK BLAS::BLAS Threads::Threads)
endfunction()

# What `cmake --install` installs besides the programs: the libraries with their headers, a CMake package with one
# component per library, and a pkg-config file for each. The install component Runtime is needed to run a program, Devel
# to build one.

include(CMakePackageConfigHelpers)

if(NOT QORVEX_INSTALL)
  return()
endif()

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/Qorvex")
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

# Directories relative to the pkg-config file, so that the installed tree can be moved.
file(RELATIVE_PATH PC_PREFIX
  "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" PC_PREFIX "${PC_PREFIX}")
file(RELATIVE_PATH PC_LIBDIR "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH PC_INCLUDEDIR "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")

# qorvex_install(<component> DESCRIPTION <text> [REQUIRES <pkg-config modules>])
function(qorvex_install component)
  cmake_parse_arguments(ARG "" "DESCRIPTION" "REQUIRES" ${ARGN})
  get_target_property(target Qorvex::${component} ALIASED_TARGET)

  get_target_property(header_sets ${target} INTERFACE_HEADER_SETS)
  set(headers)
  foreach(header_set IN LISTS header_sets)
    list(APPEND headers
      FILE_SET ${header_set} DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT Devel)
  endforeach()
  install(TARGETS ${target} EXPORT Qorvex-${component}
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Runtime NAMELINK_COMPONENT Devel
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Devel
    ${headers})
  install(EXPORT Qorvex-${component}
    NAMESPACE Qorvex:: DESTINATION "${package_dir}" COMPONENT Devel)

  set(PC_MODULE qorvex-${component})
  set(PC_DESCRIPTION "${ARG_DESCRIPTION}")
  list(JOIN ARG_REQUIRES ", " PC_REQUIRES)
  set(PC_LIBRARY ${target})
  set(PC_LINK_OPTIONS)
  get_target_property(link_options ${target} INTERFACE_LINK_OPTIONS)
  if(link_options)
    list(TRANSFORM link_options REPLACE "^LINKER:" "${CMAKE_CXX_LINKER_WRAPPER_FLAG}")
    list(JOIN link_options " " PC_LINK_OPTIONS)
    string(APPEND PC_LINK_OPTIONS " ")
  endif()
  configure_file("${PROJECT_SOURCE_DIR}/cmake/qorvex.pc.in"
    "${PROJECT_BINARY_DIR}/package/${PC_MODULE}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/package/${PC_MODULE}.pc"
    DESTINATION "${pkgconfig_dir}" COMPONENT Devel)
endfunction()

qorvex_install(base
  DESCRIPTION "Element types, arrays, text and special functions in 80-bit extended precision")
qorvex_install(numerics
  DESCRIPTION "Vectors, matrices and statistics with 64 bits of mantissa"
  REQUIRES "qorvex-base = ${PROJECT_VERSION}")
if(TARGET Qorvex::stats_rt)
  qorvex_install(stats_rt
    DESCRIPTION "Vectors, matrices and statistics with 64 bits of mantissa as Qt 6 components"
    REQUIRES "qorvex-numerics = ${PROJECT_VERSION}" "Qt6Widgets >= ${QORVEX_QT_VERSION}")
endif()

# Minor releases may break source while the major version is 0.
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(compatibility SameMinorVersion)
else()
  set(compatibility SameMajorVersion)
endif()
configure_package_config_file(cmake/QorvexConfig.cmake.in
  "${PROJECT_BINARY_DIR}/package/QorvexConfig.cmake"
  INSTALL_DESTINATION "${package_dir}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/package/QorvexConfigVersion.cmake"
  COMPATIBILITY ${compatibility})
install(
  FILES
    "${PROJECT_BINARY_DIR}/package/QorvexConfig.cmake"
    "${PROJECT_BINARY_DIR}/package/QorvexConfigVersion.cmake"
  DESTINATION "${package_dir}" COMPONENT Devel)

install(FILES LICENSE README.md DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT Devel)

# Helpers for every target of the build.

# The oldest Qt that the components build with.
set(QORVEX_QT_VERSION 6.4)

# Compiler settings of our own code: warnings, and options that the numerics depend on.
function(qorvex_compile_settings target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    POSITION_INDEPENDENT_CODE ON
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  # Without this, a project that states no optimisation level would get a library that is several times slower.
  get_directory_property(options COMPILE_OPTIONS)
  if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES
      AND NOT "${CMAKE_CXX_FLAGS};${options}" MATCHES "(^|[ ;])-O")
    target_compile_options(${target} PRIVATE -O2)
  endif()
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wconversion -Wsign-conversion -Wshadow
    $<$<BOOL:${QORVEX_WERROR}>:-Werror>
    # A fused multiply-add would change the documented rounding.
    -ffp-contract=off
    # Calls of exported routines within a library are direct.
    -fno-semantic-interposition
    # Nothing reads errno after a square root.
    -fno-math-errno
    # A module with unique symbols cannot be unloaded.
    $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
endfunction()

# Precompiles the Qt headers that most sources of widgets include.
function(qorvex_precompile_qt target)
  target_precompile_headers(${target} PRIVATE
    <QApplication> <QKeyEvent> <QLineEdit> <QMenu> <QPainter> <QStyle>
    <algorithm> <functional> <memory> <vector>)
endfunction()

# qorvex_library(<component> [LINK_PUBLIC <targets>]) defines libqorvex_<component>_rt and its alias
# Qorvex::<component>, ready to install; its rooms add their sources. A component that already ends in _rt keeps its
# name: stats_rt is libqorvex_stats_rt.
#
# While the major version is 0, every minor release may change the binary interface, so the shared-object version is
# major.minor; from 1.0 on it is the major version alone.
function(qorvex_library component)
  cmake_parse_arguments(ARG "" "" "LINK_PUBLIC" ${ARGN})
  string(REGEX REPLACE "_rt$" "" stem ${component})
  set(target qorvex_${stem}_rt)
  add_library(${target})
  add_library(Qorvex::${component} ALIAS ${target})
  qorvex_compile_settings(${target})
  target_link_libraries(${target} PUBLIC ${ARG_LINK_PUBLIC})
  if(BUILD_SHARED_LIBS)
    set(exports "${PROJECT_SOURCE_DIR}/cmake/exports.map")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${exports}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${exports}")
  endif()

  if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  else()
    set(soversion ${PROJECT_VERSION_MAJOR})
  endif()
  set_target_properties(${target} PROPERTIES
    EXPORT_NAME ${component}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${soversion}
    VERIFY_INTERFACE_HEADER_SETS ON
    INSTALL_RPATH "$ORIGIN")
endfunction()

# qorvex_room(<library target> [EXCEPT <headers>]) adds every source in the calling folder and below it to a library,
# and every header as one to install, except those listed and those in folders called detail.
function(qorvex_room target)
  cmake_parse_arguments(ARG "" "" "EXCEPT" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
  list(FILTER headers EXCLUDE REGEX "/detail/")
  list(TRANSFORM ARG_EXCEPT PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  list(REMOVE_ITEM headers "" ${ARG_EXCEPT})
  target_sources(${target}
    PRIVATE ${sources}
    PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
endfunction()

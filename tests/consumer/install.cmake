# Installs the build tree, moves the result to PREFIX, and checks that no installed file contains the old paths.

set(first "${PREFIX}-first")
file(REMOVE_RECURSE "${first}" "${PREFIX}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${first}"
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${first}" "${PREFIX}")

file(GLOB_RECURSE files "${PREFIX}/*.cmake" "${PREFIX}/*.pc" "${PREFIX}/*.h")
list(LENGTH files count)
if(count LESS 20)
  message(FATAL_ERROR "only ${count} package files and headers were installed")
endif()
foreach(file IN LISTS files)
  file(READ "${file}" text)
  foreach(place IN ITEMS "${first}" "${BUILD_DIR}" "${SOURCE_DIR}")
    string(FIND "${text}" "${place}" position)
    if(NOT position EQUAL -1)
      message(SEND_ERROR "${file} names ${place}")
    endif()
  endforeach()
endforeach()

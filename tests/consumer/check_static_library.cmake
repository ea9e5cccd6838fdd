# Checks BINARY_DIR, where a project without a build type has built the static base library as a subdirectory: the
# library is optimised and the project's own settings are unchanged; a program linked with the flags of pkg-config
# checks the platform at start. SOURCE_DIR belongs to the library, PROJECT_DIR to the project.

file(READ "${BINARY_DIR}/compile_commands.json" commands)
string(JSON count LENGTH "${commands}")
math(EXPR last "${count} - 1")
set(ours 0)
set(theirs 0)
set(wrong)
foreach(i RANGE ${last})
  string(JSON file GET "${commands}" ${i} file)
  string(JSON command GET "${commands}" ${i} command)
  string(REGEX MATCH " -O[^ ]*" level "${command}")
  string(FIND "${file}" "${SOURCE_DIR}/qorvex/" position)
  if(position EQUAL 0)
    math(EXPR ours "${ours} + 1")
    set(expected " -O2")
  else()
    math(EXPR theirs "${theirs} + 1")
    set(expected "")
  endif()
  if(NOT level STREQUAL expected)
    list(APPEND wrong "${file}:${level}")
  endif()
endforeach()
if(ours EQUAL 0 OR theirs EQUAL 0)
  message(FATAL_ERROR "${ours} sources of the library and ${theirs} of the project were compiled")
endif()
if(wrong)
  list(JOIN wrong "\n  " wrong)
  message(SEND_ERROR "unexpected optimisation:\n  ${wrong}")
endif()

execute_process(
  COMMAND "${CMAKE_COMMAND}" -E env "PKG_CONFIG_PATH=${BINARY_DIR}/qorvex/package"
    "${PKG_CONFIG}" --libs qorvex-base
  OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
set(program "${BINARY_DIR}/linked_with_pkg_config")
execute_process(
  COMMAND "${COMPILER}" -std=c++20 "-I${SOURCE_DIR}" "-I${BINARY_DIR}/qorvex/generated"
    "${PROJECT_DIR}/base_main.cpp" "${PROJECT_DIR}/base_second.cpp"
    "-L${BINARY_DIR}/qorvex/qorvex" ${flags} -o "${program}"
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${program}" COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${NM}" "${program}" OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES "qorvex_probe_extended_precision")
  message(SEND_ERROR "${program} does not check the platform when it starts")
endif()

# Runs PROGRAM, which must succeed and print the contents of the file EXPECTED.
execute_process(COMMAND "${PROGRAM}" OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "${PROGRAM} printed\n${printed}\ninstead of ${EXPECTED}:\n${expected}")
endif()

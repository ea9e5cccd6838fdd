# Runs PROGRAM, which must succeed and print what the file EXPECTED holds.
execute_process(COMMAND "${PROGRAM}" OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "${PROGRAM} printed\n${printed}\nand not, as in ${EXPECTED},\n${expected}")
endif()

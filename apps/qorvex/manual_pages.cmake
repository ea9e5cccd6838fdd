# Writes the manual pages of the program and of its commands to a folder.
# cmake -D PROGRAM=qorvex -D FOLDER=man1 -P manual_pages.cmake

execute_process(COMMAND "${PROGRAM}" complete OUTPUT_VARIABLE words COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[^\t\n]+\t" commands "${words}")
file(MAKE_DIRECTORY "${FOLDER}")
execute_process(COMMAND "${PROGRAM}" help --man OUTPUT_FILE "${FOLDER}/qorvex.1" COMMAND_ERROR_IS_FATAL ANY)
foreach(command IN LISTS commands)
  string(STRIP "${command}" command)
  execute_process(COMMAND "${PROGRAM}" help --man ${command}
    OUTPUT_FILE "${FOLDER}/qorvex-${command}.1" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# Checks that DOCUMENT contains each of the files QUOTED, unchanged, as a fenced block.
file(READ "${DOCUMENT}" document)
foreach(file IN LISTS QUOTED)
  file(READ "${file}" text)
  string(FIND "${document}" "\n${text}```\n" position)
  if(NOT text OR position EQUAL -1)
    message(SEND_ERROR "${DOCUMENT} does not quote ${file} exactly")
  endif()
endforeach()

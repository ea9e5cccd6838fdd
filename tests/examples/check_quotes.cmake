# Checks that DOCUMENT holds, each as a fenced block, the files QUOTED as they are.
file(READ "${DOCUMENT}" document)
foreach(file IN LISTS QUOTED)
  file(READ "${file}" text)
  string(FIND "${document}" "\n${text}```\n" position)
  if(NOT text OR position EQUAL -1)
    message(SEND_ERROR "${DOCUMENT} does not quote ${file} as it is")
  endif()
endforeach()

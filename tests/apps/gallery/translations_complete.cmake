# cmake -D LUPDATE=<program> -D SOURCES=<folder> -D INCLUDES=<folder> -D FILE=<.ts> -D SCRATCH=<folder>
# -P translations_complete.cmake: fails unless the file has a translation of every text of the sources, and no other.
file(MAKE_DIRECTORY "${SCRATCH}")
file(COPY "${FILE}" DESTINATION "${SCRATCH}")
cmake_path(GET FILE FILENAME name)
set(copy "${SCRATCH}/${name}")
execute_process(
  COMMAND "${LUPDATE}" -silent -locations none -I "${INCLUDES}" "${SOURCES}" -ts "${copy}"
  COMMAND_ERROR_IS_FATAL ANY ERROR_VARIABLE complaints)
# The texts of such a class would be looked up under another name, without effect.
if(complaints MATCHES "[^\n]*apps/qorvex-gallery[^\n]*unknown namespace/class[^\n]*")
  message(FATAL_ERROR "lupdate does not understand the header: ${CMAKE_MATCH_0}")
endif()
file(STRINGS "${copy}" lines)
set(source "")
set(wrong "")
foreach(line IN LISTS lines)
  if(line MATCHES "<source>(.*)</source>")
    set(source "${CMAKE_MATCH_1}")
  elseif(line MATCHES "type=\"(unfinished|vanished|obsolete)\"")
    string(APPEND wrong "\n  ${CMAKE_MATCH_1}: ${source}")
  endif()
endforeach()
if(wrong)
  message(FATAL_ERROR "${name}:${wrong}")
endif()

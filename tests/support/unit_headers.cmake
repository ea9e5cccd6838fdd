# qorvex_unit_headers(<variable> <header>...) sets the variable to sources each of which includes one header only and
# catches the errors that the routines of its unit raise.
function(qorvex_unit_headers variable)
  set(sources)
  foreach(header IN LISTS ARGN)
    cmake_path(GET header STEM unit)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${unit}_header.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT [[
#include "@header@"

bool Is@unit@Error(const qorvex::EMathError& error) {
  return error.message_id() == qorvex::rsVectorIsEmpty;
}
]] @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  set(${variable} "${sources}" PARENT_SCOPE)
endfunction()

# Checks that the figures of FILE, a library or program, cannot depend on the make of the processor or on the C library:
# it contains none of the instructions whose last bits differ between makes, and calls no routine of libm but those that
# are exact or correctly rounded everywhere.
cmake_policy(VERSION 3.23)

set(inexact_instructions "f2xm1|fcos|fpatan|fptan|fsin|fsincos|fyl2x|fyl2xp1|v?r(cp|sqrt)(14|28)?[sp][sdh]")
set(exact_routines
  ceil copysign fabs floor fma fmax fmin fmod frexp ilogb ldexp llrint llround logb lrint lround modf nearbyint
  nextafter remainder rint round scalbln scalbn sqrt trunc)

# The first line is the number of x87 loads: a check of the check.
execute_process(
  COMMAND "${OBJDUMP}" --disassemble --demangle --no-show-raw-insn "${FILE}"
  COMMAND awk "
    />:$/ { routine = $0 }
    /\t(${inexact_instructions})([ \t]|$)/ { found = found \"\\n  \" $0 \" in \" routine }
    /\tfld/ { ++loads }
    END { print loads + 0 found }"
  OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)
if(found MATCHES "^0")
  message(SEND_ERROR "${FILE} has no x87 instruction at all: was it disassembled?")
elseif(found MATCHES "\n  ")
  message(SEND_ERROR "${FILE} computes with instructions that depend on the processor; loads: ${found}")
endif()

execute_process(COMMAND "${COMPILER}" -print-file-name=libm.so.6
  OUTPUT_VARIABLE libm OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
function(symbols_of output)
  execute_process(COMMAND "${NM}" --without-symbol-versions ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "[^\n]* [A-Za-z] " "" text "${text}")
  string(REGEX MATCHALL "[^\n]+" symbols "${text}")
  set(${output} "${symbols}" PARENT_SCOPE)
endfunction()
symbols_of(of_libm --dynamic --defined-only "${libm}")
if(NOT "expl" IN_LIST of_libm)
  message(FATAL_ERROR "${libm} has no expl")
endif()
set(dynamic --dynamic)
if(FILE MATCHES "\\.a$")
  set(dynamic)
endif()
symbols_of(needed ${dynamic} --undefined-only "${FILE}")
list(REMOVE_DUPLICATES needed)
set(inexact)
foreach(symbol IN LISTS needed)
  string(REGEX REPLACE "[fl]$" "" stem "${symbol}")
  if(symbol IN_LIST of_libm AND NOT symbol IN_LIST exact_routines AND NOT stem IN_LIST exact_routines)
    list(APPEND inexact ${symbol})
  endif()
endforeach()
if(inexact)
  message(SEND_ERROR "${FILE} calls inexact routines of the C library: ${inexact}")
endif()
